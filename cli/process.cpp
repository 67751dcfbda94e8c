#include "cli/process.h"

#include <fcntl.h>
#include <fmt/format.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>

#include "cli/command.h"

namespace cli {

namespace {

constexpr rlim_t kibibyte = 1024;
constexpr rlim_t needed_stack = 1024 * kibibyte;
constexpr rlim_t usual_stack = 8 * needed_stack;

void open_standard_descriptors()
{
    struct stat found {};
    for (const int number : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
        // NOLINTNEXTLINE(cppcoreguidelines-pro-type-vararg): the call has an optional argument
        if (::fstat(number, &found) != 0) ::open("/dev/null", O_RDWR);  // takes the lowest free number
}

std::string missing_stack()
{
    rlimit stack{};
    if (::getrlimit(RLIMIT_STACK, &stack) != 0 || stack.rlim_cur >= usual_stack) return {};
    stack.rlim_cur = std::min(stack.rlim_max, usual_stack);
    ::setrlimit(RLIMIT_STACK, &stack);
    if (stack.rlim_cur >= needed_stack) return {};
    return fmt::format("the stack is limited to {} KiB; expected at least {} KiB (ulimit -s {})",
                       stack.rlim_cur / kibibyte, needed_stack / kibibyte, needed_stack / kibibyte);
}

}  // namespace

std::string prepare_process()
{
    open_standard_descriptors();
    for (const int signal : {SIGPIPE, SIGXFSZ}) std::signal(signal, SIG_IGN);
    return missing_stack();
}

int checked_output(int status)
{
    const bool is_written = std::fflush(stdout) == 0 && std::ferror(stdout) == 0;
    return is_written || status != exit_success ? status : fail("standard output cannot be written", stderr);
}

}  // namespace cli

#include "app/io/memory.h"

#include <fmt/format.h>
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <fstream>
#include <limits>
#include <stdexcept>

namespace app {

namespace {

constexpr double unlimited = std::numeric_limits<double>::infinity();

double free_of_machine()
{
    std::ifstream in{"/proc/meminfo"};
    for (std::string key, unit; in >> key;) {
        double kibibytes = 0;
        if (!(in >> kibibytes)) break;
        std::getline(in, unit);
        if (key == "MemAvailable:") return kibibytes * 1024;
    }
    return unlimited;
}

double left_of_address_space()
{
    struct rlimit limit {};
    if (::getrlimit(RLIMIT_AS, &limit) != 0 || limit.rlim_cur == RLIM_INFINITY) return unlimited;
    double pages = 0;
    std::ifstream{"/proc/self/statm"} >> pages;
    const double used = pages * static_cast<double>(::sysconf(_SC_PAGESIZE));
    return std::max(0.0, static_cast<double>(limit.rlim_cur) - used);
}

// "max" is no number.
double left_of_control_group()
{
    double most = 0;
    double used = 0;
    const bool is_limited = static_cast<bool>(std::ifstream{"/sys/fs/cgroup/memory.max"} >> most);
    if (!is_limited || !(std::ifstream{"/sys/fs/cgroup/memory.current"} >> used)) return unlimited;
    return std::max(0.0, most - used);
}

std::string shown(double bytes)
{
    constexpr double gibibyte = 1024.0 * 1024.0 * 1024.0;
    return fmt::format("{:.3g} GiB", bytes / gibibyte);
}

}  // namespace

double available_memory()
{
    return std::min({free_of_machine(), left_of_address_space(), left_of_control_group()});
}

std::string lacking_memory(double bytes)
{
    const double available = available_memory();
    if (bytes <= available) return {};
    return fmt::format("{} of memory; {} are free", shown(bytes), shown(available));
}

void require_memory(double bytes, const std::string& what)
{
    if (const auto lacking = lacking_memory(bytes); !lacking.empty())
        throw std::runtime_error{fmt::format("{} need {}", what, lacking)};
}

}  // namespace app

#include "app/sweep/process_pool.h"

#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <system_error>

namespace app {

namespace {

[[noreturn]] void fail(const char* what)
{
    throw std::system_error{errno, std::generic_category(), what};
}

void write_all(int file, std::string_view text)
{
    while (!text.empty()) {
        const auto written = ::write(file, text.data(), text.size());
        if (written < 0 && errno == EINTR) continue;
        if (written < 0) ::_exit(1);
        text.remove_prefix(static_cast<std::size_t>(written));
    }
}

std::string ending(int status)
{
    if (WIFSIGNALED(status))
        return std::string{"the process of the case was ended by a signal: "} + ::strsignal(WTERMSIG(status));
    return "the process of the case ended with status " + std::to_string(WEXITSTATUS(status));
}

struct Child {
    pid_t process;
    int pipe;
    std::size_t task;
    std::string received;
};

class Pool {
public:
    explicit Pool(const std::function<std::string(std::size_t)>& work) : work_(work) {}
    Pool(const Pool&) = delete;
    Pool& operator=(const Pool&) = delete;
    ~Pool()
    {
        for (const auto& child : children_) {
            ::kill(child.process, SIGKILL);
            ::close(child.pipe);
            ::waitpid(child.process, nullptr, 0);
        }
    }

    std::size_t running() const { return children_.size(); }

    void start(std::size_t task)
    {
        std::array<int, 2> ends{};
        if (::pipe(ends.data()) != 0) fail("a pipe cannot be made");
        const auto process = ::fork();
        if (process < 0) fail("a process cannot be started");
        if (process == 0) {
            write_all(ends[1], work_(task));
            ::_exit(0);  // what this process had buffered is the parent's to write
        }
        ::close(ends[1]);
        children_.push_back({process, ends[0], task, {}});
    }

    // Waits until something happens: a part of a result, the end of a child, or a signal.
    std::vector<TaskOutcome> wait()
    {
        std::vector<pollfd> watched;
        for (const auto& child : children_) watched.push_back({child.pipe, POLLIN, 0});
        if (::poll(watched.data(), watched.size(), -1) < 0) {
            if (errno != EINTR) fail("waiting for a process failed");
            return {};
        }
        std::vector<TaskOutcome> ended;
        for (std::size_t i = children_.size(); i-- > 0;)
            if (watched[i].revents != 0 && !receive(children_[i])) ended.push_back(take(i));
        return ended;
    }

private:
    static bool receive(Child& child)
    {
        std::array<char, 65536> buffer;
        const auto count = ::read(child.pipe, buffer.data(), buffer.size());
        if (count > 0) child.received.append(buffer.data(), static_cast<std::size_t>(count));
        return count > 0 || (count < 0 && errno == EINTR);
    }

    TaskOutcome take(std::size_t i)
    {
        auto child = std::move(children_[i]);
        children_.erase(children_.begin() + static_cast<std::ptrdiff_t>(i));
        ::close(child.pipe);
        int status = 0;
        while (::waitpid(child.process, &status, 0) < 0 && errno == EINTR) continue;
        if (status == 0) return {child.task, std::move(child.received), {}};
        return {child.task, {}, ending(status)};
    }

    const std::function<std::string(std::size_t)>& work_;
    std::vector<Child> children_;
};

}  // namespace

void run_tasks(const std::vector<std::size_t>& tasks, const PoolOptions& options,
               const std::function<std::string(std::size_t)>& work,
               const std::function<void(const TaskOutcome&)>& done)
{
    Pool pool{work};
    auto next = tasks.begin();
    for (;;) {
        while (next != tasks.end() && pool.running() < options.processes && !options.is_stopped())
            pool.start(*next++);
        if (pool.running() == 0) return;
        for (const auto& outcome : pool.wait()) done(outcome);
    }
}

}  // namespace app

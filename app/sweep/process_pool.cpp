#include "app/sweep/process_pool.h"

#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <new>
#include <system_error>

#include "app/io/descriptor.h"

namespace app {

namespace {

[[noreturn]] void fail(const char* what)
{
    throw std::system_error{errno, std::generic_category(), what};
}

constexpr int exit_out_of_memory = 3;

std::string ending(int status)
{
    if (WIFSIGNALED(status))
        return std::string{"the process of the case was ended by a signal: "} + ::strsignal(WTERMSIG(status));
    if (WEXITSTATUS(status) == exit_out_of_memory) return "the process of the case ran out of memory";
    return "the process of the case ended with status " + std::to_string(WEXITSTATUS(status));
}

struct Child {
    pid_t process;
    Descriptor pipe;
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
            ::waitpid(child.process, nullptr, 0);
        }
    }

    std::size_t running() const { return children_.size(); }

    // False, with errno, where descriptors, processes or memory do not suffice.
    bool start(std::size_t task)
    {
        std::array<int, 2> ends{};
        if (::pipe(ends.data()) != 0) return false;
        Descriptor from_child{ends[0]};
        const Descriptor to_parent{ends[1]};
        children_.reserve(children_.size() + 1);
        const auto process = ::fork();
        if (process == 0) run(task, to_parent.number());
        if (process > 0) children_.push_back({process, std::move(from_child), task, {}});
        return process > 0;
    }

    // Waits until something happens: a part of a result, the end of a child, or a signal.
    std::vector<TaskOutcome> wait()
    {
        std::vector<pollfd> watched;
        for (const auto& child : children_) watched.push_back({child.pipe.number(), POLLIN, 0});
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
    // In the child. What the parent has buffered is the parent's to write.
    [[noreturn]] void run(std::size_t task, int to_parent) const
    {
        try {
            ::_exit(write_all(to_parent, work_(task)) ? 0 : 1);
        } catch (const std::bad_alloc& /*error*/) {
            ::_exit(exit_out_of_memory);
        }
    }

    static bool receive(Child& child)
    {
        std::array<char, 65536> buffer;
        const auto count = ::read(child.pipe.number(), buffer.data(), buffer.size());
        if (count > 0) child.received.append(buffer.data(), static_cast<std::size_t>(count));
        return count > 0 || (count < 0 && errno == EINTR);
    }

    TaskOutcome take(std::size_t i)
    {
        auto child = std::move(children_[i]);
        children_.erase(children_.begin() + static_cast<std::ptrdiff_t>(i));
        child.pipe.close();
        int status = 0;
        while (::waitpid(child.process, &status, 0) < 0 && errno == EINTR) continue;
        if (status != 0) return {child.task, {}, ending(status)};
        return {child.task, std::move(child.received), {}};
    }

    const std::function<std::string(std::size_t)>& work_;
    std::vector<Child> children_;
};

void run_once(const std::vector<std::size_t>& tasks, const PoolOptions& options,
              const std::function<std::string(std::size_t)>& work,
              const std::function<void(const TaskOutcome&)>& done)
{
    Pool pool{work};
    auto most = options.processes;
    auto next = tasks.begin();
    for (;;) {
        while (next != tasks.end() && pool.running() < most && !options.is_stopped()) {
            if (pool.start(*next))
                ++next;
            else if (pool.running() > 0)
                most = pool.running();
            else
                fail("a process cannot be started");
        }
        if (pool.running() == 0) return;
        for (const auto& outcome : pool.wait()) done(outcome);
    }
}

}  // namespace

void run_tasks(const std::vector<std::size_t>& tasks, const PoolOptions& options,
               const std::function<std::string(std::size_t)>& work,
               const std::function<void(const TaskOutcome&)>& done)
{
    std::vector<std::size_t> again;
    run_once(tasks, options, work, [&](const TaskOutcome& outcome) {
        if (outcome.result)
            done(outcome);
        else
            again.push_back(outcome.task);
    });
    run_once(again, {1, options.is_stopped}, work, done);
}

}  // namespace app

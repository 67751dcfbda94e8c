// Runs tasks in processes of their own, a few at a time, so that a task that crashes takes nothing with it.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace app {

struct TaskOutcome {
    std::size_t task;
    std::optional<std::string> result;  // empty when the process ended early
    std::string why;                    // it did
};

struct PoolOptions {
    std::size_t processes = 1;                                // at a time
    std::function<bool()> is_stopped = [] { return false; };  // no further task starts; those that run end
};

// Calls `work` for every task in a child process and `done` in this one, in the order in which they end.
// Tasks whose process was cut off run once more, at the end and one at a time. Fewer run at a time where
// descriptors, processes or memory do not suffice; throws std::system_error where they do not suffice for
// one, and what `done` throws; no child is left behind.
void run_tasks(const std::vector<std::size_t>& tasks, const PoolOptions& options,
               const std::function<std::string(std::size_t)>& work,
               const std::function<void(const TaskOutcome&)>& done);

}  // namespace app

#include "minihost/arena.h"

#include <algorithm>
#include <iterator>

namespace minihost {

Arena::Arena(Position first, Int length) : first_(first), length_(length)
{
    reset();
}

void Arena::reset()
{
    free_.clear();
    if (length_ > 0) free_[first_] = length_;
    high_water_ = first_;
}

std::optional<Position> Arena::take(Int length)
{
    const auto fits = [length](const auto& run) { return run.second >= length; };
    const auto run = std::find_if(free_.begin(), free_.end(), fits);
    if (run == free_.end()) return std::nullopt;
    const auto [start, available] = *run;
    free_.erase(run);
    if (available > length) free_[start + length] = available - length;
    high_water_ = std::max(high_water_, start + length);
    return start;
}

void Arena::give_back(Position start, Int length)
{
    if (length == 0) return;
    auto run = free_.emplace(start, length).first;
    if (const auto next = std::next(run); next != free_.end() && start + length == next->first) {
        run->second += next->second;
        free_.erase(next);
    }
    if (run == free_.begin()) return;
    if (const auto before = std::prev(run); before->first + before->second == start) {
        before->second += run->second;
        free_.erase(run);
    }
}

}  // namespace minihost

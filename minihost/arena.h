#pragma once

#include <map>
#include <optional>

#include "minihost/store_words.h"

namespace minihost {

// Hands out runs of consecutive positions, first fit, and takes them back.
class Arena {
public:
    // Positions first .. first + length - 1.
    Arena(Position first, Int length);

    // Start of a free run, or nothing when no free run is long enough.
    std::optional<Position> take(Int length);
    void give_back(Position start, Int length);

    // Everything is free again.
    void reset();

    // Every position from here on has never been handed out since the last reset.
    Position high_water() const { return high_water_; }
    Position first() const { return first_; }

private:
    Position first_;
    Int length_;
    Position high_water_;
    std::map<Position, Int> free_;
};

}  // namespace minihost

// Arrays for outputs, filled with a sentinel and fenced by more of it, to see what a routine left untouched.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <cstdint>
#include <initializer_list>
#include <vector>

namespace support {

template <typename T>
class Guarded {
public:
    // A number that no calculation gives by chance.
    static constexpr T sentinel = std::bit_cast<T>(std::int64_t{0x40C3'87AD'DEAD'BEEF});

    // `size` elements that hold the sentinel.
    explicit Guarded(std::size_t size) : words_(size + 2 * fence, sentinel) {}

    // The given elements.
    Guarded(std::initializer_list<T> values) : Guarded(values.size()) { std::ranges::copy(values, data()); }

    T* data() { return words_.data() + fence; }
    operator T*() { return data(); }

    // Element i, from 1.
    T& operator()(std::int64_t i) { return words_.at(fence + static_cast<std::size_t>(i - 1)); }
    T operator()(std::int64_t i) const { return words_.at(fence + static_cast<std::size_t>(i - 1)); }

    std::vector<T> values() const { return {words_.begin() + fence, words_.end() - fence}; }

    // Nothing was written beside the elements.
    bool fence_holds() const
    {
        const auto is_sentinel = [](T word) { return word == sentinel; };
        return std::all_of(words_.begin(), words_.begin() + fence, is_sentinel) &&
               std::all_of(words_.end() - fence, words_.end(), is_sentinel);
    }

    bool untouched(std::int64_t i) const { return (*this)(i) == sentinel; }

    // No element was written either.
    bool untouched() const { return words_ == std::vector<T>(words_.size(), sentinel); }

private:
    static constexpr std::size_t fence = 4;
    std::vector<T> words_;
};

using GuardedReals = Guarded<double>;
using GuardedInts = Guarded<std::int64_t>;

}  // namespace support

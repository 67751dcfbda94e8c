// Work space of one call: zeroed entries in the library's own memory, given back at the end of the scope.
#pragma once

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <type_traits>

#include "host/views.h"

namespace polyprops::input {

// Entries 1..count. When memory is exhausted the object says so and must not be subscripted.
template <class T>
class Scratch {
    static_assert(std::is_trivial_v<T>, "zeroed memory must be a valid entry");

public:
    explicit Scratch(Int count) : entries_(allocate(std::max<Int>(count, 1))), count_(count) {}

    bool is_allocated() const { return entries_ != nullptr; }
    Int count() const { return count_; }
    T& operator()(Int i) const { return Vector{entries_.get(), count_}(i); }
    T& operator()(Component c) const { return (*this)(c.index); }

private:
    // Exhausted memory is an answer here, not an exception: the library has none.
    // NOLINTBEGIN(cppcoreguidelines-no-malloc, cppcoreguidelines-owning-memory)
    static T* allocate(Int count)
    {
        return static_cast<T*>(std::calloc(static_cast<std::size_t>(count), sizeof(T)));
    }
    struct Free {
        void operator()(T* entries) const { std::free(entries); }
    };
    // NOLINTEND(cppcoreguidelines-no-malloc, cppcoreguidelines-owning-memory)

    std::unique_ptr<T[], Free> entries_;
    Int count_;
};

}  // namespace polyprops::input

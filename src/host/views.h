// How the library sees its arguments: 1-based, column-major, signed subscripts.
//
// These views are the only place where a subscript becomes an address. Two meanings of a subscript never mix:
// a plain Int is a position (in the caller's list, in the segment list), a Component is a component index of
// the host. Extents, where known, are checked in debug builds.
#pragma once

#include <algorithm>
#include <cassert>
#include <cstdint>
#include <cstring>

#include "numeric/quiet_comparisons.h"

namespace polyprops {

using Int = std::int64_t;
using Real = double;

struct Component {
    Int index;
    friend bool operator==(Component, Component) = default;
};

// The host's attribute selector, passed through to it unchanged.
struct Selector {
    Int value;
};
inline constexpr Selector own_selector{1};

inline constexpr Int unknown_extent = -1;

// An array by position.
template <class T>
class Vector {
public:
    constexpr explicit Vector(T* first, Int extent = unknown_extent) : first_(first), extent_(extent) {}

    T& operator()(Int i) const
    {
        assert(i >= 1 && (extent_ == unknown_extent || i <= extent_));
        return first_[i - 1];
    }

private:
    T* first_;
    [[maybe_unused]] Int extent_;
};

// An array by component index.
template <class T>
class ByComponent {
public:
    explicit ByComponent(T* first, Int extent = unknown_extent) : values_(first, extent) {}

    T& operator()(Component c) const { return values_(c.index); }

private:
    Vector<T> values_;
};

// A polymer flag array: only the value 1 marks a polymer or an oligomer.
class FlagArray {
public:
    explicit FlagArray(const Int* first) : flags_(first) {}

    bool is_flagged(Component c) const { return flags_(c) == 1; }

private:
    ByComponent<const Int> flags_;
};

// A matrix whose rows and columns are positions.
template <class T>
class Matrix {
public:
    // A leading dimension below 1 has no rows: its columns all begin with the matrix, not before it.
    Matrix(T* first, Int leading_dimension)
        : first_(first), leading_dimension_(std::max<Int>(leading_dimension, 0))
    {
    }

    T& operator()(Int i, Int j) const
    {
        assert(i >= 1 && j >= 1 && i <= leading_dimension_);
        return first_[(j - 1) * leading_dimension_ + (i - 1)];
    }
    T* column(Int j) const { return first_ + (j - 1) * leading_dimension_; }
    Int leading_dimension() const { return leading_dimension_; }

private:
    T* first_;
    Int leading_dimension_;
};

// A list of components: the caller's N and IDX or NSEG and ISEG, or the entries of a list block of the store.
class ComponentList {
public:
    ComponentList() = default;
    ComponentList(Int count, const Int* first) : count_(count), first_(first) {}

    Int count() const { return count_; }
    Component operator()(Int i) const
    {
        assert(i >= 1 && i <= count_);
        return {first_[i - 1]};
    }
    // Position of the first entry that holds c, 0 when none does.
    Int position_of(Component c) const
    {
        for (Int i = 1; i <= count_; ++i)
            if (first_[i - 1] == c.index) return i;
        return 0;
    }

private:
    Int count_ = 0;
    const Int* first_ = nullptr;
};

// Segments per molecule: rows and columns are component indices. The row of a component that is not broken
// into segments holds its own count in column 1, whatever component that column belongs to.
template <class T>
class SegmentCountMatrix {
public:
    SegmentCountMatrix(T* first, Int leading_dimension) : elements_(first, leading_dimension) {}

    T& operator()(Component row, Component segment) const { return elements_(row.index, segment.index); }
    T& own_count(Component row) const { return elements_(row.index, 1); }
    SegmentCountMatrix<const T> read_only() const
    {
        return {elements_.column(1), elements_.leading_dimension()};
    }
    Real row_sum(Component row, const ComponentList& segments) const
    {
        Real sum = 0.0;
        for (Int m = 1; m <= segments.count(); ++m) sum += (*this)(row, segments(m));
        return sum;
    }

private:
    Matrix<T> elements_;
};

// Segment fractions: rows are component indices, columns positions in the segment list.
template <class T>
class SegmentFractionMatrix {
public:
    SegmentFractionMatrix(T* first, Int leading_dimension) : elements_(first, leading_dimension) {}

    T& operator()(Component row, Int segment_position) const
    {
        return elements_(row.index, segment_position);
    }

private:
    Matrix<T> elements_;
};

// Sets count words to zero; integers and reals share the all-zero pattern.
template <class T>
void clear(T* first, Int count)
{
    if (count > 0) std::memset(first, 0, static_cast<std::size_t>(count) * sizeof(T));
}

// Sets a matrix of n rows and columns to zero.
template <class T>
void clear_square(T* first, Int n)
{
    if (n > 0) clear(first, n * n);
}

}  // namespace polyprops

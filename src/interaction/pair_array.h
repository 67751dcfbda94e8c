// Parameter positions of every ordered pair of components: P(n, m, m), first subscript fastest.
#pragma once

#include "host/views.h"

namespace polyprops::interaction {

template <class T>
class PairArray {
public:
    PairArray(T* first, Int positions, Int components)
        : blocks_(first, positions), positions_(positions), components_(components)
    {
    }

    Int positions() const { return positions_; }
    Int components() const { return components_; }
    bool has_position(Int l) const { return l >= 1 && l <= positions_; }
    T& operator()(Int l, Int i, Int j) const { return blocks_(l, (j - 1) * components_ + i); }
    // A position that the array does not have holds zeros.
    Real value(Int l, Int i, Int j) const { return has_position(l) ? (*this)(l, i, j) : 0.0; }

private:
    Matrix<T> blocks_;
    Int positions_;
    Int components_;
};

}  // namespace polyprops::interaction

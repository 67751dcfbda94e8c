// Correlations of a binary parameter with the reduced temperature x = T / Tr.
//
//   form         K                                        T · dK/dT
//   general      P1 + P2/x + P3·ln(x) + P4·x + P5·x²      −P2/x + P3 + P4·x + 2·P5·x²
//   linear       P1 + P2·x                                x·P2
//   reciprocal   P1 + P2·x + P3/x                         P2·x − P3/x
//
//   general      dK/dT = (P4 − P2/x² + P3/x + 2·P5·x) / Tr
//
// The general form is summed in three orders, one per routine. They agree but for rounding; each is kept so
// that a routine gives the same bits on every machine and in every release.
#pragma once

#include <bit>
#include <cmath>

#include "host/views.h"

namespace polyprops::interaction {

struct Coefficients {
    Real p1, p2, p3, p4, p5;
};

// One temperature against the reference temperature of one pair after the other. A pair with the reference of
// the pair before it costs no second division and no second logarithm.
class ReducedTemperature {
public:
    // Against 1 K until it is referred to another temperature.
    explicit ReducedTemperature(Real temperature) : temperature_(temperature), x_(temperature) {}
    ReducedTemperature(Real temperature, Real reference) : ReducedTemperature(temperature)
    {
        refer_to(reference);
    }

    void refer_to(Real reference)
    {
        // Compared by bits: zeros of different sign do not give the same x.
        if (std::bit_cast<Int>(reference) == std::bit_cast<Int>(reference_)) return;
        has_logarithm_ = false;
        reference_ = reference;
        x_ = temperature_ / reference;
    }

    Real reference() const { return reference_; }
    Real x() const { return x_; }
    // Taken when first asked for: forms without it also serve an x that has no logarithm.
    Real logarithm()
    {
        if (!has_logarithm_) logarithm_ = std::log(x_);
        has_logarithm_ = true;
        return logarithm_;
    }

private:
    Real temperature_;
    Real reference_ = 1.0;
    Real x_;
    Real logarithm_ = 0.0;
    bool has_logarithm_ = false;
};

// ---- general form, in its three orders of summation ----

inline Real general_single_pair(const Coefficients& p, ReducedTemperature& reduced)
{
    const Real x = reduced.x();
    return ((p.p5 * x + p.p4) * x) + ((p.p2 / x + p.p1) + reduced.logarithm() * p.p3);
}

inline Real general_logarithm_first(const Coefficients& p, ReducedTemperature& reduced)
{
    const Real x = reduced.x();
    return ((p.p5 * x + p.p4) * x) + (reduced.logarithm() * p.p3 + p.p1 + p.p2 / x);
}

inline Real general_logarithm_last(const Coefficients& p, ReducedTemperature& reduced)
{
    const Real x = reduced.x();
    return ((p.p5 * x + p.p4) * x + p.p2 / x + p.p1) + reduced.logarithm() * p.p3;
}

// dK/dT in 1/K for a K that is a ratio.
inline Real general_derivative(const Coefficients& p, const ReducedTemperature& reduced)
{
    const Real x = reduced.x();
    return (p.p4 - p.p2 / (x * x) + p.p3 / x + 2.0 * p.p5 * x) / reduced.reference();
}

// T · dK/dT, in the unit of K.
inline Real general_slope(const Coefficients& p, const ReducedTemperature& reduced)
{
    const Real x = reduced.x();
    return -p.p2 / x + p.p3 + p.p4 * x + 2.0 * p.p5 * (x * x);
}

// ---- the form that belongs to a number of parameter positions ----

// In the linear form a coefficient beyond this bound was not given.
inline Real given(Real coefficient)
{
    return above(coefficient, 1e30) ? 0.0 : coefficient;
}

inline Real value_by_positions(Int positions, const Coefficients& p, ReducedTemperature& reduced)
{
    const Real x = reduced.x();
    switch (positions) {
        case 2:
            return given(p.p1) + given(p.p2) * x;
        case 4:
            return p.p1 + p.p2 * x + p.p3 / x;
        default:
            return general_logarithm_last(p, reduced);
    }
}

inline Real slope_by_positions(Int positions, const Coefficients& p, const ReducedTemperature& reduced)
{
    const Real x = reduced.x();
    switch (positions) {
        case 2:
            return x * given(p.p2);
        case 4:
            return p.p2 * x - p.p3 / x;
        default:
            return general_slope(p, reduced);
    }
}

}  // namespace polyprops::interaction

// Averages of chain-length distributions in closed form, with the chain length x as a continuous variable.
//
// With w the weight fraction per segment, every average follows from means of powers of x over the mass:
//
//   m(k) = ∫ x^k w dx      1/Pn = m(−1)      Pw = m(1)      Pw·Pz = m(2)      Pw·Pz·Pz+1 = m(3)
//   Mv = (segment weight)·m(a)^(1/a)         a the Mark-Houwink exponent
//
// Polymer from several sources has the mass-weighted means of m(k), and so of the mass outside a grid.
//
// Polymer of a site with parameters τ and β, s = τ + β, u = s·x, has
//
//   w = s·x·(τ + β·u/2)·e^−u
//   m(k) = τ·Γ(k+2)/s^(k+1) + β·Γ(k+3)/(2·s^(k+1))
//   mass up to x: 1 − e^−u·(1 + u + (β/s)·u²/2)
#pragma once

#include <optional>

#include "app/case/distribution_model.h"

namespace app {

// Ends of a grid of chain lengths, segments.
struct GridEnds {
    double first = 0;
    double last = 0;
};

// Means over the mass of a distribution.
struct MassMeans {
    double inverse = 0;    // of 1/x
    double first = 0;      // of x
    double second = 0;     // of x²
    double third = 0;      // of x³
    double viscosity = 0;  // of x^a; 0 without an exponent
    double below = 0;      // mass fraction of chains shorter than the grid
    double above = 0;      // the same of longer ones
};

MassMeans site_means(const SiteIncrement& site, const GridEnds& grid, std::optional<double> exponent);

// Means of polymer from several sources.
class MassWeightedMeans {
public:
    void add(double amount, const MassMeans& means);
    void add(const MassWeightedMeans& part);

    // Empty when there is no polymer.
    std::optional<MassMeans> mean() const;

private:
    double amount_ = 0;
    MassMeans sums_;
};

}  // namespace app

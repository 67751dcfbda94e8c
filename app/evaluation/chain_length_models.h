// Distributions of chain lengths by Pn and dispersity Đ, with means over the mass as in closed_forms.
//
//   log-normal      w = e^(−(ln x − μ)²/(2σ²)) / (x·σ·√(2π)),  σ² = ln Đ,  μ = ln Pn + σ²/2
//                   m(k) = e^(k·μ + k²·σ²/2)
//   Schulz-Zimm     w = x^k·e^(−x/θ) / (θ^(k+1)·Γ(k+1)),  k = 1/(Đ − 1),  θ = Pn/k
//                   m(p) = θ^p·Γ(k+1+p)/Γ(k+1)
//   Poisson         w = x·e^−ν·ν^(x−1) / ((x−1)!·(1 + ν)),  ν = Pn − 1,  for whole x
//                   Đ = 1 + ν/(1 + ν)²
#pragma once

#include <optional>

#include "app/case/distribution_model.h"
#include "app/evaluation/closed_forms.h"

namespace app {

// A distribution with Pn > 1 and, but for a Poisson distribution, Đ > 1.
struct ModelDistribution {
    ChainLengthModel model;
    double pn = 0;
    double dispersity = 0;  // not read of a Poisson distribution
};

MassMeans model_means(const ModelDistribution& distribution, const GridEnds& grid,
                      std::optional<double> exponent);

// Weight fraction per segment at the chain length x; of a Poisson distribution at a whole number.
double model_height(const ModelDistribution& distribution, double x);

// Viscosity average of a Schulz-Zimm distribution, in the unit of `mn`. A dispersity of 1 is one chain
// length.
double schulz_zimm_viscosity_average(double mn, double dispersity, double exponent);

}  // namespace app

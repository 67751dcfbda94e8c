// Chain-length distributions on a grid.
#pragma once

#include "app/routines/component.h"

namespace app::routines {

enum class CurveForm { weight_fraction, gpc };  // gpc: chain length times weight fraction

// Polymer that each site makes in one increment.
struct SiteParameters {
    Reals tau, beta;  // 1
    Reals amount;     // any unit, the same in all increments
};

// The running average over increments of what some sites make. Increments are mixed whole: a site that makes
// nothing in one of them is scaled to the new total like the others.
class AccumulatedDistribution {
public:
    AccumulatedDistribution(std::size_t points, double longest_chain, std::size_t sites, CurveForm form);

    void add(const SiteParameters& increment);

    const Reals& lengths() const { return lengths_; }  // segments
    const Reals& composite() const { return composite_; }
    Reals site(std::size_t j) const;
    double amount() const { return amounts_.back(); }
    double amount(std::size_t j) const { return amounts_[j]; }

private:
    void accumulate(const SiteParameters& increment);
    void mix_in(const AccumulatedDistribution& later);

    Int points_;
    double longest_chain_;
    Int sites_;
    Int mode_;
    Reals lengths_;
    Reals amounts_;  // by site, the total last
    Reals composite_;
    Reals columns_;  // site after site
};

// Mixes a second distribution into a first, both by their amounts.
void mix_in(const Reals& second, double second_amount, Reals& first, double& first_amount);

}  // namespace app::routines

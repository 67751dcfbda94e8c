// Chain-length distributions on a grid, and their publication by the library's report and summary routines.
#pragma once

#include "app/routines/component.h"
#include "minihost/embedded_host.h"

namespace app::routines {

enum class CurveForm { weight_fraction, gpc };  // gpc: chain length times weight fraction

// Polymer that each site makes in one increment.
struct SiteParameters {
    Reals tau, beta;  // 1
    Reals amount;     // any unit, the same in all increments
};

// The running average over increments of what some sites make.
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
    Int points_;
    Int sites_;
    Int mode_;
    Reals lengths_;
    Reals amounts_;    // by site, the total last
    Reals composite_;
    Reals columns_;    // site after site
};

// Mixes a second distribution into a first, both by their amounts.
void mix_in(const Reals& second, double second_amount, Reals& first, double& first_amount);

// Writes a composite and the sections that make it up to the host's report and summary files; all curves are
// on the grid of `lengths`.
void publish_distribution(minihost::Host& host, const std::string& name, CurveForm form, const Reals& lengths,
                          const Reals& composite, const std::vector<Reals>& sections);

}  // namespace app::routines

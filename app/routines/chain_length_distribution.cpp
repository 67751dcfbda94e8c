#include "app/routines/chain_length_distribution.h"

#include <polyprops/polyprops.h>

namespace app::routines {

AccumulatedDistribution::AccumulatedDistribution(std::size_t points, double longest_chain, std::size_t sites,
                                                 CurveForm form)
    : points_(static_cast<Int>(points)),
      longest_chain_(longest_chain),
      sites_(static_cast<Int>(sites)),
      mode_(form == CurveForm::gpc ? 1 : 0),
      lengths_(points),
      amounts_(sites + 1),
      composite_(points),
      columns_(points * sites)
{
    POLY_CSDINI(&points_, &sites_, lengths_.data(), &longest_chain, amounts_.data(), composite_.data(),
                columns_.data());
}

void AccumulatedDistribution::add(const SiteParameters& increment)
{
    if (amount() == 0) return accumulate(increment);
    AccumulatedDistribution later{*this};
    POLY_CSDINI(&points_, &sites_, later.lengths_.data(), &longest_chain_, later.amounts_.data(),
                later.composite_.data(), later.columns_.data());
    later.accumulate(increment);
    mix_in(later);
}

void AccumulatedDistribution::accumulate(const SiteParameters& increment)
{
    POLY_CSDCAL(&points_, &sites_, &mode_, increment.tau.data(), increment.beta.data(),
                increment.amount.data(), lengths_.data(), amounts_.data(), composite_.data(),
                columns_.data());
}

void AccumulatedDistribution::mix_in(const AccumulatedDistribution& later)
{
    const double before = amount();
    const double added = later.amount();
    double total = 0;
    for (Int j = 0; j < sites_; ++j) {
        auto* column = columns_.data() + j * points_;
        POLY_CSDADD(&points_, column, &before, later.columns_.data() + j * points_, &added, column, &total);
        amounts_[static_cast<std::size_t>(j)] += later.amounts_[static_cast<std::size_t>(j)];
    }
    POLY_CSDADD(&points_, composite_.data(), &before, later.composite_.data(), &added, composite_.data(),
                &amounts_.back());
}

Reals AccumulatedDistribution::site(std::size_t j) const
{
    const auto first = columns_.begin() + static_cast<std::ptrdiff_t>(j) * points_;
    return {first, first + points_};
}

void mix_in(const Reals& second, double second_amount, Reals& first, double& first_amount)
{
    const auto points = static_cast<Int>(first.size());
    POLY_CSDADD(&points, first.data(), &first_amount, second.data(), &second_amount, first.data(),
                &first_amount);
}

}  // namespace app::routines

#include "app/routines/chain_length_distribution.h"

#include <polyprops/polyprops.h>

namespace app::routines {

AccumulatedDistribution::AccumulatedDistribution(std::size_t points, double longest_chain, std::size_t sites,
                                                 CurveForm form)
    : points_(static_cast<Int>(points)),
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
    POLY_CSDCAL(&points_, &sites_, &mode_, increment.tau.data(), increment.beta.data(),
                increment.amount.data(), lengths_.data(), amounts_.data(), composite_.data(),
                columns_.data());
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

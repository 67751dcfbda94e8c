#include "app/evaluation/closed_forms.h"

#include <cmath>

#include "app/evaluation/gamma_functions.h"

namespace app {

namespace {

double mass_above(const SiteIncrement& site, double x)
{
    const double s = site.tau + site.beta;
    const double u = s * x;
    return std::exp(-u) * (1 + u + site.beta / s * u * u / 2);
}

// Γ(k+3) = (k+2)·Γ(k+2)
double mean_power(const SiteIncrement& site, double k)
{
    const double gamma = std::exp(log_gamma_ratio(1, k + 1));
    return gamma * (site.tau + site.beta * (k + 2) / 2) / std::pow(site.tau + site.beta, k + 1);
}

// a·first + b·second, member by member.
MassMeans weighted_sum(double a, const MassMeans& first, double b, const MassMeans& second)
{
    const auto sum = [&](double MassMeans::*member) { return a * first.*member + b * second.*member; };
    return {sum(&MassMeans::inverse), sum(&MassMeans::first),     sum(&MassMeans::second),
            sum(&MassMeans::third),   sum(&MassMeans::viscosity), sum(&MassMeans::below),
            sum(&MassMeans::above)};
}

}  // namespace

MassMeans site_means(const SiteIncrement& site, const GridEnds& grid, std::optional<double> exponent)
{
    const double tau = site.tau;
    const double beta = site.beta;
    const double s = tau + beta;
    return {.inverse = tau + beta / 2,
            .first = (2 * tau + 3 * beta) / (s * s),
            .second = (6 * tau + 12 * beta) / (s * s * s),
            .third = (24 * tau + 60 * beta) / (s * s * s * s),
            .viscosity = exponent ? mean_power(site, *exponent) : 0,
            .below = 1 - mass_above(site, grid.first),
            .above = mass_above(site, grid.last)};
}

void MassWeightedMeans::add(double amount, const MassMeans& means)
{
    if (!(amount > 0)) return;
    amount_ += amount;
    sums_ = weighted_sum(1, sums_, amount, means);
}

void MassWeightedMeans::add(const MassWeightedMeans& part)
{
    amount_ += part.amount_;
    sums_ = weighted_sum(1, sums_, 1, part.sums_);
}

std::optional<MassMeans> MassWeightedMeans::mean() const
{
    if (!(amount_ > 0)) return {};
    return weighted_sum(1 / amount_, sums_, 0, {});
}

}  // namespace app

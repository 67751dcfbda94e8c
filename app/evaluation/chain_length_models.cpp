#include "app/evaluation/chain_length_models.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "app/evaluation/gamma_functions.h"

namespace app {

namespace {

// A distribution whose means have one form for every power.
template <typename Model>
class AnyPower {
public:
    double inverse() const { return power(-1); }
    double first() const { return power(1); }
    double second() const { return power(2); }
    double third() const { return power(3); }

private:
    double power(double k) const { return static_cast<const Model*>(this)->mean_power(k); }
};

class LogNormal : public AnyPower<LogNormal> {
public:
    explicit LogNormal(const ModelDistribution& d)
        : variance_(std::log(d.dispersity)), mu_(std::log(d.pn) + variance_ / 2)
    {
    }
    double mean_power(double k) const { return std::exp(k * mu_ + k * k * variance_ / 2); }
    double height(double x) const
    {
        const double z = (std::log(x) - mu_) / std::sqrt(variance_);
        return std::exp(-z * z / 2) / (x * std::sqrt(2 * std::numbers::pi * variance_));
    }
    double below(double x) const { return std::erfc((mu_ - std::log(x)) / std::sqrt(2 * variance_)) / 2; }
    double above(double x) const { return std::erfc((std::log(x) - mu_) / std::sqrt(2 * variance_)) / 2; }

private:
    double variance_;
    double mu_;
};

class SchulzZimm : public AnyPower<SchulzZimm> {
public:
    explicit SchulzZimm(const ModelDistribution& d) : k_(1 / (d.dispersity - 1)), theta_(d.pn / k_) {}
    double mean_power(double p) const { return std::exp(p * std::log(theta_) + log_gamma_ratio(k_ + 1, p)); }
    double height(double x) const
    {
        return std::exp(k_ * std::log(x / theta_) - x / theta_ - log_gamma_ratio(1, k_)) / theta_;
    }
    double below(double x) const { return incomplete_gamma(k_ + 1, x / theta_).lower; }
    double above(double x) const { return incomplete_gamma(k_ + 1, x / theta_).upper; }

private:
    double k_;
    double theta_;
};

// Chains of x segments have x − 1 segments beyond their first, of which there are ν on average.
class Poisson {
public:
    explicit Poisson(const ModelDistribution& d) : nu_(d.pn - 1) {}
    double inverse() const { return 1 / (1 + nu_); }
    double first() const { return (1 + nu_ * (3 + nu_)) / (1 + nu_); }
    double second() const { return (1 + nu_ * (7 + nu_ * (6 + nu_))) / (1 + nu_); }
    double third() const { return (1 + nu_ * (15 + nu_ * (25 + nu_ * (10 + nu_)))) / (1 + nu_); }
    double mean_power(double k) const
    {
        // Far into both tails; sums with a step of a fraction of the width have all digits.
        const double width = std::sqrt(nu_);
        const double step = std::max(1.0, std::floor(width / 50));
        const double first = std::max(1.0, std::floor(nu_ - 12 * width));
        double mass = 0;
        double sum = 0;
        for (double x = first; x < nu_ + 12 * width + 40; x += step) {
            mass += height(x);
            sum += height(x) * std::pow(x, k);
        }
        // So narrow that all chains have one length, to every digit.
        if (mass == 0) return std::pow(nu_, k);
        return sum / mass;
    }
    double height(double x) const
    {
        return x / (1 + nu_) * std::exp((x - 1) * std::log(nu_) - nu_ - log_gamma_ratio(1, x - 1));
    }
    double below(double x) const
    {
        return (nu_ * beyond_first(x - 2).upper + beyond_first(x - 1).upper) / (1 + nu_);
    }
    double above(double x) const
    {
        return (nu_ * beyond_first(x - 1).lower + beyond_first(x).lower) / (1 + nu_);
    }

private:
    // Number fractions of chains with fewer (upper) and with at least n segments beyond the first.
    IncompleteGamma beyond_first(double n) const
    {
        return n > 0 ? incomplete_gamma(n, nu_) : IncompleteGamma{1, 0};
    }

    double nu_;
};

template <typename Model>
MassMeans means(const Model& model, const GridEnds& grid, std::optional<double> exponent)
{
    return {.inverse = model.inverse(),
            .first = model.first(),
            .second = model.second(),
            .third = model.third(),
            .viscosity = exponent ? model.mean_power(*exponent) : 0,
            .below = model.below(grid.first),
            .above = model.above(grid.last)};
}

template <typename Function>
auto with_model(const ModelDistribution& d, Function function)
{
    if (d.model == ChainLengthModel::log_normal) return function(LogNormal{d});
    if (d.model == ChainLengthModel::schulz_zimm) return function(SchulzZimm{d});
    return function(Poisson{d});
}

}  // namespace

MassMeans model_means(const ModelDistribution& distribution, const GridEnds& grid,
                      std::optional<double> exponent)
{
    return with_model(distribution, [&](const auto& model) { return means(model, grid, exponent); });
}

double model_height(const ModelDistribution& distribution, double x)
{
    return with_model(distribution, [x](const auto& model) { return model.height(x); });
}

double schulz_zimm_viscosity_average(double mn, double dispersity, double exponent)
{
    if (!(dispersity > 1)) return mn;
    const SchulzZimm model{{ChainLengthModel::schulz_zimm, mn, dispersity}};
    return std::pow(model.mean_power(exponent), 1 / exponent);
}

}  // namespace app

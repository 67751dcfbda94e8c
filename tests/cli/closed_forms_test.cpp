#include "app/evaluation/closed_forms.h"

#include <gtest/gtest.h>

#include <cmath>

#include "app/evaluation/chain_length_models.h"

namespace {

using app::ChainLengthModel;
using app::MassMeans;

constexpr double exponent = 0.7;

MassMeans of_site(double tau, double beta)
{
    return app::site_means({tau, beta, 1}, {1, 5000}, exponent);
}

MassMeans of_model(ChainLengthModel model, double pn, double dispersity, const app::GridEnds& grid)
{
    return app::model_means({model, pn, dispersity}, grid, exponent);
}

MassMeans of_mixture()
{
    app::MassWeightedMeans first, all;
    first.add(1, of_site(0.004, 0.002));
    all.add(first);
    all.add(3, of_site(0.0005, 0));
    return *all.mean();
}

// Expected: Simpson's rule over ln x with 40 000 intervals on the weight fractions per segment; of the
// Poisson distribution sums over whole chain lengths.
TEST(ClosedForms, HaveTheAveragesOfTheirWeightFractions)
{
    const app::GridEnds wide{1, 5000};
    const struct {
        const char* name;
        MassMeans means;
        double pn, pw, pz, pz1, pv, below, above;
    } rows[] = {
        {"site", of_site(0.004, 0.002), 200, 388.8888888889, 571.4285714286, 750, 363.1471452451,
         1.1964053957e-05, 1.69372976e-11},
        {"mixture of sites", of_mixture(), 615.384615385, 3097.2222222222, 5829.5964125561, 7977.6923076923,
         2701.4930918024, 3.0847322451e-06, 0.215473121392},
        {"log-normal", of_model(ChainLengthModel::log_normal, 200, 2.5, wide), 200, 500, 1250, 3125,
         435.7917486978, 9.068897021e-10, 0.0019627927077},
        {"Schulz-Zimm", of_model(ChainLengthModel::schulz_zimm, 300, 1.5, wide), 300, 450, 600, 750,
         428.6018330926, 4.9136459688e-08, 1.96918938e-12},
        {"narrow Schulz-Zimm", of_model(ChainLengthModel::schulz_zimm, 300, 1.05, {250, 400}), 300, 315, 330,
         345, 312.7652832869, 0.17215995466, 0.11286441325},
        {"Poisson", of_model(ChainLengthModel::poisson, 50, 0, {40, 60}), 50, 50.98, 51.9415457042,
         52.8859885649, 50.8350041008, 0.0459067367434, 0.0897831970431},
    };
    for (const auto& r : rows) {
        SCOPED_TRACE(r.name);
        const auto expect_near = [](double seen, double expected) {
            EXPECT_NEAR(seen, expected, 3e-10 * expected);
        };
        expect_near(1 / r.means.inverse, r.pn);
        expect_near(r.means.first, r.pw);
        expect_near(r.means.second / r.means.first, r.pz);
        expect_near(r.means.third / r.means.second, r.pz1);
        expect_near(std::pow(r.means.viscosity, 1 / exponent), r.pv);
        EXPECT_NEAR(r.means.below, r.below, 1e-10);
        EXPECT_NEAR(r.means.above, r.above, 1e-10);
    }
}

// Between one chain length and the most probable distribution, for which Mv = Mn·Γ(2 + a)^(1/a).
TEST(ClosedForms, ViscosityAverageOfASchulzZimmDistributionHasBothLimits)
{
    EXPECT_EQ(app::schulz_zimm_viscosity_average(1e5, 1, exponent), 1e5);
    EXPECT_NEAR(app::schulz_zimm_viscosity_average(1e5, 1 + 1e-9, exponent), 1e5, 1e-3);
    EXPECT_NEAR(app::schulz_zimm_viscosity_average(1e5, 2, 1), 2e5, 1e-6);
    EXPECT_NEAR(app::schulz_zimm_viscosity_average(1e5, 2, exponent),
                1e5 * std::pow(std::tgamma(2 + exponent), 1 / exponent), 1e-6);
}

}  // namespace

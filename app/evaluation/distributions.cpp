#include "app/evaluation/distributions.h"

#include <numbers>

#include "app/evaluation/distribution_checks.h"
#include "app/evaluation/reactors.h"
#include "app/evaluation/stream_list.h"
#include "app/routines/chain_length_distribution.h"
#include "app/routines/publication.h"
#include "src/numeric/trapezoid_averages.h"

namespace app {

namespace {

using minihost::Host;

routines::CurveForm form_of(bool is_gpc)
{
    return is_gpc ? routines::CurveForm::gpc : routines::CurveForm::weight_fraction;
}

routines::AccumulatedDistribution accumulate(const Distribution& distribution,
                                             const DistributionSection& section)
{
    routines::AccumulatedDistribution made{static_cast<std::size_t>(distribution.points),
                                           distribution.longest_chain, section.sites.size(),
                                           form_of(distribution.is_gpc)};
    for (const auto& increment : section.increments) {
        routines::SiteParameters sites;
        for (const auto& site : increment) {
            sites.tau.push_back(site.tau);
            sites.beta.push_back(site.beta);
            sites.amount.push_back(site.amount);
        }
        made.add(sites);
    }
    return made;
}

void add_section(const DistributionSection& section, const routines::AccumulatedDistribution& made,
                 DistributionResults& results)
{
    if (!section.name.id.empty())
        results.curves.push_back(
            {section_curve_name(section), Curve::Kind::section, made.amount(), made.composite(), {}});
    for (std::size_t j = 0; j < section.sites.size(); ++j)
        results.curves.push_back(
            {site_curve_name(section, j), Curve::Kind::site, made.amount(j), made.site(j), {}});
}

// Calls visit(area, left-hand length, right-hand length) for each trapezoid of a curve.
template <class Visit>
void visit_trapezoids(const DistributionResults& r, const Curve& curve, Visit visit)
{
    const auto point = [](Int k) { return static_cast<std::size_t>(k - 1); };
    polyprops::numeric::visit_trapezoids(
        std::ssize(r.lengths), [&](Int k) { return r.lengths[point(k)]; },
        [&](Int k) { return r.height(curve, point(k)); }, visit);
}

CurveAverages averages(const DistributionResults& r, const Curve& curve)
{
    polyprops::numeric::TrapezoidSums sums;
    double over_left = 0;
    double times_left = 0;
    visit_trapezoids(r, curve, [&](double area, double left, double right) {
        sums.add(area, right);
        over_left += area / left;
        times_left += area * left;
    });
    CurveAverages result;
    result.area = sums.area;
    if (!(result.area > 0)) return {};  // made nothing, or nothing that the grid reaches
    // The report does not divide those of a composite by its area.
    const double share = curve.kind == Curve::Kind::site ? result.area : 1.0;
    result.pn = share / sums.over_length;
    result.pw = sums.times_length / share;
    result.pdi = result.pw / result.pn;
    result.pn_spread = over_left / sums.over_length - 1;
    result.pw_spread = 1 - times_left / sums.times_length;
    return result;
}

std::vector<double> cumulative(const DistributionResults& r)
{
    std::vector<double> sums{0.0};
    visit_trapezoids(r, r.composite(),
                     [&](double area, double, double) { sums.push_back(sums.back() + area); });
    return sums;
}

DistributionResults curves(const Distribution& distribution)
{
    DistributionResults results;
    results.name = distribution.name.id;
    results.is_gpc = distribution.is_gpc;
    results.segment_weight = distribution.segment_weight;
    results.curves.push_back({"composite",
                              Curve::Kind::composite,
                              0.0,
                              std::vector<double>(static_cast<std::size_t>(distribution.points)),
                              {}});
    for (const auto& section : distribution.sections) {
        const auto made = accumulate(distribution, section);
        auto& composite = results.curves.front();
        routines::mix_in(made.composite(), made.amount(), composite.values, composite.amount);
        add_section(section, made, results);
        results.lengths = made.lengths();
    }
    return results;
}

// Moments of all polymer of the stream that a distribution is compared with.
struct StreamPolymer {
    routines::StreamMoments moments;
    double mean_segment_weight;  // g/mol; 0 without polymer
};

std::optional<StreamPolymer> polymer_of(const Distribution& distribution, Host& host)
{
    if (!distribution.stream) return {};
    const auto& view = host.streams().view(distribution.stream->id);
    const auto by_component = molecular_weights(host);
    const auto sites = site_types(host);
    return StreamPolymer{routines::stream_moments(view, by_component, sites),
                         routines::polymer_held(view, by_component, sites).mean_segment_weight.back()};
}

void add_molecular_weights(DistributionResults& results)
{
    if (!results.segment_weight) return;
    for (auto& curve : results.curves) {
        curve.averages.mn = curve.averages.pn * *results.segment_weight;
        curve.averages.mw = curve.averages.pw * *results.segment_weight;
    }
    for (const double x : results.lengths) results.molecular_weights.push_back(x * *results.segment_weight);
}

DistributionResults evaluate(const Distribution& distribution, Host& host)
{
    auto results = curves(distribution);
    for (auto& curve : results.curves) curve.averages = averages(results, curve);
    results.cumulative = cumulative(results);
    for (std::size_t k = 0; k < results.lengths.size(); ++k)
        results.chromatogram.push_back(std::numbers::ln10 *
                                       (results.lengths[k] * results.height(results.composite(), k)));
    const auto polymer = polymer_of(distribution, host);
    if (polymer && !results.segment_weight && polymer->mean_segment_weight > 0)
        results.segment_weight = polymer->mean_segment_weight;
    add_molecular_weights(results);
    results.checks = curve_checks(distribution, results, polymer ? &polymer->moments : nullptr);
    return results;
}

}  // namespace

std::vector<DistributionResults> evaluate_distributions(const Case& input, Host& host)
{
    std::vector<DistributionResults> results;
    for (const auto& distribution : input.distributions) results.push_back(evaluate(distribution, host));
    return results;
}

void publish(const DistributionResults& results, Host& host)
{
    std::vector<std::vector<double>> sections;
    for (const auto& curve : results.curves)
        if (curve.kind == Curve::Kind::section) sections.push_back(curve.values);
    // One section without a name is the composite.
    if (sections.empty()) sections.push_back(results.composite().values);
    routines::publish_distribution(host, results.name, form_of(results.is_gpc), results.lengths,
                                   results.composite().values, sections);
}

}  // namespace app

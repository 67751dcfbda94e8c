#include "app/evaluation/distributions.h"

#include <fmt/format.h>

#include <set>

#include "app/evaluation/chain_length_models.h"
#include "app/evaluation/distribution_averages.h"
#include "app/evaluation/distribution_checks.h"
#include "app/evaluation/reactors.h"
#include "app/evaluation/stream_list.h"
#include "app/io/distinct_name.h"
#include "app/routines/chain_length_distribution.h"
#include "app/routines/publication.h"

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

// Collects the curves of a distribution. Every curve gets its share of the composite at the end.
class CurveCollector {
public:
    CurveCollector(const Distribution& distribution, DistributionResults& results)
        : distribution_(distribution),
          results_(results),
          composite_{"composite", Curve::Kind::composite,
                     0.0,         std::vector<double>(static_cast<std::size_t>(distribution.points)),
                     {},          {},
                     {}}
    {
        // A distribution without sites has a grid all the same.
        results_.lengths = accumulate(distribution, {}).lengths();
        grid_ = {results_.lengths.front(), results_.lengths.back()};
    }

    void add(const DistributionSection& section)
    {
        const auto made = accumulate(distribution_, section);
        routines::mix_in(made.composite(), made.amount(), composite_.values, composite_.amount);
        results_.parts.push_back(made.composite());
        const auto means = means_of_sites(section);
        MassWeightedMeans all;
        for (const auto& site : means) all.add(site);
        means_.add(all);
        if (!section.name.id.empty())
            add(section_curve_name(section), Curve::Kind::section, made.amount(), made.composite(),
                made.amount(), all);
        for (std::size_t j = 0; j < section.sites.size(); ++j)
            add(site_curve_name(section, j), Curve::Kind::site, made.amount(j), made.site(j), made.amount(),
                means[j]);
    }

    void add(const DistributionComponent& component, double pn)
    {
        const ModelDistribution model{component.model, pn, component.dispersity};
        std::vector<double> values;
        for (const double x : results_.lengths)
            values.push_back((distribution_.is_gpc ? x : 1) * model_height(model, x));
        routines::mix_in(values, component.amount, composite_.values, composite_.amount);
        MassWeightedMeans means;
        means.add(component.amount, model_means(model, grid_, distribution_.mark_houwink_exponent));
        means_.add(means);
        add("component " + component.name.id, Curve::Kind::component, component.amount, values,
            component.amount, means);
        results_.parts.push_back(std::move(values));
    }

    void finish()
    {
        // One section without a name is the composite.
        if (results_.parts.size() == 1 && parts_.front().kind == Curve::Kind::site)
            results_.parts.front() = composite_.values;
        composite_.averages = averages(means_);
        std::set<std::string> taken{composite_.name};
        for (auto& part : parts_) part.name = distinct_name(part.name, taken);
        for (std::size_t i = 0; i < parts_.size(); ++i)
            for (auto& value : parts_[i].values) value *= wholes_[i] / composite_.amount;
        results_.curves.push_back(std::move(composite_));
        for (auto& part : parts_) results_.curves.push_back(std::move(part));
    }

private:
    std::vector<MassWeightedMeans> means_of_sites(const DistributionSection& section) const
    {
        std::vector<MassWeightedMeans> means(section.sites.size());
        for (const auto& increment : section.increments)
            for (std::size_t j = 0; j < means.size(); ++j)
                means[j].add(increment[j].amount,
                             site_means(increment[j], grid_, distribution_.mark_houwink_exponent));
        return means;
    }

    std::optional<DistributionAverages> averages(const MassWeightedMeans& means) const
    {
        return closed_averages(means, results_.segment_weight, distribution_.mark_houwink_exponent);
    }

    // `values` are scaled to an amount, the whole.
    void add(std::string name, Curve::Kind kind, double amount, std::vector<double> values, double whole,
             const MassWeightedMeans& means)
    {
        parts_.push_back({std::move(name), kind, amount, std::move(values), {}, averages(means), {}});
        wholes_.push_back(whole);
    }

    const Distribution& distribution_;
    DistributionResults& results_;
    GridEnds grid_;
    Curve composite_;
    MassWeightedMeans means_;
    std::vector<Curve> parts_;
    std::vector<double> wholes_;
};

// Segments per chain of a component. Empty with an error when it is not known or not that of a chain.
std::optional<double> chain_length(const DistributionComponent& component, DistributionResults& results)
{
    const auto refuse = [&](const std::string& why) {
        results.warnings.push_back({component.name.source,
                                    fmt::format("distributions.{}: component {} is left out: {}",
                                                results.name, component.name.id, why),
                                    Severity::error});
        return std::optional<double>{};
    };
    if (component.dpn) return component.dpn;
    if (!results.segment_weight)
        return refuse("the stream has no polymer to give a segment weight; expected a segment_weight");
    const double pn = *component.mn / *results.segment_weight;
    if (pn > 1) return pn;
    return refuse(fmt::format("mn is {:g}; expected more than a segment weighs, {:g} g/mol", *component.mn,
                              *results.segment_weight));
}

void add_curves(const Distribution& distribution, DistributionResults& results)
{
    CurveCollector curves{distribution, results};
    for (const auto& section : distribution.sections) curves.add(section);
    for (const auto& component : distribution.components)
        if (const auto pn = chain_length(component, results)) curves.add(component, *pn);
    curves.finish();
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

DistributionResults evaluate(const Distribution& distribution, Host& host)
{
    DistributionResults results;
    results.name = distribution.name.id;
    results.is_gpc = distribution.is_gpc;
    results.segment_weight = distribution.segment_weight;
    results.exponent = distribution.mark_houwink_exponent;
    const auto polymer = polymer_of(distribution, host);
    if (polymer && !results.segment_weight && polymer->mean_segment_weight > 0)
        results.segment_weight = polymer->mean_segment_weight;
    add_curves(distribution, results);
    if (results.segment_weight)
        for (const double x : results.lengths)
            results.molecular_weights.push_back(x * *results.segment_weight);
    add_grid_averages(results);
    if (polymer) results.checks = curve_checks(distribution, results, polymer->moments);
    results.notes = distribution_notes(distribution);
    const double stream_weight = polymer ? polymer->mean_segment_weight : 0;
    for (auto& warning : distribution_warnings(distribution, results, stream_weight))
        results.warnings.push_back(std::move(warning));
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
    routines::publish_distribution(host, results.name, form_of(results.is_gpc), results.lengths,
                                   results.composite().values, results.parts);
}

}  // namespace app

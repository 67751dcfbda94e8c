#include "cli/evaluation.h"

#include <fmt/format.h>

#include <algorithm>
#include <stdexcept>

#include "cli/curve_tables.h"
#include "cli/load.h"

namespace cli {

namespace {

void add_distributions(Evaluation& e, const MeasuredCurve* measured)
{
    const DistributionResults* held_against = nullptr;
    std::optional<GpcComparison> comparison;
    if (measured) {
        held_against = &e.distribution(measured->distribution);
        comparison = compare(measured->curve, measured->file, *held_against);
    }
    for (const auto& results : e.distributions)
        e.report.sections.push_back(
            distribution_section(results, &results == held_against ? &*comparison : nullptr));
}

}  // namespace

const DistributionResults& Evaluation::distribution(const std::string& name) const
{
    std::vector<std::string_view> names;
    for (const auto& results : distributions) {
        if (results.name == name || (name.empty() && distributions.size() == 1)) return results;
        names.push_back(results.name);
    }
    if (distributions.empty()) throw std::runtime_error{input.file + " has no distribution to compare or to export"};
    throw std::runtime_error{name.empty() ? fmt::format("{} has {} distributions; expected the name of one with "
                                                        "--distribution",
                                                        input.file, distributions.size())
                                          : fmt::format("{} has no distribution \"{}\"{}", input.file, name,
                                                        suggestion(name, names))};
}

Evaluation evaluate_case(Case input, const MeasuredCurve* measured)
{
    Evaluation e;
    e.input = std::move(input);
    e.host = load(e.input);
    e.report = make_report(e.input, evaluate(e.input, *e.host));
    e.distributions = evaluate_distributions(e.input, *e.host);
    add_distributions(e, measured);
    for (const auto& results : evaluate_parameters(e.input)) e.report.sections.push_back(parameter_section(results));
    e.errors = not_finite(e.report);
    e.notes = disagreements(e.distributions);
    return e;
}

}  // namespace cli

#include "app/evaluation/evaluation.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>
#include <stdexcept>

#include "app/report/curve_tables.h"
#include "app/host_setup/loaded_case.h"

namespace app {

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
    if (distributions.empty())
        throw std::runtime_error{input.file + " has no distribution to compare or to export"};
    throw std::runtime_error{
        name.empty()
            ? fmt::format("{} has {} distributions; expected the name of one with "
                          "--distribution",
                          input.file, distributions.size())
            : fmt::format("{} has no distribution \"{}\"{}", input.file, name, suggestion(name, names))};
}

namespace {

// False when the case cannot go on.
bool prepare(Evaluation& e)
{
    e.checked = check_input(e.input);
    for (const auto& message : e.checked.messages)
        e.errors.push_back(fmt::format("{}", fmt::join(lines(message, e.input.file), "\n")));
    const auto unfit = add_streams(e.input, e.checked);
    for (const auto& line : unfit.lines(e.input.file)) e.errors.push_back(line);
    // Values need not fit what is left of a paragraph in error; those of a good one are themselves in error.
    return unfit.empty() || !e.checked.messages.empty();
}

void add(const std::vector<std::string>& lines, const std::string& file, std::vector<std::string>& all)
{
    for (const auto& line : lines) all.push_back(fmt::format("{}: {}", file, line));
}

}  // namespace

Evaluation evaluate_case(Case input, const MeasuredCurve* measured)
{
    Evaluation e;
    e.input = std::move(input);
    e.has_results = prepare(e);
    if (!e.has_results) return e;
    auto& host = *e.checked.host;
    e.report = make_report(e.input, e.checked, evaluate(e.input, host));
    e.distributions = evaluate_distributions(e.input, host);
    add_distributions(e, measured);
    for (const auto& results : evaluate_parameters(e.input))
        e.report.sections.push_back(parameter_section(results));
    add(not_finite(e.report), e.input.file, e.errors);
    add(disagreements(e.distributions), e.input.file, e.notes);
    return e;
}

}  // namespace app

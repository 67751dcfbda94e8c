#include "app/evaluation/evaluation.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>
#include <iterator>
#include <stdexcept>

#include "app/evaluation/contradictions.h"
#include "app/evaluation/distributions.h"
#include "app/evaluation/unused_values.h"
#include "app/host_setup/loaded_case.h"
#include "app/routines/publication.h"

namespace app {

namespace {

using minihost::Host;

// What every evaluation does first; false when the case cannot go on.
template <typename AnyResults>
bool prepare(const Case& input, LoadedCase& loaded, AnyResults& results)
{
    results.messages = loaded.messages();
    results.errors = loaded.add_streams(input).sorted();
    // Values need not fit a paragraph from which entries in error were dropped.
    results.is_complete = results.errors.empty() || !results.messages.empty();
    return results.is_complete;
}

CompositeCurve composite_curve(const DistributionResults& results)
{
    CompositeCurve curve{results.name, results.is_gpc, required_segment_weight(results), results.lengths, {}};
    for (std::size_t k = 0; k < results.lengths.size(); ++k)
        curve.heights.push_back(results.lengths[k] * results.height(results.composite(), k));
    return curve;
}

void add_comparison(const Case& input, const EvaluationOptions& options, Results& results)
{
    if (!options.measured) return;
    auto& distribution = results.distributions[find_distribution(input, options.measured_distribution)];
    auto measured = *options.measured;
    if (!measured.mark_houwink_exponent) measured.mark_houwink_exponent = distribution.exponent;
    for (auto& text : cut_ends(*options.measured))
        distribution.warnings.push_back(
            {no_position(), std::move(text), Severity::warning, options.measured->file});
    distribution.measured = compare(measured, composite_curve(distribution));
}

void summarize(const std::string& stream, Host& host)
{
    const auto polymer =
        routines::polymer_held(host.streams().view(stream), molecular_weights(host), site_types(host));
    if (polymer.mass.back() > 0) routines::publish_sites(host, stream, polymer);
}

LibraryOutput publish_all(const Case& input, const Results& results, Host& host)
{
    host.report().set_lines_per_page(input.settings.lines_per_page);
    for (const auto& distribution : results.distributions) publish(distribution, host);
    for (const auto& stream : input.streams) summarize(stream.name.id, host);
    return {host.report().pages(), host.summary().text()};
}

void append(std::vector<Diagnostic> found, std::vector<Diagnostic>& all)
{
    std::ranges::move(found, std::back_inserter(all));
}

void add_warnings(const Case& input, Host& host, Results& results)
{
    for (const auto& stream : input.streams)
        append(contradictions(stream, input.settings, host), results.warnings);
    append(oligomer_contradictions(input), results.warnings);
    append(unused_values(input, results.streams, host), results.warnings);
    std::ranges::stable_sort(results.warnings, {}, &Diagnostic::source);
    for (const auto& distribution : results.distributions) append(distribution.warnings, results.warnings);
}

}  // namespace

Results evaluate(const Case& input, const EvaluationOptions& options)
{
    Results results;
    results.warnings = input.warnings;
    LoadedCase loaded{input};
    if (!prepare(input, loaded, results)) return results;
    auto& host = loaded.host();
    results.reactors = evaluate_reactors(input, host);
    results.streams = evaluate_streams(input, host);
    results.distributions = evaluate_distributions(input, host);
    add_comparison(input, options, results);
    results.parameters = evaluate_parameters(input);
    add_warnings(input, host, results);
    if (options.library_output) results.library_output = publish_all(input, results, host);
    return results;
}

ConversionResults evaluate_conversion(const Case& input, const std::string& stream, Basis from, Basis to)
{
    ConversionResults results;
    results.stream = stream;
    results.warnings = input.warnings;
    LoadedCase loaded{input};
    if (!prepare(input, loaded, results)) return results;
    results.compositions = convert(stream, from, to, loaded.host());
    const auto found = std::ranges::find(input.streams, stream, [](const auto& s) { return s.name.id; });
    append(contradictions(*found, input.settings, loaded.host()), results.warnings);
    return results;
}

std::size_t find_distribution(const Case& input, const std::string& name)
{
    std::vector<std::string_view> names;
    for (const auto& distribution : input.distributions) {
        if (distribution.name.id == name || (name.empty() && input.distributions.size() == 1))
            return names.size();
        names.push_back(distribution.name.id);
    }
    if (names.empty()) throw std::runtime_error{input.file + " has no distribution to compare or to export"};
    throw std::runtime_error{
        name.empty()
            ? fmt::format("{} has {} distributions; expected the name of one: {}", input.file, names.size(),
                          fmt::join(names, ", "))
            : fmt::format("{} has no distribution \"{}\"{}", input.file, name, suggestion(name, names))};
}

double required_segment_weight(const DistributionResults& distribution)
{
    if (!distribution.segment_weight)
        throw std::runtime_error{fmt::format(
            "distributions.{} has no segment weight to turn chain lengths into molecular weights; expected a "
            "segment_weight, or a stream with polymer",
            distribution.name)};
    return *distribution.segment_weight;
}

}  // namespace app

#include "app/case/natural_inputs.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>

#include "app/case/chain_moments.h"
#include "app/case/stream_mixes.h"

namespace app {

namespace {

constexpr double tolerance = 1e-6;  // relative, of a value given beside the one that follows

double difference(double a, double b)
{
    return a == b ? 0 : std::abs(a - b) / std::max(std::abs(a), std::abs(b));
}

// Names the element that differs most.
void compare(const AttributeValue& given, const std::vector<double>& elements,
             const std::vector<double>& follows, const SourcePosition& chains, Case& input)
{
    if (elements.size() != follows.size()) return;  // reported when the values are put into the host
    std::size_t worst = 0;
    for (std::size_t i = 1; i < elements.size(); ++i)
        if (difference(elements[i], follows[i]) > difference(elements[worst], follows[worst])) worst = i;
    const auto most = difference(elements[worst], follows[worst]);
    if (most <= tolerance) return;
    const auto element = elements.size() > 1 ? fmt::format("[{}]", worst + 1) : "";
    input.warnings.push_back(
        {given.name.source,
         fmt::format(
             "{}{} is {:.6g}, but {:.6g} follows from {}: a difference of {:.3g} %; the given value is used",
             given.name.source.key, element, elements[worst], follows[worst], chains.key, 100 * most),
         Severity::warning});
}

void add_attributes(const PolymerChains& chains, ChainMoments moments, Stream& stream, Case& input)
{
    const auto segments = segments_of(input);
    const auto& [id, source] = chains.polymer;
    // Mz stays that of the chains when SMOM is given.
    if (const auto second = number_of(stream, id, "SMOM"); second && moments.third && *moments.second > 0)
        *moments.third *= *second / *moments.second;
    for (const auto& name : carried_attributes(input, id)) {
        auto values = attribute_values(moments, name);
        if (values.empty()) continue;
        if (const auto* given = find_attribute(stream, id, name))
            compare(*given, by_position(*given, segments), values, source, input);
        else
            stream.attributes.push_back({chains.polymer, {name, source}, std::move(values), {}, true});
    }
}

double molecular_weight(const Case& input, const std::string& id)
{
    return input.find(id)->molecular_weight.value_or(0);
}

// The library takes what is not between the bounds for nothing, and other averages for those given.
bool are_within_bounds(const ChainMoments& moments, const SourcePosition& source, const Settings& settings,
                       Diagnostics& diagnostics)
{
    const std::pair<const char*, std::optional<double>> all[] = {
        {"ZMOM", moments.zeroth}, {"FMOM", moments.first}, {"SMOM", moments.second}, {"TMOM", moments.third}};
    for (const auto& [name, moment] : all) {
        const double value = moment.value_or(0);
        if (value == 0 || (value > settings.zero_bound && value < settings.missing_value_bound)) continue;
        diagnostics.add(
            source, fmt::format("{}: {} is {:.6g} kmol/h; expected 0, or more than the zero bound, "
                                "{}, and less than the missing value bound, {}",
                                source.key, name, value, settings.zero_bound, settings.missing_value_bound));
        return false;
    }
    return true;
}

void apply(Stream& stream, Case& input, Diagnostics& diagnostics)
{
    for (const auto& [component, mass] : stream.mass_flows)
        stream.flows.push_back({component, mass / molecular_weight(input, component.id)});
    for (const auto& chains : stream.chains) {
        const auto moments = chain_moments(chains, segments_of(input), diagnostics);
        if (!moments || !are_within_bounds(*moments, chains.polymer.source, input.settings, diagnostics))
            continue;
        stream.flows.push_back({chains.polymer, moments->mass / molecular_weight(input, chains.polymer.id)});
        add_attributes(chains, *moments, stream, input);
    }
}

}  // namespace

void apply_natural_inputs(Case& input, Diagnostics& diagnostics)
{
    for (auto& stream : input.streams) apply(stream, input, diagnostics);
    if (diagnostics.empty()) mix_streams(input, diagnostics);
}

}  // namespace app

// Mixtures of streams.
//
// Flows and attributes that are amounts per time add up, each times the factor of its stream, in the order of
// the streams. Other attributes are formed anew from the moments of the mixture.
#include "app/case/stream_mixes.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>

#include "app/case/chain_moments.h"
#include "minihost/attributes.h"

namespace app {

namespace {

constexpr double mass_average_tolerance = 1e-4;  // relative

struct Part {
    const Stream* stream;
    double factor;
};
using Parts = std::vector<Part>;

double flow_of(const Stream& stream, const std::string& component)
{
    for (const auto& flow : stream.flows)
        if (flow.component.id == component) return flow.value;
    return 0;
}

bool holds(const Stream& stream, const std::string& component)
{
    return flow_of(stream, component) > 0 ||
           std::ranges::any_of(stream.attributes,
                               [&](const AttributeValue& value) { return value.component.id == component; });
}

// One component of a mixture.
class ComponentMix {
public:
    ComponentMix(const Component& component, Parts parts, Case& input, const Mix& mix,
                 Diagnostics& diagnostics)
        : component_(component),
          parts_(std::move(parts)),
          input_(input),
          mix_(mix),
          segments_(segments_of(input)),
          diagnostics_(diagnostics)
    {
    }

    void add_to(Stream& stream)
    {
        double flow = 0;
        for (const auto& [part, factor] : parts_) flow += factor * flow_of(*part, component_.id);
        stream.flows.push_back({{component_.id, mix_.source}, flow});
        std::vector<std::string> averages;
        for (auto& name : carried_attributes(input_, component_.id)) {
            const auto* kind = minihost::find_attribute_kind(name);
            if (!kind || !is_given(name)) continue;
            if (kind->extensive)
                add(stream, name, sum(name));
            else
                averages.push_back(std::move(name));
        }
        if (!diagnostics_.empty()) return;
        const auto moments = moments_of(stream);
        compare_mass_average(moments);
        for (const auto& name : averages) add(stream, name, average(name, moments));
    }

private:
    bool is_given(const std::string& name) const
    {
        return std::ranges::any_of(parts_, [&](const Part& part) {
            return find_attribute(*part.stream, component_.id, name) != nullptr;
        });
    }

    void add(Stream& stream, const std::string& name, std::vector<double> values) const
    {
        if (!values.empty())
            stream.attributes.push_back(
                {{component_.id, mix_.source}, {name, mix_.source}, std::move(values), {}, true});
    }

    void refuse(const std::string& why) const
    {
        diagnostics_.add(mix_.source, fmt::format("{}: {}", mix_.source.key, why));
    }

    std::vector<double> sum(const std::string& name) const
    {
        std::vector<double> whole;
        for (const auto& [stream, factor] : parts_) {
            const auto* value = find_attribute(*stream, component_.id, name);
            if (!value) {
                refuse(
                    fmt::format("streams.{} gives no {} of {}; expected one, since another stream gives it",
                                stream->name.id, name, component_.id));
                return {};
            }
            const auto part = by_position(*value, segments_);
            whole.resize(std::max(whole.size(), part.size()));
            for (std::size_t i = 0; i < part.size(); ++i) whole[i] += factor * part[i];
        }
        return whole;
    }

    // A component of one stream keeps its averages.
    std::vector<double> average(const std::string& name, const ChainMoments& moments) const
    {
        if (parts_.size() == 1)
            return by_position(*find_attribute(*parts_.front().stream, component_.id, name), segments_);
        auto values = attribute_values(moments, name);
        if (values.empty())
            refuse(fmt::format(
                "{} of {} cannot be mixed; expected one that follows from ZMOM, FMOM, SMOM, TMOM and "
                "SFLOW",
                name, component_.id));
        return values;
    }

    // Moments count segments: sums of them give Mw by mass only where the chains are of one segment weight.
    void compare_mass_average(const ChainMoments& whole) const
    {
        double mass = 0;
        double by_mw = 0;
        for (const auto& [stream, factor] : parts_) {
            const auto part = moments_of(*stream);
            if (!has_mw(part)) return;
            mass += factor * part.mass;
            by_mw += factor * part.mass * mw(part);
        }
        if (!has_mw(whole) || !(mass > 0)) return;
        const double by_mass = by_mw / mass;
        if (!(std::abs(mw(whole) - by_mass) > mass_average_tolerance * by_mass)) return;
        input_.warnings.push_back(
            {mix_.source,
             fmt::format("{}: chains of {} differ in their segment weights; moments count segments, so that "
                         "Mw is {:.6g} g/mol in the results, but {:.6g} g/mol by mass; Mz and dispersity "
                         "differ likewise",
                         mix_.source.key, component_.id, mw(whole), by_mass),
             Severity::warning});
    }

    static bool has_mw(const ChainMoments& m) { return m.second && m.first.value_or(0) > 0; }
    static double mw(const ChainMoments& m) { return *m.second / *m.first * (m.mass / *m.first); }

    ChainMoments moments_of(const Stream& stream) const
    {
        const auto number = [&](const char* name) { return number_of(stream, component_.id, name); };
        ChainMoments moments{number("ZMOM"), number("FMOM"), number("SMOM"), number("TMOM"), {}, 0};
        if (const auto* flows = find_attribute(stream, component_.id, "SFLOW"))
            moments.segment_flows = by_position(*flows, segments_);
        double segments = 0;
        for (std::size_t s = 0; s < std::min(segments_.size(), moments.segment_flows.size()); ++s) {
            segments += moments.segment_flows[s];
            moments.mass += moments.segment_flows[s] * segments_[s]->molecular_weight.value_or(0);
        }
        if (!moments.first && segments > 0) moments.first = segments;
        return moments;
    }

    const Component& component_;
    Parts parts_;
    Case& input_;
    const Mix& mix_;
    Segments segments_;
    Diagnostics& diagnostics_;
};

class Mixer {
public:
    Mixer(Case& input, Diagnostics& diagnostics) : input_(input), diagnostics_(diagnostics) {}

    void mix(Stream& stream)
    {
        if (!stream.mix || std::ranges::find(done_, &stream) != done_.end()) return;
        done_.push_back(&stream);
        const auto all = parts(*stream.mix);
        if (!diagnostics_.empty()) return;
        for (const auto& component : input_.components) {
            Parts holding;
            std::ranges::copy_if(all, std::back_inserter(holding),
                                 [&](const Part& part) { return holds(*part.stream, component.id); });
            if (!holding.empty())
                ComponentMix{component, holding, input_, *stream.mix, diagnostics_}.add_to(stream);
        }
    }

private:
    // In the order of the streams of the case; a factor of 0 takes nothing.
    Parts parts(const Mix& mix)
    {
        Parts parts;
        for (auto& stream : input_.streams)
            for (const auto& [name, factor] : mix.parts)
                if (name.id == stream.name.id && factor > 0) {
                    this->mix(stream);
                    parts.push_back({&stream, factor});
                }
        return parts;
    }

    Case& input_;
    Diagnostics& diagnostics_;
    std::vector<const Stream*> done_;
};

}  // namespace

void mix_streams(Case& input, Diagnostics& diagnostics)
{
    Mixer mixer{input, diagnostics};
    for (auto& stream : input.streams) mixer.mix(stream);
}

}  // namespace app

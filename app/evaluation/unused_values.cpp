#include "app/evaluation/unused_values.h"

#include <fmt/format.h>

#include <algorithm>

#include "app/evaluation/average_sources.h"
#include "app/evaluation/comparison.h"
#include "app/evaluation/reactors.h"

namespace app {

namespace {

using minihost::Host;
using Segments = std::vector<GivenSegment>;

constexpr const char* weight_unit = "g/mol";

double ratio(double a, double b)
{
    return b > 0 ? a / b : 0;
}

// Averages of the chains of a site type by its moments; 0 where nothing is made.
struct SiteMoments {
    double zeroth;
    double first;
    double second;
    double mass;  // kg/h

    double dpn() const { return ratio(first, zeroth); }
    double dpw() const { return ratio(second, first); }
    double pdi() const { return ratio(dpw(), dpn()); }
    double mwn() const { return ratio(mass, zeroth); }
    double mww() const { return pdi() * mwn(); }
};

std::vector<SiteMoments> site_moments(const GivenPolymer& polymer, const Segments& segments)
{
    std::vector<SiteMoments> sites;
    for (std::size_t t = 0; t < polymer.elements("SZMOM").size(); ++t) {
        SiteMoments site{polymer.elements("SZMOM")[t], 0, polymer.elements("SSMOM")[t], 0};
        for (std::size_t s = 0; s < segments.size(); ++s) {
            const double flow = polymer.elements("SSFLOW")[t * segments.size() + s];
            site.first += flow;
            site.mass += segments[s].molecular_weight * flow;
        }
        sites.push_back(site);
    }
    return sites;
}

class Warnings {
public:
    void unused(const SourcePosition& source, const Quantity& given, const Quantity& taken,
                const std::string& why = {})
    {
        add(source, fmt::format("{}, but is not used{}: {}; {}", shown(given), why, shown(taken),
                                difference(given, taken)));
    }
    void without_effect(const SourcePosition& source, const std::string& given, const std::string& why)
    {
        add(source, fmt::format("{} is not used: {}", given, why));
    }
    void absent(const SourcePosition& source, std::string text) { add(source, std::move(text)); }
    std::vector<Diagnostic> take() { return std::move(found_); }

private:
    void add(const SourcePosition& source, std::string text)
    {
        found_.push_back({source, std::move(text), Severity::warning});
    }

    std::vector<Diagnostic> found_;
};

// A polymer of a stream, its results, and whether its stream is that of a reactor or distribution.
struct Polymer {
    GivenPolymer given;
    AverageSources sources;
    const ChainAverages& averages;
    bool has_moments_compared;
};

class UnusedAttributes {
public:
    UnusedAttributes(const Polymer& polymer, const Segments& segments, bool has_site_results,
                     Warnings& warnings)
        : given_(polymer.given),
          polymer_(polymer),
          segments_(segments),
          has_site_results_(has_site_results),
          warnings_(warnings)
    {
    }

    void name(const Case& input)
    {
        name_passed_over();
        name_averages();
        name_z_averages();
        if (input.settings.pdi_from_parameters && !polymer_.has_moments_compared) name_second_moment();
        name_site_averages();
        name_fractions();
        name_site_moments();
    }

private:
    void unused(const char* attribute, const char* unit, const Quantity& taken)
    {
        if (given_.states(attribute))
            warnings_.unused(given_.source(attribute), {given_.key(attribute), given_.value(attribute), unit},
                             taken);
    }

    void unused(const char* attribute, const std::string& why)
    {
        if (given_.states(attribute))
            warnings_.without_effect(given_.source(attribute), given_.key(attribute), why);
    }

    // Of several elements the one that differs most is enough.
    void unused(const char* attribute, const char* unit, const char* taken_name,
                const std::vector<double>& taken)
    {
        const auto& given = given_.elements(attribute);
        if (!given_.states(attribute) || given.empty() || taken.size() != given.size()) return;
        std::size_t worst = 0;
        for (std::size_t i = 1; i < given.size(); ++i)
            if (relative_difference(given[i], taken[i]) > relative_difference(given[worst], taken[worst]))
                worst = i;
        warnings_.unused(given_.source(attribute),
                         {fmt::format("{}[{}]", given_.key(attribute), worst + 1), given[worst], unit},
                         {taken_name, taken[worst], unit});
    }

    void name_passed_over()
    {
        const auto& a = polymer_.averages;
        const auto& sources = polymer_.sources;
        if (sources.takes_dpn_parameter) unused("DPN", "", {"DPN from the dpn parameter", a.dpn});
        if (!sources.takes_segment_weight)
            unused("MWSEG", weight_unit,
                   {"the mean segment weight from " + sources.mean_segment_weight, a.mean_segment_weight,
                    weight_unit});
    }

    void name_averages()
    {
        const auto& a = polymer_.averages;
        const auto& sources = polymer_.sources;
        unused("PDI", "", {"Mw/Mn from " + sources.dispersity, a.pdi});
        unused("MWN", weight_unit,
               {fmt::format("Mn from {} with segment weights from {}", sources.length,
                            sources.mean_segment_weight),
                a.mn, weight_unit});
        unused("MWW", weight_unit, {"Mw from " + sources.dispersity, a.mw, weight_unit});
        unused("DPW", "", {"Mw over the mean segment weight", ratio(a.mw, a.mean_segment_weight)});
    }

    void name_z_averages()
    {
        if (!given_.gives_all({"SMOM", "TMOM"}) || !(given_.value("SMOM") > 0)) {
            for (const auto* attribute : {"DPZ", "MWZ", "TMOM"})
                unused(attribute,
                       fmt::format("Mz comes from TMOM and SMOM, which {} does not give", given_.id()));
            return;
        }
        const double dpz = given_.value("TMOM") / given_.value("SMOM");
        unused("DPZ", "", {"TMOM over SMOM", dpz});
        unused("MWZ", weight_unit,
               {"TMOM over SMOM times the mean segment weight", dpz * polymer_.averages.mean_segment_weight,
                weight_unit});
    }

    void name_second_moment()
    {
        if (!given_.states("SMOM") || !given_.gives_all({"ZMOM", "SMOM", "SFLOW"})) return;
        const double f = given_.sum("SFLOW");
        warnings_.unused(given_.source("SMOM"),
                         {given_.key("SMOM") + ": Mw/Mn from ZMOM, SMOM and SFLOW",
                          ratio(given_.value("ZMOM") * given_.value("SMOM"), f * f)},
                         {"Mw/Mn from the pdi parameter", polymer_.averages.pdi},
                         ", since settings.pdi_from is \"parameters\"");
    }

    void name_site_averages()
    {
        const struct {
            const char* attribute;
            const char* unit;
            double (SiteMoments::*average)() const;
        } rows[] = {{"SDPN", "", &SiteMoments::dpn},
                    {"SDPW", "", &SiteMoments::dpw},
                    {"SPDI", "", &SiteMoments::pdi},
                    {"SMWN", weight_unit, &SiteMoments::mwn},
                    {"SMWW", weight_unit, &SiteMoments::mww}};
        const bool is_known = given_.gives_all({"SZMOM", "SSMOM", "SSFLOW"});
        const auto sites = is_known ? site_moments(given_, segments_) : std::vector<SiteMoments>{};
        for (const auto& [attribute, unit, average] : rows) {
            if (!given_.gives(attribute)) continue;
            std::vector<double> taken;
            taken.reserve(sites.size());
            for (const auto& site : sites) taken.push_back((site.*average)());
            if (is_known)
                unused(attribute, unit, "its value from SZMOM, SSMOM and SSFLOW", taken);
            else
                unused(attribute, "no result depends on it");
        }
    }

    void name_fractions()
    {
        if (given_.gives("EFRAC")) {
            if (given_.gives("SFLOW"))
                unused("EFRAC", "", "its share of the end segments in SFLOW", end_fractions());
            else
                unused("EFRAC", "no result depends on it");
        }
        if (given_.gives("SSFRAC")) {
            if (given_.gives("SSFLOW"))
                unused("SSFRAC", "", "its share of SSFLOW", site_fractions());
            else
                unused("SSFRAC", "no result depends on it");
        }
    }

    std::vector<double> end_fractions() const
    {
        std::vector<double> flows;
        double sum = 0;
        for (std::size_t s = 0; s < segments_.size(); ++s)
            if (segments_[s].type == SegmentType::end) {
                flows.push_back(given_.elements("SFLOW")[s]);
                sum += flows.back();
            }
        for (double& flow : flows) flow = ratio(flow, sum);
        return flows;
    }

    std::vector<double> site_fractions() const
    {
        auto flows = given_.elements("SSFLOW");
        for (std::size_t first = 0; first < flows.size(); first += segments_.size()) {
            double sum = 0;
            for (std::size_t s = 0; s < segments_.size(); ++s) sum += flows[first + s];
            for (std::size_t s = 0; s < segments_.size(); ++s)
                flows[first + s] = ratio(flows[first + s], sum);
        }
        return flows;
    }

    void name_site_moments()
    {
        if (!given_.gives("SSFLOW")) unused("SFMOM", "no result depends on it");
        if (has_site_results_) return;
        for (const auto* attribute : {"SZMOM", "SSMOM", "SSFLOW"})
            unused(attribute,
                   "results of site types need polymers.sites, and SZMOM, SSMOM and SSFLOW of every polymer");
    }

    const GivenPolymer& given_;
    const Polymer& polymer_;
    const Segments& segments_;
    bool has_site_results_;
    Warnings& warnings_;
};

// Catalysts give the flows of their sites, which are kept for the host.
bool is_of_catalyst(const AttributeValue& value)
{
    return value.name.id == "CPSFLOW" || value.name.id == "CVSFLOW";
}

bool flows(const Stream& stream, const std::string& id)
{
    return std::ranges::any_of(stream.flows,
                               [&](const Flow& flow) { return flow.component.id == id && flow.value > 0; });
}

void name_values_without_polymer(const Case& input, const Stream& stream, Warnings& warnings)
{
    std::string idle;
    for (const auto& value : stream.attributes) {
        const auto& id = value.component.id;
        const auto* component = input.find(id);
        const auto key = fmt::format("streams.{}.attributes.{}", stream.name.id, id);
        if (!component || value.is_derived || is_of_catalyst(value) || idle == id) continue;
        if (component->component_class != ComponentClass::polymer) {
            warnings.without_effect(value.name.source, fmt::format("{}.{}", key, value.name.id),
                                    id + " is not a polymer");
        } else if (!flows(stream, id)) {
            warnings.without_effect(value.component.source, key, id + " does not flow in this stream");
            idle = id;
        }
    }
}

// Parameters of a component that is no part of any result by chains.
void name_idle_parameters(const Component& component, Warnings& warnings)
{
    const auto why =
        component.id +
        (component.component_class == ComponentClass::segment ? " is a segment" : " flows in no stream");
    if (component.dpn) warnings.without_effect(component.dpn_source, component.dpn_source.key, why);
    if (component.pdi) warnings.without_effect(component.pdi_source, component.pdi_source.key, why);
}

// A parameter that any of the polymer's streams takes is used.
void name_parameters(const Component& component, const std::vector<Polymer>& polymers, Warnings& warnings)
{
    const auto is_of_component = [&](const Polymer& p) { return p.given.id() == component.id; };
    const auto first = std::ranges::find_if(polymers, is_of_component);
    if (first == polymers.end()) return name_idle_parameters(component, warnings);
    const auto is_taken = [&](bool AverageSources::*takes) {
        return std::ranges::any_of(polymers,
                                   [&](const Polymer& p) { return is_of_component(p) && p.sources.*takes; });
    };
    const auto name = [&](const char* key) { return fmt::format("components.{}.{}", component.id, key); };
    const auto taken = [&](const char* average, const std::string& source) {
        return fmt::format("{} in stream {} from {}", average, first->given.stream(), source);
    };
    if (component.dpn && !is_taken(&AverageSources::takes_dpn_parameter))
        warnings.unused(component.dpn_source, {name("dpn"), *component.dpn},
                        {taken("DPN", first->sources.length), first->averages.dpn});
    const bool counts_chains = first->given.carries("ZMOM") || first->given.carries("DPN");
    if (!component.pdi && counts_chains && is_taken(&AverageSources::takes_pdi_parameter))
        warnings.absent(
            component.source,
            fmt::format(
                "{} is not given, but Mw/Mn of {} comes from it where a stream has no usable ZMOM, SMOM "
                "and SFLOW, or settings.pdi_from is \"parameters\": Mw is Mn; expected pdi or SMOM",
                name("pdi"), component.id));
    if (component.pdi && !is_taken(&AverageSources::takes_pdi_parameter))
        warnings.unused(component.pdi_source, {name("pdi"), *component.pdi},
                        {taken("Mw/Mn", first->sources.dispersity), first->averages.pdi});
}

bool has_moments_compared(const Case& input, const std::string& stream)
{
    const auto is_named = [&](const PlacedName& name) { return name.id == stream; };
    return std::ranges::any_of(input.reactors,
                               [&](const auto& r) {
                                   return std::ranges::any_of(r.inlets, is_named) || is_named(r.outlet);
                               }) ||
           std::ranges::any_of(input.distributions,
                               [&](const auto& d) { return d.stream && d.stream->id == stream; });
}

void add_polymers(const Case& input, std::size_t stream, const StreamResults& results,
                  const Segments& segments, Host& host, std::vector<Polymer>& all)
{
    for (auto& given : given_polymers(input.streams[stream], host)) {
        const auto averages = std::ranges::find(results.averages, given.id(), &ChainAverages::component);
        if (averages == results.averages.end()) continue;
        auto sources = average_sources(input.settings, given, segments);
        all.push_back(
            {std::move(given), std::move(sources), *averages, has_moments_compared(input, results.stream)});
    }
}

}  // namespace

std::vector<Diagnostic> unused_values(const Case& input, const std::vector<StreamResults>& results,
                                      Host& host)
{
    Warnings warnings;
    const auto segments = given_segments(host, minihost::read_polymer_input(host));
    std::vector<Polymer> polymers;
    for (std::size_t i = 0; i < results.size(); ++i) {
        name_values_without_polymer(input, input.streams[i], warnings);
        add_polymers(input, i, results[i], segments, host, polymers);
    }
    const bool has_site_results = site_types(host) > 0;
    for (const auto& polymer : polymers)
        UnusedAttributes{polymer, segments, has_site_results, warnings}.name(input);
    for (const auto& component : input.components) {
        if (component.component_class == ComponentClass::polymer)
            name_parameters(component, polymers, warnings);
        else if (component.component_class == ComponentClass::segment)
            name_idle_parameters(component, warnings);
    }
    return warnings.take();
}

}  // namespace app

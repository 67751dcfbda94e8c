// With flows F = Σ SFLOW(s), or FMOM where it is given, of a polymer
//
//   flow · MW = Σ MW(s) · SFLOW(s)                mass
//   FMOM = F,  ZMOM · SMOM ≥ F²,  F · TMOM ≥ SMOM²   moments of chain lengths of at least one segment
//   Σ SZMOM = ZMOM,  Σ SSMOM = SMOM               sums over site types
//   Σ SSFLOW(s) = SFLOW(s),  SFMOM = Σ SSFLOW     over site types; over the segments of a site type
//   SZMOM · SSMOM ≥ (Σ SSFLOW)²                   of each site type
//   end segments = 2 · ZMOM                       linear chains
//   DPN = F / ZMOM;  MWSEG and SFRAC by SFLOW     attributes that are preferred to the moments
#include "app/evaluation/contradictions.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>
#include <cmath>

#include "app/evaluation/average_sources.h"
#include "app/evaluation/comparison.h"

namespace app {

namespace {

constexpr const char* mole_flow = "kmol/h";
using Segments = std::vector<GivenSegment>;

double mass(const std::vector<double>& flows, const Segments& segments)
{
    double sum = 0;
    for (std::size_t s = 0; s < segments.size(); ++s) sum += segments[s].molecular_weight * flows[s];
    return sum;
}

std::vector<double> over_sites(const std::vector<double>& by_site, std::size_t segments)
{
    std::vector<double> sums(segments);
    for (std::size_t i = 0; i < by_site.size(); ++i) sums[i % segments] += by_site[i];
    return sums;
}

std::vector<double> over_segments(const std::vector<double>& by_site, std::size_t segments)
{
    std::vector<double> sums(by_site.size() / segments);
    for (std::size_t i = 0; i < by_site.size(); ++i) sums[i / segments] += by_site[i];
    return sums;
}

std::vector<double> fractions(std::vector<double> values)
{
    double sum = 0;
    for (const double value : values) sum += value;
    if (sum > 0)
        for (double& value : values) value /= sum;
    return values;
}

class PolymerComparisons {
public:
    PolymerComparisons(const GivenPolymer& polymer, const Segments& segments, AverageSources sources,
                       std::vector<Diagnostic>& found)
        : polymer_(polymer), segments_(segments), sources_(std::move(sources)), found_(found)
    {
    }

    void compare()
    {
        if (segments_.empty()) return;
        compare_mass();
        compare_moments();
        compare_sites();
        compare_ends();
        compare_averages();
    }

private:
    bool gives(std::initializer_list<std::string_view> attributes) const
    {
        return polymer_.gives_all(attributes);
    }

    void warn(const SourcePosition& source, std::string text)
    {
        found_.push_back({source, std::move(text), Severity::warning});
    }

    void expect_equal(const SourcePosition& source, const Quantity& given, const Quantity& other,
                      const std::string& use)
    {
        if (agree(given.value, other.value)) return;
        warn(source,
             fmt::format("{}, but {}; {}{}", shown(given), shown(other), difference(given, other), use));
    }

    void expect_equal(std::string_view attribute, const Quantity& other, const std::string& use,
                      const char* unit = mole_flow)
    {
        expect_equal(polymer_.source(attribute), {polymer_.key(attribute), polymer_.value(attribute), unit},
                     other, use);
    }

    // Of several elements the one that differs most is enough.
    template <typename Label>
    void expect_all_equal(std::string_view attribute, const std::vector<double>& given,
                          const std::vector<double>& other, const char* other_name, const char* unit,
                          Label label, const std::string& use)
    {
        std::size_t worst = 0;
        for (std::size_t i = 1; i < given.size(); ++i)
            if (relative_difference(given[i], other[i]) > relative_difference(given[worst], other[worst]))
                worst = i;
        if (!given.empty())
            expect_equal(polymer_.source(attribute),
                         {polymer_.key(attribute) + label(worst), given[worst], unit},
                         {other_name, other[worst], unit}, use);
    }

    std::string of_segment(std::size_t s) const { return " of " + segments_[s].id; }

    // A factor between the flow and everything else is the most common mistake.
    void compare_mass()
    {
        if (!gives({"SFLOW"})) return;
        const Quantity by_flow{polymer_.flow_key() + ": flow times molecular weight", polymer_.mass_flow(),
                               "kg/h"};
        const Quantity by_segments{"SFLOW times segment weights", mass(polymer_.elements("SFLOW"), segments_),
                                   "kg/h"};
        const double smaller = std::min(by_flow.value, by_segments.value);
        const double ratio = std::max(by_flow.value, by_segments.value) / smaller;
        const auto factor =
            smaller > 0 && std::isfinite(ratio) ? fmt::format(", a factor of {:.4g}", ratio) : std::string{};
        expect_equal(
            polymer_.flow().component.source, by_flow, by_segments,
            fmt::format("{}; compositions use the flow, averages the moments; check {} and the scale "
                        "of {}",
                        factor, flow_keys(), fmt::join(scaled(), ", ")));
    }

    // The molecular weight turns a mole flow into the mass that is compared, but a mass flow only there and
    // back.
    std::string flow_keys() const
    {
        const auto& key = polymer_.flow_key();
        const bool is_mole_flow = key == fmt::format("streams.{}.flows.{}", polymer_.stream(), polymer_.id());
        return is_mole_flow ? fmt::format("{}, components.{}.molecular_weight", key, polymer_.id()) : key;
    }

    // Attributes that have the scale of the flow.
    std::vector<std::string_view> scaled() const
    {
        std::vector<std::string_view> names;
        for (const auto* name : {"SFLOW", "ZMOM", "FMOM", "SMOM", "TMOM"})
            if (polymer_.gives(name)) names.emplace_back(name);
        return names;
    }

    void compare_moments()
    {
        if (gives({"FMOM", "SFLOW"}))
            expect_equal(
                "FMOM", {"the sum of SFLOW", polymer_.sum("SFLOW"), mole_flow},
                fmt::format("{}, Mw/Mn from {}; reactors use SFLOW", length_use(), sources_.dispersity));
        const auto* first = gives({"FMOM"}) ? "FMOM" : "SFLOW";
        if (!gives({first})) return;
        const double f = polymer_.sum(first);
        const std::string name = gives({"FMOM"}) ? "FMOM" : "the sum of SFLOW";
        if (gives({"ZMOM"}) && polymer_.value("ZMOM") == 0 && f > 0)
            expect_equal("ZMOM", {name, f, mole_flow}, ": no chains are counted" + length_use());
        if (gives({"ZMOM", "SMOM"})) compare_second_moment(name, f);
        if (gives({"SMOM", "TMOM"})) {
            const double s = polymer_.value("SMOM");
            expect_not_below("TMOM", "", {name + " times TMOM", f * polymer_.value("TMOM")},
                             {"the square of SMOM", s * s}, "Mz/Mw", "; Mz uses TMOM and SMOM");
        }
    }

    // Results take the segments from SFLOW, which may differ from FMOM.
    void compare_second_moment(const std::string& first, double f)
    {
        const Quantity product{"ZMOM times SMOM", polymer_.value("ZMOM") * polymer_.value("SMOM")};
        const auto use = "; Mw/Mn comes from " + sources_.dispersity;
        const double sum = gives({"SFLOW"}) ? polymer_.sum("SFLOW") : f;
        if (sum > f)
            expect_not_below("SMOM", "", product, {"the square of the sum of SFLOW", sum * sum}, "Mw/Mn",
                             use);
        else
            expect_not_below("SMOM", "", product, {"the square of " + first, f * f}, "Mw/Mn", use);
    }

    std::string length_use() const { return "; DPN comes from " + sources_.length; }

    void expect_not_below(std::string_view attribute, const std::string& element, const Quantity& product,
                          const Quantity& square, const char* ratio, const std::string& use)
    {
        if (product.value >= square.value || agree(product.value, square.value)) return;
        warn(polymer_.source(attribute),
             fmt::format("{}{}: {}, but {}; {}: {} would be {:.6g}, below 1{}", polymer_.key(attribute),
                         element, shown(product), shown(square), difference(product, square), ratio,
                         product.value / square.value, use));
    }

    void compare_sites()
    {
        for (const auto& [whole, by_site] : {std::pair{"ZMOM", "SZMOM"}, {"SMOM", "SSMOM"}})
            if (gives({whole, by_site}))
                expect_equal(whole, {std::string{"the sum of "} + by_site, polymer_.sum(by_site), mole_flow},
                             site_use(whole, by_site));
        if (!gives({"SSFLOW"})) {
            if (gives({"FMOM", "SFMOM"}))
                expect_equal("FMOM", {"the sum of SFMOM", polymer_.sum("SFMOM"), mole_flow},
                             length_use() + ", nothing from SFMOM");
            return;
        }
        const auto& by_site = polymer_.elements("SSFLOW");
        const auto sums = over_segments(by_site, segments_.size());
        if (gives({"SFLOW"}))
            expect_all_equal(
                "SFLOW", polymer_.elements("SFLOW"), over_sites(by_site, segments_.size()),
                "the sum of SSFLOW over the site types", mole_flow,
                [&](std::size_t s) { return of_segment(s); }, site_use("SFLOW", "SSFLOW"));
        if (gives({"SFMOM"}))
            expect_all_equal(
                "SFMOM", polymer_.elements("SFMOM"), sums, "the sum of SSFLOW of this site type", mole_flow,
                [](std::size_t t) { return fmt::format("[{}]", t + 1); },
                "; results of site types use SSFLOW");
        if (gives({"SZMOM", "SSMOM"})) compare_site_moments(sums);
    }

    static std::string site_use(std::string_view whole, std::string_view by_site)
    {
        return fmt::format("; averages of the stream use {}, site types and the reactors with site types {}",
                           whole, by_site);
    }

    void compare_site_moments(const std::vector<double>& segment_flows)
    {
        for (std::size_t t = 0; t < segment_flows.size(); ++t)
            expect_not_below(
                "SSMOM", fmt::format("[{}]", t + 1),
                {"SZMOM times SSMOM", polymer_.elements("SZMOM")[t] * polymer_.elements("SSMOM")[t]},
                {"the square of the sum of SSFLOW of this site type", segment_flows[t] * segment_flows[t]},
                "Mw/Mn", "; results of the site type use these values");
    }

    // One end of each chain may be no segment, such as a hydrogen end.
    void compare_ends()
    {
        if (!gives({"ZMOM", "SFLOW"})) return;
        double ends = 0;
        double branches = 0;
        for (std::size_t s = 0; s < segments_.size(); ++s) {
            const double flow = polymer_.elements("SFLOW")[s];
            if (segments_[s].type == SegmentType::end)
                ends += flow;
            else if (segments_[s].type != SegmentType::repeat)
                branches += flow;
        }
        const double chains = polymer_.value("ZMOM");
        if (ends > 0 && branches == 0 && !agree(ends, chains))
            expect_equal(polymer_.source("SFLOW"),
                         {polymer_.key("SFLOW") + ": flow of end segments", ends, mole_flow},
                         {"twice ZMOM", 2 * chains, mole_flow},
                         ", and linear chains have two ends each" + length_use());
    }

    void compare_averages()
    {
        const auto* first = gives({"FMOM"}) ? "FMOM" : "SFLOW";
        if (gives({"DPN", "ZMOM", first}) && polymer_.value("ZMOM") > 0 && !sources_.takes_dpn_parameter)
            expect_equal("DPN",
                         {fmt::format("{} over ZMOM", gives({"FMOM"}) ? "FMOM" : "the sum of SFLOW"),
                          polymer_.sum(first) / polymer_.value("ZMOM")},
                         length_use() + "; reactors use the moments", "");
        if (!gives({"SFLOW"}) || !(polymer_.sum("SFLOW") > 0)) return;
        const auto& flows = polymer_.elements("SFLOW");
        if (gives({"MWSEG"}) && sources_.takes_segment_weight)
            expect_equal(
                "MWSEG",
                {"the mean segment weight of SFLOW", mass(flows, segments_) / polymer_.sum("SFLOW"), "g/mol"},
                weight_use(), "g/mol");
        if (gives({"SFRAC"}))
            expect_all_equal(
                "SFRAC", polymer_.elements("SFRAC"), fractions(flows), "its share of SFLOW", "",
                [&](std::size_t s) { return of_segment(s); }, weight_use());
    }

    std::string weight_use() const
    {
        return fmt::format("; molecular weights of the stream use {}, reactors SFLOW",
                           sources_.mean_segment_weight);
    }

    const GivenPolymer& polymer_;
    const Segments& segments_;
    AverageSources sources_;
    std::vector<Diagnostic>& found_;
};

}  // namespace

std::vector<Diagnostic> contradictions(const Stream& stream, const Settings& settings, minihost::Host& host)
{
    std::vector<Diagnostic> found;
    const auto polymers = given_polymers(stream, host);
    if (polymers.empty()) return found;
    const auto segments = given_segments(host, minihost::read_polymer_input(host));
    for (const auto& polymer : polymers)
        PolymerComparisons{polymer, segments, average_sources(settings, polymer, segments), found}.compare();
    return found;
}

std::vector<Diagnostic> oligomer_contradictions(const Case& input)
{
    std::vector<Diagnostic> found;
    for (const auto& component : input.components) {
        if (component.component_class != ComponentClass::oligomer || !component.dpn || !input.paragraph)
            continue;
        double segments = 0;
        for (const auto& part : input.paragraph->oligomers)
            if (part.oligomer.id == component.id) segments += part.count;
        const Quantity given{component.dpn_source.key, *component.dpn};
        const Quantity made_of{
            fmt::format("the number of segments of {} in polymers.oligomers", component.id), segments};
        // A parameter of 1 counts as not given.
        if (segments == 0 || *component.dpn == 1 || agree(given.value, made_of.value)) continue;
        found.push_back({component.dpn_source,
                         fmt::format("{}, but {}; {}; DPN comes from dpn, compositions from the segments",
                                     shown(given), shown(made_of), difference(given, made_of)),
                         Severity::warning});
    }
    return found;
}

}  // namespace app

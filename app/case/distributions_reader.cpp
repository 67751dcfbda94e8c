// The [distributions] section: grid, form, and what each site makes in each increment of each section.
#include <fmt/format.h>

#include <algorithm>
#include <numeric>

#include "app/case/case_reader.h"
#include "app/io/memory.h"

namespace app {

namespace {

constexpr WholeRange grid_points{2, 100000};
constexpr double shortest_grid = 2;

constexpr Word<bool> forms[] = {{"weight-fraction", false}, {"gpc", true}};

// A tau or beta that is left out is that of the same site in the increment before.
// The first increment names the sites.
SiteIncrement read_site(TableReader table, const SiteIncrement* previous, std::optional<std::string>& name)
{
    SiteIncrement site;
    bool is_usable = true;
    const auto parameter = [&](std::string_view key, std::optional<double> before) {
        const auto value = table.number(key, Range::not_negative);
        is_usable = is_usable && (value || !table.entry(key));
        return value ? *value : before.value_or(0);
    };
    const bool is_given = table.entry("tau") || table.entry("beta");
    site.tau = parameter("tau", previous ? std::optional{previous->tau} : std::nullopt);
    site.beta = parameter("beta", previous ? std::optional{previous->beta} : std::nullopt);
    if (!is_given && !previous) table.missing("tau", "a finite number, 0 or greater");
    if (is_given && is_usable && !(site.tau + site.beta > 0))
        table.diagnostics().add(table.source(), fmt::format("{}: tau + beta is {}; expected greater than 0",
                                                            table.path(), site.tau + site.beta));
    site.amount = table.required_number("amount", Range::not_negative).value_or(0);
    if (!previous) name = table.text("name");
    table.finish_part();
    return site;
}

void name_site(DistributionSection& section, const Entry& entry, const std::optional<std::string>& name)
{
    const auto number = section.sites.size() + 1;
    section.sites.push_back({name.value_or(fmt::format("{}", number)), entry.source});
}

void read_increment(const Entry& entry, DistributionSection& section, Diagnostics& diagnostics)
{
    const auto elements = read_array(entry, diagnostics, "at least one site");
    const Increment* previous = section.increments.empty() ? nullptr : &section.increments.back();
    Increment increment;
    for (const auto& element : elements) {
        const auto table = read_table(element, diagnostics);
        if (!table) continue;
        const auto at = increment.size();
        std::optional<std::string> name;
        increment.push_back(
            read_site(*table, previous && at < previous->size() ? &(*previous)[at] : nullptr, name));
        if (!previous) name_site(section, element, name);
    }
    if (previous && increment.size() != previous->size())
        diagnostics.add(entry.source, fmt::format("{} has {} sites; the increment before it has {}",
                                                  entry.path, increment.size(), previous->size()));
    section.increments.push_back(std::move(increment));
}

void read_increments(TableReader& table, DistributionSection& section)
{
    const auto sites = table.entry("sites");
    const auto increments = table.entry("increments");
    if (sites.has_value() == increments.has_value()) {
        table.diagnostics().add(
            sites ? increments->source : table.source(),
            fmt::format("{} has {}; expected one of them", table.path(),
                        sites ? "both sites and increments" : "neither sites nor increments"));
        return;
    }
    if (sites) return read_increment(*sites, section, table.diagnostics());
    for (const auto& entry : read_array(*increments, table.diagnostics(), "at least one increment"))
        read_increment(entry, section, table.diagnostics());
}

DistributionSection read_section(TableReader table)
{
    DistributionSection section;
    if (const auto name = table.entry("name"))
        section.name = {read_text(*name, table.diagnostics()).value_or(""), name->source};
    else
        table.missing("name", "a text in quotes");
    read_increments(table, section);
    table.finish_part();
    return section;
}

std::vector<DistributionSection> read_sections(TableReader& table)
{
    std::vector<DistributionSection> sections;
    if (!table.entry("sections")) {
        if (!table.entry("sites") && !table.entry("increments") && table.entry("components")) return sections;
        sections.push_back({{"", table.source()}, {}, {}});
        read_increments(table, sections.back());
        return sections;
    }
    for (const auto& entry : table.array("sections", "at least one section"))
        if (const auto section = read_table(entry, table.diagnostics()))
            sections.push_back(read_section(*section));
    return sections;
}

std::optional<PlacedName> reference(TableReader& table, std::string_view key)
{
    const auto entry = table.entry(key);
    if (!entry) return {};
    return PlacedName{read_text(*entry, table.diagnostics()).value_or(""), entry->source};
}

void read_grid(TableReader& table, Distribution& distribution)
{
    distribution.points = table.required_whole_number("points", grid_points).value_or(0);
    const auto longest = table.required_number("longest_chain", Range::positive);
    if (longest && *longest < shortest_grid)
        table.diagnostics().add(table.entry("longest_chain")->source,
                                fmt::format("{}.longest_chain is {}; expected {} or greater", table.path(),
                                            *longest, shortest_grid));
    distribution.longest_chain = longest.value_or(shortest_grid);
}

std::optional<Distribution> read_distribution(const Entry& entry, TableReader table)
{
    Distribution distribution;
    distribution.name = {entry.key, entry.source};
    read_grid(table, distribution);
    if (const auto form = table.entry("form"))
        distribution.is_gpc = read_word(*form, forms, table.diagnostics()).value_or(false);
    distribution.segment_weight = table.number("segment_weight", Range::positive);
    distribution.mark_houwink_exponent = read_mark_houwink_exponent(table);
    distribution.stream = reference(table, "stream");
    distribution.sections = read_sections(table);
    distribution.components = read_distribution_components(table);
    if (!table.finish()) return {};
    return distribution;
}

void check_unique(const std::vector<PlacedName>& names, std::string_view path, Diagnostics& diagnostics)
{
    for (auto name = names.begin(); name != names.end(); ++name) {
        if (name->id.empty())
            diagnostics.add(name->source, fmt::format("{}: a name is empty", path));
        else if (std::find_if(names.begin(), name, [&](const auto& n) { return n.id == name->id; }) != name)
            diagnostics.add(name->source, fmt::format("{} names \"{}\" twice", path, name->id));
    }
}

// Points of all curves, with their chromatograms, in results, tables and every form of the report. The first
// distribution for which there is no room is reported.
void check_memory(const std::vector<Distribution>& distributions, Diagnostics& diagnostics)
{
    constexpr double bytes_of_number = 500;
    double bytes = 0;
    for (const auto& distribution : distributions) {
        std::size_t curves = 2 + distribution.components.size();
        for (const auto& section : distribution.sections) curves += 1 + section.sites.size();
        const char* others = bytes > 0 ? ", with the distributions before," : "";
        bytes += static_cast<double>(distribution.points) * static_cast<double>(2 * curves) * bytes_of_number;
        const auto lacking = lacking_memory(bytes);
        if (lacking.empty()) continue;
        const auto& [name, source] = distribution.name;
        return diagnostics.add(source, fmt::format("distributions.{}: {} points of {} curves{} need {}", name,
                                                   distribution.points, curves, others, lacking));
    }
}

// What the host takes for nothing cannot be averaged.
void check_amounts(const DistributionSection& section, std::string_view path, double zero_bound,
                   Diagnostics& diagnostics)
{
    double total = 0;
    for (const auto& increment : section.increments)
        for (const auto& site : increment) total += site.amount;
    if (!section.sites.empty() && !(total > zero_bound))
        diagnostics.add(section.name.source,
                        fmt::format("{} makes {} in total; expected more than the zero bound, {}", path,
                                    total, zero_bound));
}

void check_models(const Distribution& distribution, double zero_bound, Diagnostics& diagnostics)
{
    const auto path = "distributions." + distribution.name.id;
    double total = 0;
    std::vector<PlacedName> names;
    for (const auto& component : distribution.components) {
        names.push_back(component.name);
        total += component.amount;
        if (component.mn && !component.dpn && !distribution.segment_weight && !distribution.stream)
            diagnostics.add(
                component.name.source,
                fmt::format("{}: component {} is given by mn; expected a segment_weight or a stream too, "
                            "to make chain lengths of it",
                            path, component.name.id));
    }
    check_unique(names, path + ".components", diagnostics);
    if (distribution.sections.empty() && !names.empty() && !(total > zero_bound))
        diagnostics.add(distribution.name.source,
                        fmt::format("{} has components of {} in total; expected more than the zero bound, {}",
                                    path, total, zero_bound));
}

}  // namespace

std::vector<Distribution> read_distributions(TableReader table)
{
    std::vector<Distribution> distributions;
    for (const auto& entry : table.entries())
        if (const auto reader = read_table(entry, table.diagnostics()))
            if (auto distribution = read_distribution(entry, *reader))
                distributions.push_back(std::move(*distribution));
    return distributions;
}

void check_distributions(const Case& input, Diagnostics& diagnostics)
{
    std::vector<std::string_view> streams;
    for (const auto& stream : input.streams) streams.push_back(stream.name.id);
    for (const auto& distribution : input.distributions) {
        const auto path = "distributions." + distribution.name.id;
        if (distribution.stream && std::ranges::find(streams, distribution.stream->id) == streams.end())
            diagnostics.add(
                distribution.stream->source,
                fmt::format("{}.stream names \"{}\", which is not a stream{}", path, distribution.stream->id,
                            suggestion(distribution.stream->id, streams)));
        std::vector<PlacedName> names;
        for (const auto& section : distribution.sections) {
            if (distribution.sections.size() > 1 || !section.name.id.empty()) names.push_back(section.name);
            check_unique(section.sites, path + ".sites", diagnostics);
            check_amounts(section, path, input.settings.zero_bound, diagnostics);
        }
        check_unique(names, path + ".sections", diagnostics);
        check_models(distribution, input.settings.zero_bound, diagnostics);
    }
    check_memory(input.distributions, diagnostics);
}

}  // namespace app

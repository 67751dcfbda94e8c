#include "app/case/case_reader.h"

#include <fmt/format.h>

#include "app/case/natural_inputs.h"

namespace app {

namespace {

constexpr Word<ComponentClass> component_classes[] = {
    {"conventional", ComponentClass::conventional},
    {"polymer", ComponentClass::polymer},
    {"oligomer", ComponentClass::oligomer},
    {"segment", ComponentClass::segment},
};

constexpr WholeRange page_lengths{1, 100000};

constexpr Word<bool> pdi_sources[] = {{"moments", false}, {"parameters", true}};

Settings read_settings(TableReader table)
{
    Settings settings;
    settings.zero_bound = table.number("zero_bound", Range::positive).value_or(settings.zero_bound);
    settings.missing_value_bound =
        table.number("missing_value_bound", Range::positive).value_or(settings.missing_value_bound);
    if (settings.zero_bound >= settings.missing_value_bound)
        table.diagnostics().add(
            table.source(),
            fmt::format("settings.zero_bound is {}; expected less than missing_value_bound, {}",
                        settings.zero_bound, settings.missing_value_bound));
    if (const auto source = table.entry("pdi_from"))
        settings.pdi_from_parameters =
            read_word(*source, pdi_sources, table.diagnostics()).value_or(settings.pdi_from_parameters);
    settings.message_level = table.whole_number("message_level", {0, 2}).value_or(settings.message_level);
    settings.lines_per_page =
        table.whole_number("lines_per_page", page_lengths).value_or(settings.lines_per_page);
    table.finish_part();
    return settings;
}

std::optional<double> read_placed_number(TableReader& table, std::string_view key, Range range,
                                         SourcePosition& source)
{
    const auto entry = table.entry(key);
    if (!entry) return {};
    source = entry->source;
    return read_number(*entry, range, table.diagnostics());
}

Component read_component(const std::string& id, TableReader table)
{
    Component component;
    component.id = id;
    component.source = table.source();
    if (const auto kind = table.entry("class"))
        component.component_class =
            read_word(*kind, component_classes, table.diagnostics()).value_or(component.component_class);
    component.molecular_weight = table.required_number("molecular_weight", Range::positive);
    component.name = table.text("name").value_or(id);
    component.dpn = read_placed_number(table, "dpn", Range::not_negative, component.dpn_source);
    component.pdi = read_placed_number(table, "pdi", Range::positive, component.pdi_source);
    if (component.pdi && *component.pdi < 1)
        table.diagnostics().add(component.pdi_source,
                                fmt::format("{} is {}; expected 1 or greater, since Mw is at least Mn",
                                            component.pdi_source.key, *component.pdi));
    component.cry = table.number("cry", Range::not_negative);
    component.mark_houwink_exponent = read_mark_houwink_exponent(table);
    table.finish_part();
    return component;
}

std::vector<Component> read_components(TableReader table)
{
    std::vector<Component> components;
    for (const auto& entry : table.entries())
        if (auto component = read_table(entry, table.diagnostics()))
            components.push_back(read_component(entry.key, *component));
    return components;
}

// A section that a case cannot do without.
std::optional<TableReader> section(TableReader& root, std::string_view key, std::string_view expected)
{
    auto found = root.table(key);
    if (!found) root.missing(key, expected);
    if (found && found->is_empty())
        root.diagnostics().add(found->source(), fmt::format("{} is empty; expected {}", key, expected));
    return found;
}

// False when there are none.
bool read_curves(TableReader& root, Case& input)
{
    const auto distributions = root.table("distributions");
    if (distributions) input.distributions = read_distributions(*distributions);
    const auto parameters = root.table("parameters");
    if (parameters) input.parameter_sets = read_parameter_sets(*parameters);
    return (distributions && !distributions->is_empty()) || (parameters && !parameters->is_empty());
}

// A case without streams has distributions or binary parameters instead.
void read_streams(TableReader& root, bool may_lack, Case& input)
{
    if (may_lack && !root.entry("streams")) return;
    if (const auto streams = section(root, "streams", "a table with at least one stream"))
        input.streams = read_streams(*streams);
}

Case read_root(TableReader root, const std::string& file)
{
    Case input;
    input.file = file;
    input.title = root.title("title").value_or("");
    if (const auto settings = root.table("settings")) input.settings = read_settings(*settings);
    // Distributions with a segment weight of their own need nothing else.
    const bool has_curves_only = root.entry("distributions") && !root.entry("streams");
    if (!has_curves_only || root.entry("components"))
        if (const auto components = section(root, "components", "a table with at least one component"))
            input.components = read_components(*components);
    if (const auto polymers = root.table("polymers")) input.paragraph = read_paragraph(*polymers);
    input.catalyst_scaling = read_catalyst_scaling(root.array("catalyst_scaling"), root.diagnostics());
    const bool has_curves = read_curves(root, input);
    read_streams(root, has_curves, input);
    if (const auto properties = root.table("properties")) input.properties = read_properties(*properties);
    if (const auto reactors = root.table("reactors")) input.reactors = read_reactors(*reactors);
    root.finish_part();
    return input;
}

}  // namespace

Case read_case(const toml::table& root, const std::string& file, Diagnostics& diagnostics)
{
    auto input = read_root(TableReader{root, "", {}, diagnostics}, file);
    check_components(input, diagnostics);
    check_paragraph(input, diagnostics);
    check_catalyst_scaling(input, diagnostics);
    check_streams(input, diagnostics);
    check_properties(input, diagnostics);
    check_reactors(input, diagnostics);
    check_distributions(input, diagnostics);
    check_parameter_sets(input, diagnostics);
    if (diagnostics.empty()) apply_natural_inputs(input, diagnostics);
    return input;
}

}  // namespace app

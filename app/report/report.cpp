#include "app/report/report.h"

#include <fmt/format.h>

#include <cmath>

#include "app/report/columns.h"
#include "app/report/result_numbers.h"
#include "app/report/stream_tables.h"

namespace app {

namespace {

Table chain_averages(const std::vector<ChainAverages>& averages)
{
    Table table{"chain_averages",
                "Chain averages",
                {columns::component, columns::component_class, columns::mole_flow, columns::dpn,
                 columns::mean_segment_weight, columns::mn, columns::mw, columns::pdi},
                {}};
    for (const auto& a : averages)
        table.rows.push_back({a.component, std::string{text(a.kind)}, a.mole_flow, a.dpn,
                              a.mean_segment_weight, a.mn, a.mw, a.pdi});
    return table;
}

Table segment_fractions(const std::vector<SegmentShare>& shares)
{
    Table table{"segment_fractions",
                "Segment fractions",
                {columns::component, columns::segment, columns::mole_fraction, columns::mass_fraction},
                {}};
    for (const auto& s : shares)
        table.rows.push_back({s.component, s.segment, s.mole_fraction, s.mass_fraction});
    return table;
}

Section stream_section(const std::string& name, std::vector<Table> tables)
{
    return {"stream", name, "Stream " + name, {}, std::move(tables)};
}

Section stream_section(const StreamResults& results, const Case& input)
{
    std::vector<Table> tables{chain_averages(results.averages), segment_fractions(results.shares)};
    for (const auto& composition : results.compositions) tables.push_back(composition_table(composition));
    tables.push_back(closure_table(results.compositions));
    tables.push_back(segment_count_table(results.segment_counts));
    tables.push_back(chain_weight_table(results.chain_weights));
    if (!input.properties.empty()) tables.push_back(property_table(input.properties, results.properties));
    return stream_section(results.stream, std::move(tables));
}

Section reactor_section(const ReactorResults& results)
{
    return {"reactor",
            results.reactor,
            fmt::format("Reactor {}, from {} to {}", results.reactor, results.inlet, results.outlet),
            {{"inlet", results.inlet}, {"outlet", results.outlet}},
            {polymer_made_table(results.made)}};
}

}  // namespace

Report make_report(const Case& input, const CheckedInput& checked, const Results& results)
{
    Report report{input.title, input.file, checked.messages, {}, {}};
    for (const auto& stream : results.streams) report.sections.push_back(stream_section(stream, input));
    for (const auto& reactor : results.reactors) report.sections.push_back(reactor_section(reactor));
    return report;
}

Report make_conversion_report(const Case& input, const CheckedInput& checked, const std::string& stream,
                              const std::vector<Composition>& compositions)
{
    std::vector<Table> tables;
    tables.reserve(compositions.size() + 1);
    for (const auto& composition : compositions) tables.push_back(composition_table(composition));
    tables.push_back(closure_table(compositions));
    return {input.title, input.file, checked.messages, {}, {stream_section(stream, std::move(tables))}};
}

namespace {

bool is_finite(const Cell& cell)
{
    const auto* value = std::get_if<double>(&cell);
    return !value || std::isfinite(*value);
}

// Of a curve the first number says enough.
void add_not_finite(const Section& section, const Table& table, std::vector<std::string>& found)
{
    for (const auto& row : table.rows)
        for (std::size_t i = 0; i < row.size(); ++i) {
            if (is_finite(row[i])) continue;
            found.push_back(fmt::format("{}s.{}: {} of {} is {}; expected a finite result", section.kind,
                                        section.name, table.columns[i].key, text(row.front()), text(row[i])));
            if (table.is_long) return;
        }
}

}  // namespace

std::vector<std::string> not_finite(const Report& report)
{
    std::vector<std::string> found;
    for (const auto& section : report.sections)
        for (const auto& table : section.tables) add_not_finite(section, table, found);
    return found;
}

}  // namespace app

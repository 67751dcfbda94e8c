#include "app/report/stream_tables.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>

#include "app/report/columns.h"

namespace app {

namespace {

std::string heading(Basis basis)
{
    if (basis == Basis::apparent) return "Composition on the apparent basis";
    return basis == Basis::true_chains ? "Composition on the true basis: polymers by their chains"
                                       : "Composition on the segment basis: chains by their segments";
}

// A row that ends with numbers by column.
std::vector<Cell> row_of(std::vector<Cell> row, const std::vector<double>& numbers)
{
    row.insert(row.end(), numbers.begin(), numbers.end());
    return row;
}

Table composition_table(const Composition& composition)
{
    Table table{fmt::format("{}_composition", text(composition.basis)),
                heading(composition.basis),
                {columns::component, columns::component_class, columns::mole_flow, columns::mass_flow,
                 columns::mole_fraction, columns::mass_fraction},
                {}};
    for (const auto& a : composition.amounts)
        table.rows.push_back({a.component, std::string{text(a.kind)}, a.mole_flow, a.mass_flow,
                              a.mole_fraction, a.mass_fraction});
    return table;
}

Table closure_table(const Compositions& compositions)
{
    Table table{"closures",
                "Sums, and the mass flow against that of the first basis",
                {{"basis", "Basis", ""},
                 {"mole_fraction_sum", "Mole fractions", "1"},
                 {"mass_fraction_sum", "Mass fractions", "1"},
                 columns::mole_flow,
                 columns::mass_flow,
                 {"mass_difference", "Relative difference", "1"}},
                {}};
    if (compositions.bases.empty() || compositions.bases.front().amounts.empty()) return table;
    for (const auto& c : compositions.closures)
        table.rows.push_back({std::string{text(c.basis)}, c.mole_fraction_sum, c.mass_fraction_sum,
                              c.mole_flow, c.mass_flow, c.mass_difference});
    return table;
}

Table segment_count_table(const SegmentCountMatrix& matrix)
{
    Table table{"segment_counts", "Segments per chain", {columns::component}, {}};
    for (const auto& segment : matrix.segments) table.columns.push_back({segment, segment, "1"});
    for (const auto& chain : matrix.chains) table.rows.push_back(row_of({chain.component}, chain.counts));
    return table;
}

Table chain_average_table(const std::vector<ChainAverageComparison>& comparisons)
{
    Table table{"chain_weights",
                "Chain weights from segments per chain and from attributes",
                {columns::component,
                 {"average", "Average", ""},
                 {"from_counts", "From segments", "g/mol"},
                 {"from_attributes", "From attributes", "g/mol"},
                 {"difference", "Relative difference", "1"}},
                {}};
    for (const auto& w : comparisons)
        table.rows.push_back({w.component, w.average, w.from_counts, w.from_attributes, w.difference});
    return table;
}

Table property_table(const std::vector<Property>& properties, const std::vector<ChainProperties>& values)
{
    Table table{"properties",
                "Properties of chains by their segments",
                {columns::component, columns::component_class},
                {}};
    for (const auto& property : properties)
        table.columns.push_back({property.name.id, property.name.id, property.unit});
    for (const auto& chain : values)
        table.rows.push_back(row_of({chain.component, std::string{text(chain.kind)}}, chain.values));
    return table;
}

Table crystallinity_table(const std::vector<Crystallinity>& crystallinities)
{
    Table table{
        "crystallinity", "Crystallinity parameters", {columns::component, {"cry", "Crystallinity", "1"}}, {}};
    for (const auto& [component, value] : crystallinities) table.rows.push_back({component, value});
    return table;
}

Table polymer_made_table(const std::vector<SitePolymer>& made)
{
    Table table{"polymer_made",
                "Polymer made",
                {{"site", "Site type", ""},
                 columns::mass_flow,
                 columns::mean_segment_weight,
                 columns::mn,
                 columns::mw,
                 columns::dpn,
                 {"dpw", "DPW", "1"},
                 columns::pdi},
                {}};
    for (const auto& m : made)
        table.rows.push_back({m.site, m.mass_flow, m.mean_segment_weight, m.mn, m.mw, m.dpn, m.dpw, m.pdi});
    return table;
}

Table chain_averages(const std::vector<ChainAverages>& averages)
{
    Table table{"chain_averages",
                "Chain averages",
                {columns::component, columns::component_class, columns::mole_flow, columns::dpn,
                 columns::mean_segment_weight, columns::mn, columns::mw, columns::pdi, columns::mz},
                {}};
    const bool has_mv = std::ranges::any_of(averages, [](const auto& a) { return a.mv.has_value(); });
    if (has_mv) table.columns.push_back({"mv", "Mv (Schulz-Zimm)", "g/mol"});
    for (const auto& a : averages) {
        table.rows.push_back({a.component, std::string{text(a.kind)}, a.mole_flow, a.dpn,
                              a.mean_segment_weight, a.mn, a.mw, a.pdi, columns::cell(a.mz)});
        if (has_mv) table.rows.back().push_back(columns::cell(a.mv));
    }
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

Section section_of_stream(const std::string& name, std::vector<Table> tables)
{
    return {"stream", name, "Stream " + name, {}, std::move(tables)};
}

void add_compositions(const Compositions& compositions, std::vector<Table>& tables)
{
    for (const auto& composition : compositions.bases) tables.push_back(composition_table(composition));
    tables.push_back(closure_table(compositions));
}

}  // namespace

Section stream_section(const StreamResults& results, const Case& input)
{
    std::vector<Table> tables{chain_averages(results.averages), segment_fractions(results.shares)};
    add_compositions(results.compositions, tables);
    tables.push_back(segment_count_table(results.segment_counts));
    tables.push_back(chain_average_table(results.chain_weights));
    if (!input.properties.empty()) tables.push_back(property_table(input.properties, results.properties));
    if (!results.crystallinities.empty()) tables.push_back(crystallinity_table(results.crystallinities));
    return section_of_stream(results.stream, std::move(tables));
}

Section conversion_section(const std::string& stream, const Compositions& compositions)
{
    std::vector<Table> tables;
    add_compositions(compositions, tables);
    return section_of_stream(stream, std::move(tables));
}

Section reactor_section(const ReactorResults& results)
{
    const auto inlet = fmt::format("{}", fmt::join(results.inlets, " + "));
    return {"reactor",
            results.reactor,
            fmt::format("Reactor {}, from {} to {}", results.reactor, inlet, results.outlet),
            {{"inlet", inlet}, {"outlet", results.outlet}},
            {polymer_made_table(results.made)},
            {{"inlets", results.inlets}}};
}

}  // namespace app

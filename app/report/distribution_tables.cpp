#include "app/report/distribution_tables.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include "app/report/columns.h"

namespace app {

namespace {

std::vector<Cell> empty_cells(std::size_t count)
{
    return std::vector<Cell>(count, Cell{NoData{}});
}

void append(const std::vector<Cell>& cells, std::vector<Cell>& row)
{
    row.insert(row.end(), cells.begin(), cells.end());
}

// With a segment weight also as molecular weights, with an exponent Mv.
std::vector<Cell> average_cells(const DistributionAverages& a, const DistributionResults& results)
{
    std::vector<Cell> cells{a.pn, a.pw, a.pz, a.pz1, a.pdi};
    if (results.segment_weight) append({a.mn, a.mw, a.mz, a.mz1}, cells);
    if (results.segment_weight && results.exponent) cells.push_back(columns::cell(a.mv));
    return cells;
}

Table averages(const DistributionResults& results)
{
    Table table{"distribution_averages",
                "Averages of the curves in closed form",
                {{"curve", "Curve", ""},
                 {"amount", "Amount", ""},
                 columns::pn,
                 columns::pw,
                 {"pz", "Pz", "1"},
                 {"pz1", "Pz+1", "1"},
                 columns::pdi},
                {}};
    const auto leading = 2U;
    if (results.segment_weight)
        table.columns.insert(table.columns.end(), {columns::mn, columns::mw, columns::mz, columns::mz1});
    if (results.segment_weight && results.exponent) table.columns.push_back(columns::mv);
    for (const auto& curve : results.curves) {
        auto& row = table.rows.emplace_back(std::vector<Cell>{curve.name, curve.amount});
        append(curve.averages ? average_cells(*curve.averages, results)
                              : empty_cells(table.columns.size() - leading),
               row);
    }
    return table;
}

Table quadrature(const DistributionResults& results)
{
    Table table{"distribution_quadrature",
                "Trapezoids on the grid, their grid error, and the mass outside the grid",
                {{"curve", "Curve", ""},
                 {"area", "Area", "1"},
                 columns::pn,
                 {"pn_grid_error", "Grid error", "%"},
                 columns::pw,
                 {"pw_grid_error", "Grid error", "%"},
                 columns::pdi,
                 {"below_grid", "Mass below", "1"},
                 {"above_grid", "Mass above", "1"}},
                {}};
    for (const auto& curve : results.curves) {
        auto& row = table.rows.emplace_back(std::vector<Cell>{curve.name});
        if (const auto& g = curve.on_grid)
            append({g->area, g->pn, g->pn_grid_error, g->pw, g->pw_grid_error, g->pdi}, row);
        else
            append(empty_cells(6), row);
        if (const auto& a = curve.averages)
            append({a->below_grid, a->above_grid}, row);
        else
            append(empty_cells(2), row);
    }
    return table;
}

Table checks(const DistributionResults& results)
{
    Table table{"distribution_checks",
                "Curves by their parameters and by the moments of the stream",
                {{"curve", "Curve", ""},
                 columns::pn,
                 {"pn_expected", "by moments", "1"},
                 {"pn_difference", "relative difference", "1"},
                 columns::pw,
                 {"pw_expected", "by moments", "1"},
                 {"pw_difference", "relative difference", "1"},
                 {"source", "by", ""}},
                {}};
    for (const auto& c : results.checks)
        table.rows.push_back({c.curve, c.pn, c.pn_expected, c.pn_difference(), c.pw, c.pw_expected,
                              c.pw_difference(), std::string{"stream moments"}});
    return table;
}

Table curves(const DistributionResults& results)
{
    Table table{"distribution_curves", "Curves", {columns::chain_length}, {}, true};
    if (results.segment_weight) table.columns.push_back(columns::molecular_weight);
    table.columns.push_back({"cumulative", "Cumulative", "1"});
    for (const auto& curve : results.curves) table.columns.push_back({curve.name, curve.name, "1"});
    if (results.segment_weight)
        for (const auto& curve : results.curves)
            table.columns.push_back({chromatogram_name(curve), chromatogram_name(curve), "1"});
    for (std::size_t k = 0; k < results.lengths.size(); ++k) {
        auto& row = table.rows.emplace_back(std::vector<Cell>{results.lengths[k]});
        if (results.segment_weight) row.emplace_back(results.molecular_weights[k]);
        row.emplace_back(results.cumulative[k]);
        for (const auto& curve : results.curves) row.emplace_back(curve.values[k]);
        if (!results.segment_weight) continue;
        for (const auto& curve : results.curves) row.emplace_back(curve.chromatogram[k]);
    }
    return table;
}

void add_pair(const Column& of, double measured, double calculated, Table& table)
{
    table.columns.push_back({of.key + "_measured", of.heading + " measured", of.unit});
    table.columns.push_back({of.key + "_calculated", "calculated", of.unit});
    table.rows.front().emplace_back(measured);
    table.rows.front().emplace_back(calculated);
}

Table fit(const MeasuredComparison& gpc)
{
    Table table{"gpc_comparison",
                "Measured curve against the composite",
                {{"file", "File", ""},
                 {"notes", "Notes", ""},
                 {"points", "Points", ""},
                 {"residual", "Residual", "1"},
                 {"largest_difference", "Largest difference", "1"}},
                {{gpc.file, static_cast<Int>(gpc.notes.size()), static_cast<Int>(gpc.measured.size()),
                  gpc.residual, gpc.largest_difference}}};
    const auto& measured = gpc.measured_averages;
    const auto& calculated = gpc.calculated_averages;
    add_pair(columns::mn, measured.mn, calculated.mn, table);
    add_pair(columns::mw, measured.mw, calculated.mw, table);
    add_pair(columns::mz, measured.mz, calculated.mz, table);
    add_pair(columns::mz1, measured.mz1, calculated.mz1, table);
    add_pair(columns::pdi, measured.pdi, calculated.pdi, table);
    if (measured.mv) add_pair(columns::mv, *measured.mv, *calculated.mv, table);
    return table;
}

Table measured_curve(const MeasuredComparison& gpc)
{
    Table table{"gpc_curve",
                "Measured curve",
                {columns::molecular_weight,
                 columns::chain_length,
                 {"measured", "Measured", "1"},
                 {"calculated", "Calculated", "1"},
                 {"overlay", "Overlay", "1"}},
                {},
                true};
    for (std::size_t k = 0; k < gpc.measured.size(); ++k)
        table.rows.push_back({gpc.molecular_weight[k], gpc.chain_length[k], gpc.measured[k],
                              gpc.calculated[k], gpc.overlay[k]});
    return table;
}

}  // namespace

Section distribution_section(const DistributionResults& results)
{
    Section section{"distribution",
                    results.name,
                    "Distribution " + results.name,
                    {{"form", results.is_gpc ? "gpc" : "weight-fraction"}},
                    {averages(results), quadrature(results), checks(results), curves(results)}};
    if (!results.notes.empty())
        section.facts.emplace_back("notes", fmt::format("{}", fmt::join(results.notes, "\n")));
    if (const auto& measured = results.measured) {
        section.facts.emplace_back("gpc_notes", fmt::format("{}", fmt::join(measured->notes, "\n")));
        section.tables.insert(section.tables.end() - 1, fit(*measured));
        section.tables.push_back(measured_curve(*measured));
    }
    return section;
}

}  // namespace app

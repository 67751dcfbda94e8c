#include "app/report/distribution_tables.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include "app/report/columns.h"

namespace app {

namespace {

Table averages(const DistributionResults& results)
{
    Table table{"distribution_averages",
                "Averages of the curves",
                {{"curve", "Curve", ""},
                 {"amount", "Amount", ""},
                 {"area", "Area", "1"},
                 {"pn", "Pn", "1"},
                 {"pw", "Pw", "1"},
                 columns::pdi},
                {}};
    if (results.segment_weight) {
        table.columns.push_back(columns::mn);
        table.columns.push_back(columns::mw);
    }
    for (const auto& curve : results.curves) {
        const auto& a = curve.averages;
        auto& row =
            table.rows.emplace_back(std::vector<Cell>{curve.name, curve.amount, a.area, a.pn, a.pw, a.pdi});
        if (!results.segment_weight) continue;
        row.emplace_back(a.mn);
        row.emplace_back(a.mw);
    }
    return table;
}

Table checks(const DistributionResults& results)
{
    Table table{"distribution_checks",
                "Curves against their sites, site parameters and moments",
                {{"curve", "Curve", ""},
                 {"pn", "Pn", "1"},
                 {"pn_expected", "expected", "1"},
                 {"pn_difference", "difference", "1"},
                 {"pw", "Pw", "1"},
                 {"pw_expected", "expected", "1"},
                 {"pw_difference", "difference", "1"},
                 {"source", "by", ""},
                 {"agrees", "Agrees", ""}},
                {}};
    for (const auto& c : results.checks)
        table.rows.push_back({c.curve, c.averages.pn, c.pn, c.pn_difference(), c.averages.pw, c.pw,
                              c.pw_difference(), c.source, std::string{c.agrees() ? "yes" : "no"}});
    return table;
}

Table curves(const DistributionResults& results)
{
    Table table{"distribution_curves", "Curves", {columns::chain_length}, {}, true};
    if (results.segment_weight) table.columns.push_back(columns::molecular_weight);
    table.columns.push_back({"cumulative", "Cumulative", "1"});
    for (const auto& curve : results.curves) table.columns.push_back({curve.name, curve.name, "1"});
    for (std::size_t k = 0; k < results.lengths.size(); ++k) {
        auto& row = table.rows.emplace_back(std::vector<Cell>{results.lengths[k]});
        if (results.segment_weight) row.emplace_back(results.molecular_weights[k]);
        row.emplace_back(results.cumulative[k]);
        for (const auto& curve : results.curves) row.emplace_back(curve.values[k]);
    }
    return table;
}

void add_pair(const std::string& key, const std::string& heading, const std::string& unit, double measured,
              double calculated, Table& table)
{
    table.columns.push_back({key + "_measured", heading + " measured", unit});
    table.columns.push_back({key + "_calculated", "calculated", unit});
    table.rows.front().emplace_back(measured);
    table.rows.front().emplace_back(calculated);
}

Table fit(const MeasuredComparison& gpc)
{
    Table table{"gpc_comparison",
                "Measured curve against the composite",
                {{"file", "File", ""},
                 {"points", "Points", ""},
                 {"residual", "Residual", "1"},
                 {"largest_difference", "Largest difference", "1"}},
                {{gpc.file, static_cast<Int>(gpc.measured.size()), gpc.residual, gpc.largest_difference}}};
    const auto& measured = gpc.measured_averages;
    const auto& calculated = gpc.calculated_averages;
    add_pair("mn", "Mn", "g/mol", measured.mn, calculated.mn, table);
    add_pair("mw", "Mw", "g/mol", measured.mw, calculated.mw, table);
    add_pair("mz", "Mz", "g/mol", measured.mz, calculated.mz, table);
    add_pair("mz1", "Mz+1", "g/mol", measured.mz1, calculated.mz1, table);
    add_pair("pdi", "Đ (Mw/Mn)", "1", measured.pdi, calculated.pdi, table);
    if (measured.mv) add_pair("mv", "Mv", "g/mol", *measured.mv, *calculated.mv, table);
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
                    {averages(results), checks(results), curves(results)}};
    if (const auto& measured = results.measured) {
        section.facts.emplace_back("gpc_notes", fmt::format("{}", fmt::join(measured->notes, "\n")));
        section.tables.insert(section.tables.end() - 1, fit(*measured));
        section.tables.push_back(measured_curve(*measured));
    }
    return section;
}

}  // namespace app

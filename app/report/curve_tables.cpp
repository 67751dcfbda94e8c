#include "app/report/curve_tables.h"

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
        row.emplace_back(a.pn * *results.segment_weight);
        row.emplace_back(a.pw * *results.segment_weight);
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
        if (results.segment_weight) row.emplace_back(results.lengths[k] * *results.segment_weight);
        row.emplace_back(results.cumulative[k]);
        for (const auto& curve : results.curves) row.emplace_back(curve.values[k]);
    }
    return table;
}

Table fit(const GpcComparison& gpc)
{
    return {"gpc_comparison",
            "Measured curve against the composite",
            {{"file", "File", ""},
             {"points", "Points", ""},
             {"residual", "Residual", "1"},
             {"largest_difference", "Largest difference", "1"},
             {"mn_measured", "Mn measured", "g/mol"},
             {"mn_calculated", "calculated", "g/mol"},
             {"mw_measured", "Mw measured", "g/mol"},
             {"mw_calculated", "calculated", "g/mol"}},
            {{gpc.file, static_cast<Int>(gpc.measured.size()), gpc.residual, gpc.largest_difference,
              gpc.mn_measured, gpc.mn_calculated, gpc.mw_measured, gpc.mw_calculated}}};
}

Table measured_curve(const GpcComparison& gpc)
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

std::vector<Cell> coefficient_row(const ParameterResults& results, std::size_t i, std::size_t j)
{
    const auto at = results.pair(i, j);
    std::vector<Cell> row{results.components[i], results.components[j]};
    for (std::size_t l = 0; l < results.positions; ++l)
        row.emplace_back(results.coefficients[at * results.positions + l]);
    row.emplace_back(std::string{results.is_given[at] ? "given" : "completed"});
    return row;
}

Table coefficients(const ParameterResults& results)
{
    Table table{"binary_coefficients",
                "Coefficients by position, completed",
                {columns::component, {"partner", "Partner", ""}},
                {}};
    for (std::size_t l = 1; l <= results.positions; ++l)
        table.columns.push_back({fmt::format("p{}", l), fmt::format("P{}", l), results.unit});
    table.columns.push_back({"origin", "Origin", ""});
    for (std::size_t i = 0; i < results.components.size(); ++i)
        for (std::size_t j = 0; j < results.components.size(); ++j)
            if (i != j && (results.is_given[results.pair(i, j)] || results.is_given[results.pair(j, i)]))
                table.rows.push_back(coefficient_row(results, i, j));
    return table;
}

// One square after the other: a row for each temperature and first component, a column for each second
// component.
Table squares(const ParameterResults& results, std::string key, std::string heading, const std::string& unit,
              const PairMatrix& (*matrix)(const ParametersAtTemperature&))
{
    Table table{
        std::move(key), std::move(heading), {{"temperature", "Temperature", "K"}, columns::component}, {}};
    for (const auto& component : results.components) table.columns.push_back({component, component, unit});
    for (const auto& at : results.temperatures)
        for (std::size_t i = 0; i < results.components.size(); ++i) {
            auto& row = table.rows.emplace_back(std::vector<Cell>{at.temperature, results.components[i]});
            for (std::size_t j = 0; j < results.components.size(); ++j)
                row.emplace_back(matrix(at)[results.pair(i, j)]);
        }
    return table;
}

}  // namespace

Section distribution_section(const DistributionResults& results, const GpcComparison* measured)
{
    Section section{"distribution",
                    results.name,
                    "Distribution " + results.name,
                    {{"form", results.is_gpc ? "gpc" : "weight-fraction"}},
                    {averages(results), checks(results), curves(results)}};
    if (measured) {
        section.facts.emplace_back("gpc_notes", fmt::format("{}", fmt::join(measured->notes, "\n")));
        section.tables.insert(section.tables.end() - 1, fit(*measured));
        section.tables.push_back(measured_curve(*measured));
    }
    return section;
}

Section parameter_section(const ParameterResults& results)
{
    const auto per_kelvin = results.unit == "1" ? "1/K" : results.unit + "/K";
    Section section{"parameter",
                    results.name,
                    "Binary parameters " + results.name,
                    {},
                    {coefficients(results),
                     squares(results, "binary_parameters", "Parameters", results.unit,
                             [](const auto& at) -> const PairMatrix& { return at.values; }),
                     squares(results, "binary_parameter_slopes", "Temperature times derivative", results.unit,
                             [](const auto& at) -> const PairMatrix& { return at.slopes; })}};
    if (!results.temperatures.empty() && results.temperatures.front().derivatives)
        section.tables.push_back(
            squares(results, "binary_parameter_derivatives", "Derivatives", per_kelvin,
                    [](const auto& at) -> const PairMatrix& { return *at.derivatives; }));
    return section;
}

}  // namespace app

#include "app/report/parameter_tables.h"

#include <fmt/format.h>

#include "app/report/columns.h"

namespace app {

namespace {

std::vector<Cell> coefficient_row(const ParameterResults& results, std::size_t i, std::size_t j)
{
    const auto at = results.pair(i, j);
    std::vector<Cell> row{results.components[i], results.components[j]};
    for (std::size_t l = 0; l < results.positions(); ++l)
        row.emplace_back(results.coefficients.values[at * results.positions() + l]);
    row.emplace_back(std::string{results.is_given[at] ? "given" : "completed"});
    return row;
}

Table coefficients(const ParameterResults& results)
{
    Table table{"binary_coefficients",
                "Coefficients by position, completed",
                {columns::component, {"partner", "Partner", ""}},
                {}};
    for (std::size_t l = 1; l <= results.positions(); ++l)
        table.columns.push_back({fmt::format("p{}", l), fmt::format("P{}", l), results.unit});
    table.columns.push_back({"origin", "Origin", ""});
    for (std::size_t i = 0; i < results.components.size(); ++i)
        for (std::size_t j = 0; j < results.components.size(); ++j)
            if (i != j && (results.is_given[results.pair(i, j)] || results.is_given[results.pair(j, i)]))
                table.rows.push_back(coefficient_row(results, i, j));
    return table;
}

Cell parameter_cell(const ParameterResults& results, const PairMatrix& matrix, std::size_t pair)
{
    if (results.has_data[pair] == 0) return NoData{};
    return matrix[pair];
}

// One square after the other: a row for each temperature and first component, a column for each second
// component.
Table matrix_table(const ParameterResults& results, std::string key, std::string heading,
                   const std::string& unit, const PairMatrix& (*matrix)(const ParametersAtTemperature&))
{
    Table table{
        std::move(key), std::move(heading), {{"temperature", "Temperature", "K"}, columns::component}, {}};
    for (const auto& component : results.components) table.columns.push_back({component, component, unit});
    for (const auto& at : results.temperatures)
        for (std::size_t i = 0; i < results.components.size(); ++i) {
            auto& row = table.rows.emplace_back(std::vector<Cell>{at.temperature, results.components[i]});
            for (std::size_t j = 0; j < results.components.size(); ++j)
                row.push_back(parameter_cell(results, matrix(at), results.pair(i, j)));
        }
    return table;
}

}  // namespace

Section parameter_section(const ParameterResults& results)
{
    const auto per_kelvin = results.unit == "1" ? "1/K" : results.unit + "/K";
    Section section{
        "parameter",
        results.name,
        "Binary parameters " + results.name,
        {},
        {coefficients(results),
         matrix_table(results, "binary_parameters", "Parameters", results.unit,
                      [](const auto& at) -> const PairMatrix& { return at.values; }),
         matrix_table(results, "binary_parameter_slopes", "Temperature times derivative", results.unit,
                      [](const auto& at) -> const PairMatrix& { return at.slopes; })}};
    if (!results.temperatures.empty() && results.temperatures.front().derivatives)
        section.tables.push_back(
            matrix_table(results, "binary_parameter_derivatives", "Derivatives", per_kelvin,
                         [](const auto& at) -> const PairMatrix& { return *at.derivatives; }));
    return section;
}

}  // namespace app

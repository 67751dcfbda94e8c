// Every number of a report with what leads to it.
#pragma once

#include <string>
#include <vector>

#include "app/report/report_model.h"

namespace app {

struct ResultNumber {
    const Section* section;
    const Table* table;
    std::string item;  // what else tells the rows of a table apart: a basis, a curve, a temperature
    std::string component;
    std::string segment;
    const Column* quantity;
    Cell value;  // double, Int or NoData

    // The path that a sweep heads a column with.
    std::string key() const;
};

// Also where the number has no data.
bool is_number(const Cell& cell);
// With every digit; empty without data.
std::string text(const Cell& cell);
// The text of the named column, empty in a table without it.
std::string text_of(const Table& table, const std::vector<Cell>& row, std::string_view key);

// In the order of the report, which has to outlive them.
std::vector<ResultNumber> result_numbers(const Report& report);

// Texts of CSV fields: as they are, or with ' before those that a spreadsheet would take for a formula: with
// =, +, -, @, a tab or a line end at the start.
enum class CsvTexts { exact, guarded };

// Quotes a field with a comma, a quote or a line end; quotes inside it are doubled.
std::string csv_field(const std::string& text, CsvTexts texts = CsvTexts::exact);

}  // namespace app

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
    Cell value;  // double or Int; empty where a result has no value

    // The path that a sweep heads a column with.
    std::string key() const;
};

bool is_number(const Cell& cell);
// With every digit.
std::string text(const Cell& cell);
// The text of the named column, empty in a table without it.
std::string text_of(const Table& table, const std::vector<Cell>& row, std::string_view key);

// In the order of the report, which has to outlive them.
std::vector<ResultNumber> result_numbers(const Report& report);

// Quotes a field with a comma, a quote or a line end; quotes inside it are doubled.
std::string csv_field(const std::string& text);

}  // namespace app

// One tidy table: a line for each number, with what it is the number of. The rows of an input table are
// numbered, since no text tells two entries for one component apart.
#include <fmt/format.h>

#include "app/report/format.h"
#include "app/report/result_numbers.h"

namespace app {

namespace {

std::string input_csv(const std::vector<Table>& tables, CsvTexts texts)
{
    const auto field = [texts](const std::string& text) { return csv_field(text, texts); };
    std::string csv = "table,entry,component,segment,attribute,quantity,value,unit\n";
    for (const auto& table : tables)
        for (std::size_t r = 0; r < table.rows.size(); ++r) {
            auto lead = fmt::format("{},{}", table.key, r + 1);
            for (const auto* key : {"component", "segment", "attribute"})
                lead += "," + field(text_of(table, table.rows[r], key));
            for (std::size_t i = 0; i < table.rows[r].size(); ++i)
                if (is_number(table.rows[r][i]))
                    csv += fmt::format("{},{},{},{}\n", lead, field(table.columns[i].key),
                                       text(table.rows[r][i]), field(table.columns[i].unit));
        }
    return csv;
}

}  // namespace

std::string format_csv(const Report& report, CsvTexts texts)
{
    if (report.sections.empty()) return input_csv(report.input, texts);
    const auto field = [texts](const std::string& text) { return csv_field(text, texts); };
    std::string csv = "section,name,table,item,component,segment,quantity,value,unit\n";
    for (const auto& n : result_numbers(report))
        csv += fmt::format("{},{},{},{},{},{},{},{},{}\n", n.section->kind, field(n.section->name),
                           n.table->key, field(n.item), field(n.component), field(n.segment),
                           field(n.quantity->key), text(n.value), field(n.quantity->unit));
    return csv;
}

}  // namespace app

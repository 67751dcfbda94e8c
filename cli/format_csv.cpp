// One tidy table: a line for each number, with what it is the number of.
#include <fmt/format.h>

#include "cli/numbers.h"

namespace cli {

std::string format_csv(const Report& report)
{
    std::string csv = "section,name,table,item,component,segment,quantity,value,unit\n";
    for (const auto& n : numbers(report))
        csv += fmt::format("{},{},{},{},{},{},{},{},{}\n", n.section->kind, csv_field(n.section->name), n.table->key,
                           csv_field(n.item), csv_field(n.component), csv_field(n.segment),
                           csv_field(n.quantity->key), n.text(), csv_field(n.quantity->unit));
    return csv;
}

}  // namespace cli

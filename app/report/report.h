// Results as tables. Every format writes the same report: a new result becomes a table here and appears in
// all of them.
#pragma once

#include <string>
#include <variant>
#include <vector>

#include "app/host_setup/loaded_case.h"
#include "app/evaluation/stream_results.h"

namespace app {

using Cell = std::variant<std::string, double, Int>;

struct Column {
    std::string key;      // stable name in CSV and JSON
    std::string heading;  // as text shows it
    std::string unit;     // "1" for a ratio; empty for texts, counts and codes
};

struct Table {
    std::string key;
    std::string heading;
    std::vector<Column> columns;
    std::vector<std::vector<Cell>> rows;
    bool is_long = false;  // a curve, of which text and pages only say that it is there
};

// The tables of one stream, reactor, distribution or binary parameter set.
struct Section {
    std::string kind;  // "stream", "reactor", "distribution", "parameter"
    std::string name;
    std::string heading;                                     // as text shows it
    std::vector<std::pair<std::string, std::string>> facts;  // keys and texts that tell more of it
    std::vector<Table> tables;
};

struct Report {
    std::string title;
    std::string file;
    std::vector<PlacedMessage> messages;  // shown by JSON alone: in the other formats they go elsewhere
    std::vector<Table> input;             // what was built from the polymer paragraph
    std::vector<Section> sections;
};

Report make_report(const Case& input, const CheckedInput& checked, const Results& results);

// What was built, and nothing but the messages when there is one.
Report make_input_report(const Case& input, const CheckedInput& checked);

// The composition of one stream on the basis `from` and on the basis `to`.
Report make_conversion_report(const Case& input, const CheckedInput& checked, const std::string& stream,
                              const std::vector<Composition>& compositions);

// One line for each number of the report that is not finite.
std::vector<std::string> not_finite(const Report& report);

std::string format_text(const Report& report);
std::string format_csv(const Report& report);
std::string format_json(const Report& report);

}  // namespace app

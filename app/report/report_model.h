// Results as tables. Every format shows the same report: a new result becomes a table and appears in all of
// them.
#pragma once

#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "app/case/case_model.h"
#include "app/case/input_message.h"

namespace app {

// std::monostate: a result without a value.
using Cell = std::variant<std::string, double, Int, std::monostate>;

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
    bool is_long = false;  // a curve, which text and pages omit
};

// The tables of one stream, reactor, distribution or binary parameter set.
struct Section {
    std::string kind;  // "stream", "reactor", "distribution", "parameter"
    std::string name;
    std::string heading;                                     // as text shows it
    std::vector<std::pair<std::string, std::string>> facts;  // further keys and texts
    std::vector<Table> tables;
};

struct Report {
    std::string title;
    std::string file;
    std::vector<InputMessage> messages;   // of the library's input checks, as JSON shows them
    std::vector<Diagnostic> diagnostics;  // errors and messages first, then warnings
    std::vector<Table> input;             // the polymer paragraph as checked
    std::vector<Section> sections;
};

// True when an error or a message makes the run a failure.
bool has_errors(const Report& report);

}  // namespace app

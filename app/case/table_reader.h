// Reads one table of a case file key by key and reports what does not fit.
//
// Every value that is asked for and unusable leaves one diagnostic and an empty answer, so that reading goes
// on and all errors of a file are found in one run. `finish` reports the keys that nobody asked for, and
// tells whether the value may be used: a reader returns none when any part of it left a diagnostic.
#pragma once

#include <toml++/toml.h>

#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <vector>

#include "app/case/diagnostics.h"

namespace app {

// What a number has to be besides finite.
enum class Range { any, not_negative, positive };

// Whole numbers from `least` to `greatest`.
struct WholeRange {
    std::int64_t least = std::numeric_limits<std::int64_t>::min();
    std::int64_t greatest = std::numeric_limits<std::int64_t>::max();
};

// A value of the file with its key path and its place.
struct Entry {
    std::string key;
    std::string path;
    SourcePosition source;
    const toml::node* node = nullptr;
};

// The path of a key of a table, in a form that can be read back: a key with a point or a blank is quoted.
std::string joined(const std::string& path, std::string_view key);

class TableReader {
public:
    TableReader(const toml::table& table, std::string path, SourcePosition source, Diagnostics& diagnostics);

    // Absent: empty and no diagnostic.
    std::optional<double> number(std::string_view key, Range range);
    std::optional<std::int64_t> whole_number(std::string_view key, WholeRange range);
    std::optional<std::string> text(std::string_view key);
    std::optional<std::string> title(std::string_view key);
    std::optional<TableReader> table(std::string_view key);
    std::vector<Entry> array(std::string_view key, std::string_view content = {});
    std::optional<Entry> entry(std::string_view key);

    // Absent: a diagnostic that says what was expected.
    std::optional<double> required_number(std::string_view key, Range range);
    std::optional<std::int64_t> required_whole_number(std::string_view key, WholeRange range);
    std::optional<std::string> required_text(std::string_view key);
    std::vector<Entry> required_array(std::string_view key, std::string_view content);

    // Every key of a table whose keys are free, in the order of the file.
    std::vector<Entry> entries();
    bool is_empty() const { return table_->empty(); }

    // Reports an absent key; a key with an unusable value has been reported already.
    void missing(std::string_view key, std::string_view expected);

    // False when anything in the table left a diagnostic but for unknown keys.
    [[nodiscard]] bool finish();
    // For a table that is part of a larger value, whose own reader answers for it, and for a value that is
    // whole with the defaults of what could not be read.
    void finish_part();

    const std::string& path() const { return path_; }
    const SourcePosition& source() const { return source_; }
    Diagnostics& diagnostics() const { return *diagnostics_; }

private:
    const toml::table* table_;
    std::string path_;
    SourcePosition source_;
    Diagnostics* diagnostics_;
    std::size_t reported_before_;
    std::vector<std::string> asked_;
};

// The same for an entry that is already at hand.
std::optional<double> read_number(const Entry& entry, Range range, Diagnostics& diagnostics);
std::optional<std::int64_t> read_whole_number(const Entry& entry, WholeRange range, Diagnostics& diagnostics);
// A name or another text of one line.
std::optional<std::string> read_text(const Entry& entry, Diagnostics& diagnostics);
std::optional<TableReader> read_table(const Entry& entry, Diagnostics& diagnostics);
// An array with content may not be empty; `content` tells what was expected, as "at least one site".
std::vector<Entry> read_array(const Entry& entry, Diagnostics& diagnostics, std::string_view content = {});

// One of a few words; a diagnostic names them all.
template <typename Choice>
struct Word {
    std::string_view text;
    Choice value;
};
template <typename Choice, std::size_t N>
std::optional<Choice> read_word(const Entry& entry, const Word<Choice> (&words)[N], Diagnostics& diagnostics)
{
    const auto seen = read_text(entry, diagnostics);
    if (!seen) return {};
    std::vector<std::string_view> texts;
    for (const auto& word : words) {
        if (word.text == *seen) return word.value;
        texts.push_back(word.text);
    }
    diagnostics.add(entry.source, entry.path + " is \"" + *seen + "\"" + suggestion(*seen, texts));
    return {};
}

}  // namespace app

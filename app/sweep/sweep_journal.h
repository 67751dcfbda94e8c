// The rows of a sweep that is not finished: a file next to the result.
//
// Its first line says which sweep it belongs to; the others are rows, in the order in which cases end. Each
// line begins with its checksum, that of a row covers the first line too. Lines of any other form are
// dropped, whatever left them, and so is a second row of a case.
#pragma once

#include <filesystem>
#include <map>
#include <string>

#include "app/io/descriptor.h"

namespace app {

class SweepJournal {
public:
    // Takes up the journal of the same sweep with that many cases, or begins one; `sweep` is a line that
    // identifies it. A result that is a stream has no journal. Throws std::runtime_error for a journal of
    // another sweep, and while another process writes it.
    SweepJournal(std::filesystem::path result, const std::string& sweep, std::size_t cases);

    const std::map<std::size_t, std::string>& rows() const { return rows_; }
    // Throws std::runtime_error when the disk refuses it.
    void add(std::size_t number, const std::string& row);
    // For the result alone: a sweep that goes on later computes the case again.
    void add_for_now(std::size_t number, const std::string& row) { rows_[number] = row; }
    // Writes the result, its header and the rows in the order of their numbers, and removes the journal.
    void finish(const std::string& header);

    // Where the journal of a result is; empty for a stream, which has none.
    static std::filesystem::path file_for(const std::filesystem::path& result);

    // Empty where there is none.
    const std::filesystem::path& file() const { return file_; }

private:
    void lock() const;
    void take_up(const std::string& text);
    bool accept(std::string_view line);
    std::string line(std::string_view row) const;
    void append(std::string_view text) const;

    std::filesystem::path result_;
    std::filesystem::path file_;
    std::string head_;  // first line
    std::size_t cases_;
    std::map<std::size_t, std::string> rows_;
    Descriptor descriptor_;
};

}  // namespace app

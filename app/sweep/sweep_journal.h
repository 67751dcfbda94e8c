// The rows of a sweep that is not finished: a file next to the result.
//
// Its first line says which sweep it belongs to, the second holds the names of the columns; a row is complete
// when its line end is there. Rows come in the order in which cases end.
#pragma once

#include <filesystem>
#include <map>
#include <string>

#include "app/io/file_handle.h"

namespace app {

class SweepJournal {
public:
    // Takes up the journal of the same sweep, or begins one. Throws std::runtime_error for one of another
    // sweep.
    SweepJournal(std::filesystem::path result, const std::string& sweep, std::string header);

    const std::map<std::size_t, std::string>& rows() const { return rows_; }
    // Throws std::runtime_error when the disk refuses it.
    void add(std::size_t number, const std::string& row);
    // Writes the result, rows in the order of their numbers, and removes the journal.
    void finish();

    const std::filesystem::path& file() const { return file_; }

private:
    void take_up(const std::string& sweep);
    void append(const std::string& line);

    std::filesystem::path result_;
    std::filesystem::path file_;
    std::string header_;
    std::map<std::size_t, std::string> rows_;
    FileHandle stream_;
};

}  // namespace app

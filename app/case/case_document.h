// The text of a case, parsed once. Its numbers can be read and replaced by key, and it can be read as a Case
// any number of times.
//
// Keys are those of diagnostics: `streams.FEED.attributes.PS.ZMOM`, `distributions.PE.sites[2].tau`. A part
// with other characters than letters, digits, - and _ is in quotes; elements of arrays count from 1.
#pragma once

#include <toml++/toml.h>

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "app/case/case_model.h"

namespace app {

struct Override {
    std::string key;
    double value = 0;
};

class CaseDocument {
public:
    // `file` names the text in diagnostics. A text that is not TOML has no numbers; `read` reports it.
    CaseDocument(std::string_view text, std::string file);

    // Throws std::runtime_error when the file cannot be read.
    static CaseDocument from_file(const std::filesystem::path& file);

    const std::string& file() const { return file_; }

    // Keys of all numbers, in the order of the file.
    std::vector<std::string> keys() const;

    // Both throw std::invalid_argument for a key that leads to no number of the case; the text suggests one.
    double number(const std::string& key) const;
    void set_number(const std::string& key, double value);

    // The case, of use only while `diagnostics` is empty. All errors of the file are found in one pass.
    Case read(Diagnostics& diagnostics) const;

private:
    // The node of a number and the table or array that holds it.
    toml::node& find(const std::string& key, toml::node*& parent) const;

    std::string file_;
    mutable toml::table root_;  // its search has one form, for nodes that may be changed
    Diagnostics syntax_errors_;
};

}  // namespace app

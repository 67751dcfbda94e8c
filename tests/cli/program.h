// The program without its command line, and its results as JSON.
#pragma once

#include <gtest/gtest.h>

#include <fstream>
#include <nlohmann/json.hpp>

#include "cli/commands.h"
#include "support/capture.h"
#include "support/scratch.h"

namespace cli_test {

using cli::Format;
using Json = nlohmann::json;

inline const std::filesystem::path examples{POLYPROPS_EXAMPLES};

using support::Outcome;

inline Outcome run(const std::filesystem::path& file, Format format)
{
    return support::capture(cli::run, file, format);
}

inline Json run_json(const std::string& example)
{
    const auto [status, out, errors] = run(examples / example, Format::json);
    EXPECT_EQ(status, 0) << errors;
    return Json::parse(out);
}

// A run with options, of which `file` and `format` hold as well.
inline Outcome run(cli::RunOptions options, const std::filesystem::path& file, Format format)
{
    const auto command = [&](const auto& path, Format form, std::FILE* out, std::FILE* errors) {
        options.file = path;
        options.format = form;
        return cli::run_case(options, out, errors);
    };
    return support::capture(command, file, format);
}

// The same of a case that stands in no file.
inline Outcome run_text(const std::string& text, Format format)
{
    const auto file = support::scratch() / "case.toml";
    std::ofstream{file} << text;
    auto outcome = run(file, format);
    std::filesystem::remove(file);
    return outcome;
}

// A row with these texts in a table of the named section.
inline Json row(const Json& report, const std::string& name, const std::string& table, const Json& texts)
{
    for (const auto* kind : {"streams", "reactors", "distributions", "parameters"})
        for (const auto& section : report.value(kind, Json::array())) {
            if (section["name"] != name || !section.contains(table)) continue;
            for (const auto& r : section[table]) {
                auto merged = r;
                merged.update(texts);
                if (merged == r) return r;
            }
        }
    ADD_FAILURE() << name << " has no row " << texts << " in " << table;
    return {};
}

}  // namespace cli_test

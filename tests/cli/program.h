// The program without its command line, and its results as JSON or by their paths.
#pragma once

#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <nlohmann/json.hpp>

#include "app/case/case_document.h"
#include "app/evaluation/evaluation.h"
#include "app/host_setup/loaded_case.h"
#include "app/report/format.h"
#include "app/report/make_report.h"
#include "app/report/result_numbers.h"
#include "cli/run_command.h"
#include "support/capture.h"
#include "support/change_rows.h"
#include "support/files.h"

namespace cli_test {

using app::Format;
using support::expect_each;
using support::Outcome;
using support::with;
using Json = nlohmann::json;
using Lines = support::Texts;

inline const std::filesystem::path examples{POLYPROPS_EXAMPLES};

// A file for the time of a test.
struct File {
    explicit File(const std::string& text = {}, const std::string& name = "case.toml")
        : path(support::scratch() / name)
    {
        if (!text.empty()) std::ofstream{path} << text;
    }
    ~File() { std::filesystem::remove(path); }
    const std::filesystem::path path;
};

// A run with options, of which `file` and `format` are set here.
inline Outcome run(cli::RunOptions options, const std::filesystem::path& file, Format format)
{
    const auto command = [&](const auto& path, Format form, std::FILE* out, std::FILE* errors) {
        options.file = path;
        options.format = form;
        return cli::run(options, out, errors);
    };
    return support::capture(command, file, format);
}

inline Outcome run(const std::filesystem::path& file, Format format)
{
    return run(cli::RunOptions{}, file, format);
}

inline Json run_json(const std::filesystem::path& file)
{
    const auto [status, out, errors] = run(examples / file, Format::json);
    EXPECT_EQ(status, 0) << errors;
    return Json::parse(out);
}

// A case without errors in its text.
inline app::Case parsed(const std::string& text)
{
    app::Diagnostics diagnostics;
    auto input = app::CaseDocument{text, "c.toml"}.read(diagnostics);
    EXPECT_TRUE(diagnostics.empty()) << diagnostics.lines("c.toml").front();
    return input;
}

// What the reader says of a text, or what its streams lack.
inline Lines diagnose(const std::string& text)
{
    app::Diagnostics diagnostics;
    const auto input = app::CaseDocument{text, "c.toml"}.read(diagnostics);
    if (!diagnostics.empty()) return diagnostics.lines("c.toml");
    app::LoadedCase loaded{input};
    EXPECT_TRUE(loaded.messages().empty());
    return loaded.add_streams(input).lines("c.toml");
}

struct Evaluation {
    app::Case input;
    app::Results results;
    app::Report report;

    // One line for each diagnostic of the report.
    Lines diagnostics() const
    {
        Lines lines;
        for (const auto& found : report.diagnostics) lines.push_back(line(found, report.file));
        return lines;
    }
};

inline Evaluation evaluated(app::Case input)
{
    auto results = app::evaluate(input);
    auto report = app::make_report(input, results);
    return {std::move(input), std::move(results), std::move(report)};
}

inline Evaluation evaluated(const std::string& text)
{
    return evaluated(parsed(text));
}

inline Json json(const Evaluation& e)
{
    return Json::parse(app::format_json(e.report));
}

// The number of a report at the path that a sweep heads its column with.
inline double number(const Evaluation& e, const std::string& path)
{
    for (const auto& n : app::result_numbers(e.report))
        if (n.key() == path) return std::get<double>(n.value);
    ADD_FAILURE() << "there is no " << path;
    return 0;
}

}  // namespace cli_test

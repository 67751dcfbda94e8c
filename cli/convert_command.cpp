#include "cli/convert_command.h"

#include <memory>

#include <fmt/format.h>

#include <algorithm>

#include "app/evaluation/evaluation.h"
#include "app/report/make_report.h"

namespace cli {

namespace {

// Why there is no such conversion; empty when there is one.
std::string impossible(const Conversion& conversion)
{
    if (conversion.from == conversion.to)
        return fmt::format("--from and --to are both \"{}\"; expected two bases", text(conversion.from));
    if (conversion.from == app::Basis::segment)
        return "--from is \"segment\"; expected \"apparent\" or \"true\", since segments do not tell which "
               "chains they came from";
    return {};
}

// Why the case has no such stream; empty when it has.
std::string unknown_stream(const std::string& stream, const app::Case& input)
{
    std::vector<std::string_view> streams;
    for (const auto& known : input.streams) streams.push_back(known.name.id);
    if (std::ranges::find(streams, stream) != streams.end()) return {};
    return fmt::format("{} has no stream \"{}\"{}", input.file, stream, app::suggestion(stream, streams));
}

int convert_unguarded(const std::filesystem::path& file, const Conversion& conversion, app::Format format,
                      std::FILE* out, std::FILE* errors, Strictness strictness, app::CsvTexts texts)
{
    if (const auto why = impossible(conversion); !why.empty()) return refuse(why, errors);
    const auto input = read(file, errors);
    if (!input) return exit_case_error;
    const auto& [stream, from, to] = conversion;
    if (const auto why = unknown_stream(stream, *input); !why.empty()) return refuse(why, errors);
    const auto results = app::evaluate_conversion(*input, stream, from, to);
    const auto report = app::make_conversion_report(*input, results);
    if (results.is_complete) return show(report, format, out, errors, strictness, texts);
    print(report.diagnostics, report.file, errors);
    return exit_case_error;
}

}  // namespace

int convert(const std::filesystem::path& file, const Conversion& conversion, app::Format format,
            std::FILE* out, std::FILE* errors, Strictness strictness, app::CsvTexts texts)
{
    return guarded(
        [&] { return convert_unguarded(file, conversion, format, out, errors, strictness, texts); }, errors);
}

void add_convert_command(CLI::App& program, int& status)
{
    struct Options {
        std::filesystem::path file;
        app::Format format = app::Format::text;
        Strictness strictness = Strictness::normal;
        app::CsvTexts texts = app::CsvTexts::exact;
        Conversion conversion{{}, app::Basis::apparent, app::Basis::true_chains};
    };
    const auto options = std::make_shared<Options>();
    auto* command = add_case_command(
        program, "convert", "Print one stream on two bases: apparent, true or segment", options->file);
    add_format(*command, options->format);
    add_csv_safe(*command, options->texts);
    add_strict(*command, options->strictness);
    command->add_option("--stream", options->conversion.stream, "Name of the stream")->required();
    const Words<app::Basis> bases{{"apparent", app::Basis::apparent},
                                  {"true", app::Basis::true_chains},
                                  {"segment", app::Basis::segment}};
    add_choice(*command, "--from", options->conversion.from, bases, "BASIS", "apparent or true")->required();
    add_choice(*command, "--to", options->conversion.to, bases, "BASIS", "apparent, true or segment")
        ->required();
    command->callback([options, &status] {
        status = convert(options->file, options->conversion, options->format, stdout, stderr,
                         options->strictness, options->texts);
    });
}

}  // namespace cli

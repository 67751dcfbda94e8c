#include "cli/check_command.h"

#include <memory>

#include "app/evaluation/input_results.h"
#include "app/report/make_report.h"

namespace cli {

int check(const std::filesystem::path& file, app::Format format, std::FILE* out, std::FILE* errors,
          Strictness strictness, app::CsvTexts texts)
{
    const auto command = [&] {
        const auto input = read(file, errors);
        if (!input) return exit_case_error;
        const auto report = app::make_input_report(*input, app::evaluate_input(*input));
        if (!has_errors(report) || format == app::Format::json)
            return show(report, format, out, errors, strictness, texts);
        print(report.diagnostics, report.file, errors);
        return exit_case_error;
    };
    return guarded(command, errors);
}

void add_check_command(CLI::App& program, int& status)
{
    struct Options {
        std::filesystem::path file;
        app::Format format = app::Format::text;
        Strictness strictness = Strictness::normal;
        app::CsvTexts texts = app::CsvTexts::exact;
    };
    const auto options = std::make_shared<Options>();
    auto* command = add_case_command(
        program, "check", "Check the polymer paragraph and print what was built from it", options->file);
    add_format(*command, options->format);
    add_csv_safe(*command, options->texts);
    add_strict(*command, options->strictness);
    command->callback([options, &status] {
        status = check(options->file, options->format, stdout, stderr, options->strictness, options->texts);
    });
}

}  // namespace cli

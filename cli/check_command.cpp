#include "cli/check_command.h"

#include "app/evaluation/input_results.h"
#include "app/report/make_report.h"

namespace cli {

int check(const std::filesystem::path& file, app::Format format, std::FILE* out, std::FILE* errors)
{
    const auto command = [&] {
        const auto input = read(file, errors);
        if (!input) return exit_case_error;
        const auto report = app::make_input_report(*input, app::evaluate_input(*input));
        if (!has_errors(report) || format == app::Format::json) return show(report, format, out, errors);
        print(report.diagnostics, report.file, errors);
        return exit_case_error;
    };
    return guarded(command, errors);
}

}  // namespace cli

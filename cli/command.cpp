#include "cli/command.h"

#include <fmt/format.h>

#include <cerrno>
#include <cmath>
#include <cstring>
#include <stdexcept>

#include "app/case/case_document.h"
#include "app/io/visible_text.h"

namespace cli {

void write(const std::string& text, std::FILE* out)
{
    if (std::fwrite(text.data(), 1, text.size(), out) != text.size() || std::fflush(out) != 0)
        throw std::runtime_error{fmt::format("standard output cannot be written: {}", std::strerror(errno))};
}

void print(const std::vector<app::Diagnostic>& diagnostics, const std::string& file, std::FILE* errors)
{
    for (const auto& diagnostic : diagnostics) fmt::print(errors, "{}\n", line(diagnostic, file));
}

std::optional<app::Case> read(const std::filesystem::path& file, std::FILE* errors)
{
    app::Diagnostics diagnostics;
    auto input = app::CaseDocument::from_file(file).read(diagnostics);
    print(diagnostics.sorted(), input.file, errors);
    if (!diagnostics.empty()) return {};
    return input;
}

int show(const app::Report& report, app::Format format, std::FILE* out, std::FILE* errors,
         Strictness strictness, app::CsvTexts texts)
{
    print(report.diagnostics, report.file, errors);
    write(formatted(report, format, texts), out);
    const bool fails = has_errors(report) || (strictness == Strictness::strict && app::has_warnings(report));
    return fails ? exit_case_error : exit_success;
}

CLI::App* add_case_command(CLI::App& program, const char* name, const char* purpose,
                           std::filesystem::path& file)
{
    auto* command = program.add_subcommand(name, purpose);
    command->add_option("CASE", file, "Case file (TOML)")->required()->type_name("TEXT");
    return command;
}

void add_format(CLI::App& command, app::Format& format)
{
    add_choice<app::Format>(
        command, "--format", format,
        {{"text", app::Format::text}, {"csv", app::Format::csv}, {"json", app::Format::json}}, "FORMAT",
        "Form of the results (default: text)");
}

void add_csv_safe(CLI::App& command, app::CsvTexts& texts)
{
    command.add_flag_callback(
        "--csv-safe", [&texts] { texts = app::CsvTexts::guarded; },
        "Put ' before CSV texts that a spreadsheet would take for a formula");
}

void add_strict(CLI::App& command, Strictness& strictness)
{
    command.add_flag_callback(
        "--strict", [&strictness] { strictness = Strictness::strict; }, "Exit with 1 on warnings as well");
}

CLI::Validator positive_number()
{
    const auto fault = [](const std::string& seen) -> std::string {
        double value = 0;
        const bool is_number = CLI::detail::lexical_cast(seen, value);
        if (is_number && std::isfinite(value) && value > 0) return {};
        return fmt::format("\"{}\"; expected a finite number greater than 0", seen);
    };
    return CLI::Validator{fault, "POSITIVE"};
}

int refuse(const std::string& why, std::FILE* errors)
{
    fmt::print(errors, "polyprops: {}\n", app::visible(why, true));
    return exit_usage;
}

int fail(const std::string& why, std::FILE* errors)
{
    fmt::print(errors, "polyprops: {}\n", app::visible(why, true));
    return exit_case_error;
}

}  // namespace cli

#include "cli/commands.h"

#include <fmt/format.h>

#include <stdexcept>

#include "cli/case_reader.h"
#include "cli/load.h"
#include "cli/report.h"

namespace cli {

namespace {

std::string formatted(const Report& report, Format format)
{
    switch (format) {
        case Format::text:
            return format_text(report);
        case Format::csv:
            return format_csv(report);
        case Format::json:
            return format_json(report);
    }
    return {};
}

int write(const std::string& text, std::FILE* out)
{
    if (std::fwrite(text.data(), 1, text.size(), out) != text.size() || std::fflush(out) != 0)
        throw std::runtime_error{"the results cannot be written"};
    return exit_success;
}

int run_checked(const std::filesystem::path& file, Format format, std::FILE* out, std::FILE* errors)
{
    Diagnostics diagnostics;
    const auto input = read_case(file, diagnostics);
    for (const auto& line : diagnostics.lines(input.file)) fmt::print(errors, "{}\n", line);
    if (!diagnostics.empty()) return exit_case_error;
    const auto host = load(input);
    const auto report = make_report(input, evaluate(input, *host));
    write(formatted(report, format), out);
    const auto unusable = not_finite(report);
    for (const auto& line : unusable) fmt::print(errors, "{}: {}\n", input.file, line);
    return unusable.empty() ? exit_success : exit_case_error;
}

}  // namespace

int run(const std::filesystem::path& file, Format format, std::FILE* out, std::FILE* errors)
{
    try {
        return run_checked(file, format, out, errors);
    } catch (const std::exception& error) {
        fmt::print(errors, "polyprops: {}\n", error.what());
        return exit_case_error;
    }
}

}  // namespace cli

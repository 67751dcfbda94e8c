#include "cli/commands.h"

#include <fmt/format.h>

#include <optional>
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

void write(const std::string& text, std::FILE* out)
{
    if (std::fwrite(text.data(), 1, text.size(), out) != text.size() || std::fflush(out) != 0)
        throw std::runtime_error{"the results cannot be written"};
}

void print(const std::vector<std::string>& lines, std::FILE* errors)
{
    for (const auto& line : lines) fmt::print(errors, "{}\n", line);
}

// The case as far as it can be read, and what the library's input checks made of it; empty, with all errors
// printed, when it cannot be.
struct Checked {
    Case input;
    CheckedInput checked;
};
std::optional<Checked> read_and_check(const std::filesystem::path& file, std::FILE* errors)
{
    Diagnostics diagnostics;
    auto input = read_case(file, diagnostics);
    print(diagnostics.lines(input.file), errors);
    if (!diagnostics.empty()) return {};
    auto checked = check_input(input);
    for (const auto& message : checked.messages) print(lines(message, input.file), errors);
    return Checked{std::move(input), std::move(checked)};
}

int check_case(const std::filesystem::path& file, Format format, std::FILE* out, std::FILE* errors)
{
    const auto read = read_and_check(file, errors);
    if (!read) return exit_case_error;
    const bool is_good = read->checked.messages.empty();
    if (is_good || format == Format::json)
        write(formatted(make_input_report(read->input, read->checked), format), out);
    return is_good ? exit_success : exit_case_error;
}

int run_case(const std::filesystem::path& file, Format format, std::FILE* out, std::FILE* errors)
{
    const auto read = read_and_check(file, errors);
    if (!read) return exit_case_error;
    const auto& [input, checked] = *read;
    const auto unfit = add_streams(input, checked);
    print(unfit.lines(input.file), errors);
    const bool is_good = checked.messages.empty();
    // Values need not fit what is left of a paragraph in error; those of a good one are themselves in error.
    if (is_good && !unfit.empty()) return exit_case_error;
    const auto report = make_report(input, checked, evaluate(input, *checked.host));
    write(formatted(report, format), out);
    const auto unusable = not_finite(report);
    for (const auto& line : unusable) fmt::print(errors, "{}: {}\n", input.file, line);
    return is_good && unusable.empty() ? exit_success : exit_case_error;
}

using Command = int(const std::filesystem::path&, Format, std::FILE*, std::FILE*);

int guarded(Command& command, const std::filesystem::path& file, Format format, std::FILE* out,
            std::FILE* errors)
{
    try {
        return command(file, format, out, errors);
    } catch (const std::exception& error) {
        fmt::print(errors, "polyprops: {}\n", error.what());
        return exit_case_error;
    }
}

}  // namespace

int run(const std::filesystem::path& file, Format format, std::FILE* out, std::FILE* errors)
{
    return guarded(run_case, file, format, out, errors);
}

int check(const std::filesystem::path& file, Format format, std::FILE* out, std::FILE* errors)
{
    return guarded(check_case, file, format, out, errors);
}

}  // namespace cli

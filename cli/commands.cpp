#include "cli/commands.h"

#include <fmt/format.h>

#include <algorithm>
#include <optional>
#include <stdexcept>

#include "app/case/case_reader.h"
#include "app/host_setup/loaded_case.h"
#include "app/report/report.h"

namespace cli {

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

namespace {

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

int print(const Report& report, const Checked& read, Format format, std::FILE* out, std::FILE* errors)
{
    write(formatted(report, format), out);
    const auto unusable = not_finite(report);
    for (const auto& line : unusable) fmt::print(errors, "{}: {}\n", report.file, line);
    return read.checked.messages.empty() && unusable.empty() ? exit_success : exit_case_error;
}

// Lays the streams into the host; false when the case cannot go on.
bool add_streams(const Checked& read, std::FILE* errors)
{
    const auto unfit = add_streams(read.input, read.checked);
    print(unfit.lines(read.input.file), errors);
    // Values need not fit what is left of a paragraph in error; those of a good one are themselves in error.
    return unfit.empty() || !read.checked.messages.empty();
}

// Why the case has no such stream; empty when it has.
std::string unknown_stream(const std::string& stream, const Case& input)
{
    std::vector<std::string_view> streams;
    for (const auto& known : input.streams) streams.push_back(known.name.id);
    if (std::ranges::find(streams, stream) != streams.end()) return {};
    return fmt::format("{} has no stream \"{}\"{}", input.file, stream, suggestion(stream, streams));
}

int refuse(const std::string& why, std::FILE* errors)
{
    fmt::print(errors, "polyprops: {}\n", why);
    return exit_usage;
}

int convert_case(const std::filesystem::path& file, const Conversion& conversion, Format format,
                 std::FILE* out, std::FILE* errors)
{
    if (const auto why = impossible(conversion); !why.empty()) return refuse(why, errors);
    const auto read = read_and_check(file, errors);
    if (!read) return exit_case_error;
    const auto& [input, checked] = *read;
    const auto& [stream, from, to] = conversion;
    if (const auto why = unknown_stream(stream, input); !why.empty()) return refuse(why, errors);
    if (!add_streams(*read, errors)) return exit_case_error;
    const auto found = convert(stream, from, to, *checked.host);
    return print(make_conversion_report(input, checked, stream, found), *read, format, out, errors);
}

template <typename Command>
int guarded(const Command& command, std::FILE* errors)
{
    try {
        return command();
    } catch (const std::exception& error) {
        fmt::print(errors, "polyprops: {}\n", error.what());
        return exit_case_error;
    }
}

}  // namespace

int check(const std::filesystem::path& file, Format format, std::FILE* out, std::FILE* errors)
{
    return guarded([&] { return check_case(file, format, out, errors); }, errors);
}

std::string impossible(const Conversion& conversion)
{
    const auto [stream, from, to] = conversion;
    if (from == to) return fmt::format("--from and --to are both \"{}\"; expected two bases", text(from));
    if (from == Basis::segment)
        return "--from is \"segment\"; expected \"apparent\" or \"true\", since segments do not tell which "
               "chains they stood in";
    return {};
}

int convert(const std::filesystem::path& file, const Conversion& conversion, Format format, std::FILE* out,
            std::FILE* errors)
{
    return guarded([&] { return convert_case(file, conversion, format, out, errors); }, errors);
}

}  // namespace cli

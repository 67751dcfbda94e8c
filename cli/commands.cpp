#include "cli/commands.h"

#include <fmt/format.h>

#include <algorithm>
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

// The case, of use only when no error of it was printed.
Case read_case(const std::filesystem::path& file, bool& is_good, std::FILE* errors)
{
    Diagnostics diagnostics;
    auto input = read_case(file, diagnostics);
    for (const auto& line : diagnostics.lines(input.file)) fmt::print(errors, "{}\n", line);
    is_good = diagnostics.empty();
    return input;
}

int print(const Report& report, const Case& input, Format format, std::FILE* out, std::FILE* errors)
{
    write(formatted(report, format), out);
    const auto unusable = not_finite(report);
    for (const auto& line : unusable) fmt::print(errors, "{}: {}\n", input.file, line);
    return unusable.empty() ? exit_success : exit_case_error;
}

int run_case(const std::filesystem::path& file, Format format, std::FILE* out, std::FILE* errors)
{
    bool is_good = false;
    const auto input = read_case(file, is_good, errors);
    if (!is_good) return exit_case_error;
    const auto host = load(input);
    return print(make_report(input, evaluate(input, *host)), input, format, out, errors);
}

int convert_case(const std::filesystem::path& file, const Conversion& conversion, Format format,
                 std::FILE* out, std::FILE* errors)
{
    if (const auto why = impossible(conversion); !why.empty()) {
        fmt::print(errors, "polyprops: {}\n", why);
        return exit_usage;
    }
    bool is_good = false;
    const auto input = read_case(file, is_good, errors);
    if (!is_good) return exit_case_error;
    std::vector<std::string_view> streams;
    for (const auto& stream : input.streams) streams.push_back(stream.name.id);
    if (std::ranges::find(streams, conversion.stream) == streams.end()) {
        fmt::print(errors, "polyprops: {} has no stream \"{}\"{}\n", input.file, conversion.stream,
                   suggestion(conversion.stream, streams));
        return exit_usage;
    }
    const auto host = load(input);
    const auto compositions = convert(conversion.stream, conversion.from, conversion.to, *host);
    return print(make_conversion_report(input, conversion.stream, compositions), input, format, out, errors);
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

int run(const std::filesystem::path& file, Format format, std::FILE* out, std::FILE* errors)
{
    return guarded([&] { return run_case(file, format, out, errors); }, errors);
}

std::string impossible(const Conversion& conversion)
{
    const auto [stream, from, to] = conversion;
    if (from == to) return fmt::format("--from and --to are both \"{}\"; expected two bases", text(from));
    if (from == Basis::segment)
        return "--from is \"segment\"; expected \"apparent\" or \"true\", since segments do not tell which "
               "chains they "
               "stood in";
    return {};
}

int convert(const std::filesystem::path& file, const Conversion& conversion, Format format, std::FILE* out,
            std::FILE* errors)
{
    return guarded([&] { return convert_case(file, conversion, format, out, errors); }, errors);
}

}  // namespace cli

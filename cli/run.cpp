#include "cli/commands.h"

#include <fmt/format.h>

#include "app/case/case_reader.h"
#include "app/evaluation/evaluation.h"
#include "app/report/output_files.h"
#include "app/io/whole_file.h"

namespace cli {

namespace {

std::optional<MeasuredCurve> measured_curve(const RunOptions& options)
{
    if (!options.gpc) return {};
    return MeasuredCurve{options.distribution, options.gpc->string(), read_gpc(*options.gpc)};
}

void print(const std::vector<std::string>& lines, std::FILE* errors)
{
    for (const auto& line : lines) fmt::print(errors, "{}\n", line);
}

int run_unguarded(const RunOptions& options, std::FILE* out, std::FILE* errors)
{
    Diagnostics diagnostics;
    auto input = read_case(options.file, diagnostics);
    print(diagnostics.lines(input.file), errors);
    if (!diagnostics.empty()) return exit_case_error;
    const auto measured = measured_curve(options);
    auto e = evaluate_case(std::move(input), measured ? &*measured : nullptr);
    print(e.errors, errors);
    print(e.notes, errors);
    if (!e.has_results) return exit_case_error;
    if (options.export_gpc)
        write_whole_file(*options.export_gpc, format_gpc(e.distribution(options.distribution)));
    if (options.out) write_files(*options.out, output_files(options.file.stem().string(), e));
    write(formatted(e.report, options.format), out);
    return e.errors.empty() ? exit_success : exit_case_error;
}

}  // namespace

int run_case(const RunOptions& options, std::FILE* out, std::FILE* errors)
{
    try {
        return run_unguarded(options, out, errors);
    } catch (const std::exception& error) {
        fmt::print(errors, "polyprops: {}\n", error.what());
        return exit_case_error;
    }
}

int run(const std::filesystem::path& file, Format format, std::FILE* out, std::FILE* errors)
{
    RunOptions options;
    options.file = file;
    options.format = format;
    return run_case(options, out, errors);
}

}  // namespace cli

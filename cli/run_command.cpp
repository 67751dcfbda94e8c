#include "cli/run_command.h"

#include <fmt/format.h>

#include <memory>

#include "app/evaluation/evaluation.h"
#include "app/io/output_check.h"
#include "app/io/whole_file.h"
#include "app/report/make_report.h"
#include "app/report/output_files.h"
#include "cli/measured_options.h"

namespace cli {

namespace {

// Why a file cannot be written where the options say; empty when all can.
std::string refused_output(const RunOptions& options, const app::Case& input)
{
    app::OutputCheck check{options.gpc ? std::vector{options.file, *options.gpc} : std::vector{options.file}};
    if (options.export_gpc) check.add_file("--export-gpc", *options.export_gpc);
    if (options.out)
        check.add_directory("--out", *options.out, app::output_names(options.file.stem().string(), input));
    return check.reason();
}

void write_directory(const std::filesystem::path& directory, const std::string& name,
                     const std::vector<app::OutputFile>& files, std::FILE* errors)
{
    app::write_files(directory, files);
    for (const auto& file : app::earlier_files(directory, name, files))
        fmt::print(errors, "polyprops: {} is not of this run, but of an earlier one or of another case\n",
                   file.string());
}

int run_unguarded(const RunOptions& options, std::FILE* out, std::FILE* errors)
{
    const auto input = read(options.file, errors);
    if (!input) return exit_case_error;
    if (const auto why = refused_output(options, *input); !why.empty()) return refuse(why, errors);
    std::optional<app::MeasuredCurve> measured;
    if (options.gpc) measured = app::read_measured_curve(*options.gpc, options.measured);
    const auto results = app::evaluate(
        *input, {measured ? &*measured : nullptr, options.distribution, options.out.has_value()});
    const auto report = app::make_report(*input, results);
    if (!results.is_complete) {
        print(report.diagnostics, report.file, errors);
        return exit_case_error;
    }
    if (options.export_gpc)
        app::write_whole_file(
            *options.export_gpc,
            app::format_measured_curve(
                results.distributions[app::find_distribution(*input, options.distribution)]));
    if (options.out) {
        const auto name = options.file.stem().string();
        write_directory(*options.out, name,
                        app::output_files(name, *input, report, results.library_output, options.csv_texts),
                        errors);
    }
    return show(report, options.format, out, errors, options.strictness, options.csv_texts);
}

}  // namespace

int run(const RunOptions& options, std::FILE* out, std::FILE* errors)
{
    return guarded([&] { return run_unguarded(options, out, errors); }, errors);
}

void add_run_command(CLI::App& program, int& status)
{
    const auto options = std::make_shared<RunOptions>();
    auto* command = add_case_command(program, "run", "Print the results of a case", options->file);
    add_format(*command, options->format);
    add_csv_safe(*command, options->csv_texts);
    add_strict(*command, options->strictness);
    command->add_option("--out", options->out, "Write report, summary, CSV, JSON and HTML files there")
        ->type_name("DIR");
    auto* gpc =
        command->add_option("--gpc", options->gpc, "Measured curve to compare a composite distribution with")
            ->type_name("FILE");
    add_measured_options(*command, gpc, options->measured);
    command->add_option("--export-gpc", options->export_gpc, "Write a composite distribution as such a curve")
        ->type_name("FILE");
    command
        ->add_option("--distribution", options->distribution, "Which distribution, where a case has several")
        ->type_name("NAME");
    command->callback([options, &status] { status = run(*options, stdout, stderr); });
}

}  // namespace cli

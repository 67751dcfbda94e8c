#include "cli/fit_command.h"

#include <fmt/format.h>

#include <charconv>
#include <memory>
#include <stdexcept>

#include "app/evaluation/evaluation.h"
#include "app/io/output_check.h"
#include "app/report/make_report.h"
#include "app/report/output_files.h"
#include "cli/measured_options.h"

namespace cli {

namespace {

// More sites than these no curve tells apart.
constexpr std::size_t most_sites = 20;

// The distribution that the curve belongs to; empty where the segment weight is given and no distribution is
// named or the only one.
std::optional<std::size_t> distribution_of(const app::Case& input, const FitCommandOptions& options)
{
    const auto count = input.distributions.size();
    if (options.segment_weight && options.distribution.empty() && count != 1) return {};
    if (count == 0 && !options.segment_weight)
        throw std::runtime_error{fmt::format(
            "{} has no distribution to take the segment weight from; expected the option --segment-weight",
            input.file)};
    return app::find_distribution(input, options.distribution);
}

// The segment weight of a distribution; empty, with the errors printed, when the case has any.
std::optional<double> segment_weight(const app::Case& input, std::size_t distribution, std::FILE* errors)
{
    const auto results = app::evaluate(input, {nullptr, {}, false});
    if (results.is_complete) return app::required_segment_weight(results.distributions[distribution]);
    print(app::make_report(input, results).diagnostics, input.file, errors);
    return {};
}

// Why a file cannot be written where the options say; empty when all can.
std::string refused_output(const FitCommandOptions& options)
{
    app::OutputCheck check{{options.file, options.gpc}};
    if (options.out) check.add_directory("--out", *options.out, app::fit_names(options.file.stem().string()));
    return check.reason();
}

int fit_unguarded(const FitCommandOptions& options, std::FILE* out, std::FILE* errors)
{
    const auto input = read(options.file, errors);
    if (!input) return exit_case_error;
    if (const auto why = refused_output(options); !why.empty()) return refuse(why, errors);
    const auto distribution = distribution_of(*input, options);
    const auto weight =
        options.segment_weight ? options.segment_weight : segment_weight(*input, *distribution, errors);
    if (!weight) return exit_case_error;
    auto measured = options.measured;
    if (distribution && !measured.mark_houwink_exponent)
        measured.mark_houwink_exponent = input->distributions[*distribution].mark_houwink_exponent;
    const auto curve = app::read_measured_curve(options.gpc, measured);
    const auto report = app::make_fit_report(*input, app::fit(curve, *weight, options.fit));
    if (options.out)
        app::write_files(*options.out,
                         app::fit_files(options.file.stem().string(), report, options.csv_texts));
    return show(report, options.format, out, errors, options.strictness, options.csv_texts);
}

// N or N:M; 0 sites for anything else.
app::FitOptions number_of_sites(std::string_view text)
{
    const char* const end = text.data() + text.size();
    app::FitOptions sites{0, 0, false};
    const auto [colon, error] = std::from_chars(text.data(), end, sites.fewest_sites);
    if (error != std::errc{}) return {0, 0, false};
    sites.most_sites = sites.fewest_sites;
    if (colon == end) return sites;
    const auto [rest, error_after] = std::from_chars(colon + 1, end, sites.most_sites);
    if (*colon != ':' || error_after != std::errc{} || rest != end) return {0, 0, false};
    return sites;
}

void read_sites(const std::string& seen, app::FitOptions& options)
{
    const auto [fewest, most, free_beta] = number_of_sites(seen);
    if (fewest < 1 || most < fewest || most > most_sites)
        throw CLI::ValidationError{
            "--sites", fmt::format("\"{}\"; expected a number of sites or a range such as 1:8, {} at most",
                                   seen, most_sites)};
    options.fewest_sites = fewest;
    options.most_sites = most;
}

}  // namespace

int fit(const FitCommandOptions& options, std::FILE* out, std::FILE* errors)
{
    return guarded([&] { return fit_unguarded(options, out, errors); }, errors);
}

void add_fit_command(CLI::App& program, int& status)
{
    const auto options = std::make_shared<FitCommandOptions>();
    auto* command =
        add_case_command(program, "fit", "Print the sites whose sum is a measured curve", options->file);
    add_format(*command, options->format);
    add_csv_safe(*command, options->csv_texts);
    add_strict(*command, options->strictness);
    auto* gpc = command->add_option("--gpc", options->gpc, "Measured curve")->required()->type_name("FILE");
    command
        ->add_option_function<std::string>(
            "--sites", [options](const std::string& seen) { read_sites(seen, options->fit); },
            "Number of sites, or a range of numbers")
        ->required()
        ->type_name("N|N:M");
    command->add_flag("--free-beta", options->fit.free_beta,
                      "Fit beta of each site too (default: beta is 0)");
    command
        ->add_option("--segment-weight", options->segment_weight,
                     "Segment weight, g/mol (default: of the distribution)")
        ->check(positive_number())
        ->type_name("M0");
    command
        ->add_option("--distribution", options->distribution, "Which distribution, where a case has several")
        ->type_name("NAME");
    add_measured_options(*command, gpc, options->measured);
    command->add_option("--out", options->out, "Write text, CSV, JSON and HTML files there")
        ->type_name("DIR");
    command->callback([options, &status] { status = fit(*options, stdout, stderr); });
}

}  // namespace cli

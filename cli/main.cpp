#include <CLI/CLI.hpp>

#include <iostream>
#include <map>

#include "cli/check_command.h"
#include "cli/convert_command.h"
#include "cli/run_command.h"
#include "cli/selfcheck_command.h"
#include "cli/sweep_command.h"

namespace {

const std::map<std::string, app::Format> formats{
    {"text", app::Format::text}, {"csv", app::Format::csv}, {"json", app::Format::json}};
const std::map<std::string, app::Basis> bases{
    {"apparent", app::Basis::apparent}, {"true", app::Basis::true_chains}, {"segment", app::Basis::segment}};

// The command line: each command adds its options and, when it is the one, leaves its exit status.
class Program {
public:
    explicit Program(CLI::App& app) : app_(app)
    {
        add_run();
        add_check();
        add_convert();
        add_sweep();
        app_.add_subcommand("selfcheck",
                            "Check this build against known answers; say what a bug report needs")
            ->callback([this] { status_ = cli::selfcheck(stdout); });
    }

    int status() const { return status_; }

private:
    CLI::App* add(const char* name, const char* purpose)
    {
        auto* command = app_.add_subcommand(name, purpose);
        command->add_option("CASE", file_, "Case file (TOML)")->required();
        return command;
    }

    void add_format(CLI::App* command)
    {
        command->add_option("--format", format_, "Form of the results (default: text)")
            ->check(CLI::IsMember({"text", "csv", "json"}))
            ->type_name("FORMAT");
    }

    void add_run()
    {
        auto* command = add("run", "Print the results of a case");
        add_format(command);
        command->add_option("--out", run_.out, "Write report, summary, CSV, JSON and HTML files there")
            ->type_name("DIR");
        command->add_option("--gpc", run_.gpc, "Measured curve to hold a composite distribution against")
            ->type_name("FILE");
        command->add_option("--export-gpc", run_.export_gpc, "Write a composite distribution as such a curve")
            ->type_name("FILE");
        command
            ->add_option("--distribution", run_.distribution, "Which distribution, where a case has several")
            ->type_name("NAME");
        command->callback([this] {
            run_.file = file_;
            run_.format = formats.at(format_);
            status_ = cli::run(run_, stdout, stderr);
        });
    }

    void add_check()
    {
        auto* command = add("check", "Check the polymer paragraph and print what was built from it");
        add_format(command);
        command->callback([this] { status_ = cli::check(file_, formats.at(format_), stdout, stderr); });
    }

    void add_convert()
    {
        auto* command = add("convert", "Print one stream on two bases: apparent, true or segment");
        add_format(command);
        command->add_option("--stream", stream_, "Name of the stream")->required();
        const auto add_basis = [&](const char* option, std::string& basis, const char* purpose) {
            command->add_option(option, basis, purpose)
                ->required()
                ->check(CLI::IsMember({"apparent", "true", "segment"}))
                ->type_name("BASIS");
        };
        add_basis("--from", from_, "apparent or true");
        add_basis("--to", to_, "apparent, true or segment");
        command->callback([this] {
            status_ = cli::convert(file_, {stream_, bases.at(from_), bases.at(to_)}, formats.at(format_),
                                   stdout, stderr);
        });
    }

    void add_sweep()
    {
        auto* command = add("sweep", "Run a case with every combination of given numbers");
        command->add_option("--set", sweep_.sets, "Number of the case and its n values from a to b")
            ->required()
            ->allow_extra_args(false)
            ->type_name("KEY=a:b:n");
        command->add_option("--out", sweep_.out, "CSV file, a row for each case")
            ->required()
            ->type_name("FILE");
        command->add_option("--processes", sweep_.processes, "Cases at a time (default: one for each core)")
            ->check(CLI::Range(1, 1024));
        command->callback([this] {
            sweep_.file = file_;
            status_ = cli::sweep(sweep_, stderr);
        });
    }

    CLI::App& app_;
    std::string file_;
    std::string format_ = "text";
    std::string stream_, from_, to_;
    cli::RunOptions run_;
    app::SweepOptions sweep_;
    int status_ = cli::exit_success;
};

}  // namespace

int main(int argc, char** argv)
try {
    CLI::App app{"Polymer properties of the streams of a case file", "polyprops"};
    app.set_version_flag("--version", POLYPROPS_VERSION);
    app.require_subcommand(1);
    Program program{app};
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? cli::exit_success : cli::exit_usage;
    }
    return program.status();
} catch (const std::exception& error) {
    std::cerr << "polyprops: " << error.what() << '\n';
    return cli::exit_case_error;
}

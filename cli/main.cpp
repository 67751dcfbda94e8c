#include <CLI/CLI.hpp>

#include <map>

#include "cli/commands.h"

namespace {

const std::map<std::string, cli::Format> formats{
    {"text", cli::Format::text}, {"csv", cli::Format::csv}, {"json", cli::Format::json}};

}  // namespace

int main(int argc, char** argv)
{
    CLI::App app{"Polymer properties of the streams of a case file", "polyprops"};
    app.set_version_flag("--version", POLYPROPS_VERSION);
    app.require_subcommand(1);

    std::string file;
    std::string format = "text";
    auto* run = app.add_subcommand("run", "Print chain averages and segment fractions of every stream");
    run->add_option("CASE", file, "Case file (TOML)")->required();
    run->add_option("--format", format, "Form of the results (default: text)")
        ->check(CLI::IsMember({"text", "csv", "json"}))
        ->type_name("FORMAT");

    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? cli::exit_success : cli::exit_usage;
    }
    return cli::run(file, formats.at(format), stdout, stderr);
}

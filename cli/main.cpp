#include <CLI/CLI.hpp>

#include <map>

#include "cli/commands.h"

namespace {

const std::map<std::string, cli::Format> formats{
    {"text", cli::Format::text}, {"csv", cli::Format::csv}, {"json", cli::Format::json}};
const std::map<std::string, cli::Basis> bases{
    {"apparent", cli::Basis::apparent}, {"true", cli::Basis::true_chains}, {"segment", cli::Basis::segment}};

}  // namespace

int main(int argc, char** argv)
{
    CLI::App app{"Polymer properties of the streams of a case file", "polyprops"};
    app.set_version_flag("--version", POLYPROPS_VERSION);
    app.require_subcommand(1);

    std::string file;
    std::string format = "text";
    const auto add_command = [&](const char* name, const char* purpose) {
        auto* command = app.add_subcommand(name, purpose);
        command->add_option("CASE", file, "Case file (TOML)")->required();
        command->add_option("--format", format, "Form of the results (default: text)")
            ->check(CLI::IsMember({"text", "csv", "json"}))
            ->type_name("FORMAT");
        return command;
    };
    add_command("run", "Print the results of every stream and reactor");
    const auto* check = add_command("check", "Check the polymer paragraph and print what was built from it");

    std::string stream;
    std::string from;
    std::string to;
    auto* convert = add_command("convert", "Print one stream on two bases: apparent, true or segment");
    convert->add_option("--stream", stream, "Name of the stream")->required();
    const auto add_basis = [&](const char* option, std::string& basis, const char* purpose) {
        convert->add_option(option, basis, purpose)
            ->required()
            ->check(CLI::IsMember({"apparent", "true", "segment"}))
            ->type_name("BASIS");
    };
    add_basis("--from", from, "apparent or true");
    add_basis("--to", to, "apparent, true or segment");

    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? cli::exit_success : cli::exit_usage;
    }
    if (convert->parsed())
        return cli::convert(file, {stream, bases.at(from), bases.at(to)}, formats.at(format), stdout, stderr);
    const auto& command = check->parsed() ? cli::check : cli::run;
    return command(file, formats.at(format), stdout, stderr);
}

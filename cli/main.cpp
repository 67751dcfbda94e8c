#include <CLI/CLI.hpp>

#include <cstdio>
#include <iostream>
#include <sstream>

#include "app/io/visible_text.h"
#include "cli/check_command.h"
#include "cli/command.h"
#include "cli/convert_command.h"
#include "cli/fit_command.h"
#include "cli/process.h"
#include "cli/run_command.h"
#include "cli/selfcheck_command.h"
#include "cli/sweep_command.h"

namespace {

int run_program(int argc, char** argv)
{
    CLI::App program{"Polymer properties of the streams of a case file", "polyprops"};
    program.set_version_flag("--version", POLYPROPS_VERSION);
    program.require_subcommand(1);
    int status = cli::exit_success;
    cli::add_run_command(program, status);
    cli::add_check_command(program, status);
    cli::add_convert_command(program, status);
    cli::add_fit_command(program, status);
    cli::add_sweep_command(program, status);
    cli::add_selfcheck_command(program, status);
    try {
        program.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        std::ostringstream errors;
        status = program.exit(error, std::cout, errors) == 0 ? cli::exit_success : cli::exit_usage;
        std::cerr << app::visible(errors.str(), true);
    }
    return status;
}

}  // namespace

// NOLINTNEXTLINE(bugprone-exception-escape): only writing the message of an exception can throw another
int main(int argc, char** argv)
{
    const auto command = [&] {
        if (const auto missing = cli::prepare_process(); !missing.empty()) return cli::fail(missing, stderr);
        const int status = run_program(argc, argv);
        std::cout.flush();
        return cli::checked_output(status);
    };
    return cli::guarded(command, stderr);
}

// Steps that several commands share.
#pragma once

#include <cstdio>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "app/case/case_model.h"
#include "app/report/format.h"
#include "cli/exit_status.h"

namespace cli {

// Throws std::runtime_error when not all of the text can be written.
void write(const std::string& text, std::FILE* out);

void print(const std::vector<app::Diagnostic>& diagnostics, const std::string& file, std::FILE* errors);

// The case; empty, with all errors printed, when it has any.
std::optional<app::Case> read(const std::filesystem::path& file, std::FILE* errors);

// Prints the report and its diagnostics; the exit status tells whether there were errors.
int show(const app::Report& report, app::Format format, std::FILE* out, std::FILE* errors);

// An error of usage.
int refuse(const std::string& why, std::FILE* errors);

// Runs a command; an exception becomes a message and an exit status.
template <typename Command>
int guarded(const Command& command, std::FILE* errors)
{
    try {
        return command();
    } catch (const std::exception& error) {
        std::fprintf(errors, "polyprops: %s\n", error.what());
        return exit_case_error;
    }
}

}  // namespace cli

// Steps that several commands share.
#pragma once

#include <CLI/CLI.hpp>

#include <cstdio>
#include <filesystem>
#include <new>
#include <optional>
#include <string>
#include <utility>
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

// Whether warnings set the exit status as errors do.
enum class Strictness { normal, strict };

// Prints the report and its diagnostics; the exit status tells whether there were errors.
int show(const app::Report& report, app::Format format, std::FILE* out, std::FILE* errors,
         Strictness strictness = Strictness::normal, app::CsvTexts texts = app::CsvTexts::exact);

// A subcommand that takes a case file.
CLI::App* add_case_command(CLI::App& program, const char* name, const char* purpose,
                           std::filesystem::path& file);

// --format text, csv or json.
void add_format(CLI::App& command, app::Format& format);

// --csv-safe.
void add_csv_safe(CLI::App& command, app::CsvTexts& texts);

// --strict.
void add_strict(CLI::App& command, Strictness& strictness);

// An option with one value out of a few words.
template <typename Choice>
using Words = std::vector<std::pair<std::string, Choice>>;

template <typename Choice>
CLI::Option* add_choice(CLI::App& command, const char* option, Choice& choice, const Words<Choice>& words,
                        const char* type, const char* purpose)
{
    std::vector<std::string> names;
    for (const auto& [name, value] : words) names.push_back(name);
    const auto choose = [&choice, words](const std::string& seen) {
        for (const auto& [name, value] : words)
            if (name == seen) choice = value;
    };
    return command.add_option_function<std::string>(option, choose, purpose)
        ->check(CLI::IsMember(names))
        ->type_name(type);
}

// Of an option: a finite number greater than 0.
CLI::Validator positive_number();

// An error of usage.
int refuse(const std::string& why, std::FILE* errors);

// A failure of the command.
int fail(const std::string& why, std::FILE* errors);

// Runs a command; an exception becomes a message and an exit status.
template <typename Command>
int guarded(const Command& command, std::FILE* errors)
{
    try {
        return command();
    } catch (const std::bad_alloc& /*error*/) {
        return fail("not enough memory", errors);
    } catch (const std::filesystem::filesystem_error& error) {
        return fail(error.path1().string() + ": " + error.code().message(), errors);
    } catch (const std::exception& error) {
        return fail(error.what(), errors);
    }
}

}  // namespace cli

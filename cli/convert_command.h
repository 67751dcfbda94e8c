// The command `convert`: prints one stream on two bases.
#pragma once

#include "app/evaluation/bases.h"
#include "cli/command.h"

namespace cli {

struct Conversion {
    std::string stream;
    app::Basis from;
    app::Basis to;
};

// A stream that the case does not have is an error of usage.
int convert(const std::filesystem::path& file, const Conversion& conversion, app::Format format,
            std::FILE* out, std::FILE* errors, Strictness strictness = Strictness::normal,
            app::CsvTexts texts = app::CsvTexts::exact);

// Registers the subcommand: its options, and a callback that runs it and sets the exit status.
void add_convert_command(CLI::App& program, int& status);

}  // namespace cli

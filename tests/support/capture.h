// Runs a command of the program and keeps what it wrote.
#pragma once

#include <cstdio>
#include <filesystem>
#include <string>

#include "app/report/format.h"

namespace support {

// A file without a name, read back after the program wrote to it.
class Capture {
public:
    ~Capture() { std::fclose(file); }
    std::string text() const
    {
        std::rewind(file);
        std::string all;
        for (int c = std::fgetc(file); c != EOF; c = std::fgetc(file)) all += static_cast<char>(c);
        return all;
    }
    std::FILE* file = std::tmpfile();
};

struct Outcome {
    int status;
    std::string out;
    std::string errors;
};

template <typename Command>
Outcome capture(const Command& command, const std::filesystem::path& file, app::Format format)
{
    Capture out;
    Capture errors;
    const int status = command(file, format, out.file, errors.file);
    return {status, out.text(), errors.text()};
}

}  // namespace support

#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>

namespace app {

// A file that cannot be read: "FILE: cannot be read: REASON".
class FileError : public std::runtime_error {
public:
    FileError(const std::filesystem::path& file, const std::string& why)
        : std::runtime_error(file.string() + ": " + why), why_(why)
    {
    }
    // Without the file.
    const std::string& why() const { return why_; }

private:
    std::string why_;
};

// Throws FileError with the system's reason.
std::string file_contents(const std::filesystem::path& file);

}  // namespace app

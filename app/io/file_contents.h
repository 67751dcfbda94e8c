#pragma once

#include <cstdint>
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

// Of a file that people write: a case or a measured curve.
inline constexpr std::size_t largest_input = std::size_t{64} << 20U;

// "67108865 bytes; expected 64 MiB at most".
std::string too_large(std::uintmax_t bytes);

// Throws FileError with the system's reason.
std::string file_contents(const std::filesystem::path& file);

// The same, and refuses a file above 64 MiB, also one without an end.
std::string input_file_contents(const std::filesystem::path& file);

}  // namespace app

// Files by their descriptors.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace app {

// Closes a descriptor when it goes; below 0 there is none.
class Descriptor {
public:
    Descriptor() = default;
    explicit Descriptor(int number) : number_(number) {}
    Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
    Descriptor& operator=(Descriptor&& other) noexcept
    {
        std::swap(number_, other.number_);
        return *this;
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() { close(); }

    explicit operator bool() const { return number_ >= 0; }
    int number() const { return number_; }
    // False, with errno, where the system reports a late failure of a write.
    bool close();

private:
    int number_ = -1;
};

// These report a failure by errno.
Descriptor open_file(const std::filesystem::path& path, int flags);
// Everything, also where the system takes it in parts.
bool write_all(int descriptor, std::string_view text);
// From the beginning; empty, with errno, where it cannot be read.
std::optional<std::string> read_all(int descriptor);
// Names in the directory survive a power loss from here on, where the file system can promise it.
bool sync_directory(const std::filesystem::path& directory);

// The names in a directory. Throws std::filesystem::filesystem_error, and std::bad_alloc where the standard
// library's iterator would end the program.
std::vector<std::string> names_in(const std::filesystem::path& directory);

// Throws std::runtime_error: "PATH: cannot be written: REASON"; without a reason, that of errno.
[[noreturn]] void throw_not_written(const std::filesystem::path& path, std::string_view reason);
[[noreturn]] void throw_not_written(const std::filesystem::path& path);

}  // namespace app

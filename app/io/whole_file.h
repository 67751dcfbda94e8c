#pragma once

#include <sys/types.h>

#include <filesystem>
#include <optional>
#include <string_view>

namespace app {

// Writes a file whole or not at all: into a staging directory next to it, from where it takes its name and
// the mode of the file that had it. The target of a symbolic link is written that way; pipes, devices and
// open descriptors (/dev/stdout) receive the content. Throws std::runtime_error with the path and the
// system's reason; an existing file is then unchanged.
void write_whole_file(const std::filesystem::path& path, std::string_view content);

// A new file whose content has reached the disk; false, with errno, where it has not.
bool write_new_file(const std::filesystem::path& path, std::string_view content, std::optional<mode_t> mode);

// Whether it is written as a stream: a pipe, a device or an open descriptor.
bool is_stream(const std::filesystem::path& path);

// The mode of the regular file that has this name, links not followed; empty where there is none.
std::optional<mode_t> mode_of_file(const std::filesystem::path& path);

// The path where symbolic links at its end lead, also to nothing.
std::filesystem::path followed(std::filesystem::path path);

}  // namespace app

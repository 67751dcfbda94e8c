#pragma once

#include <filesystem>
#include <string_view>

namespace app {

// Writes a file whole or not at all: into a temporary file next to it, which then takes its name. Throws
// std::runtime_error with the path and the system's reason; an existing file is then unchanged.
void write_whole_file(const std::filesystem::path& path, std::string_view content);

}  // namespace app

#pragma once

#include <filesystem>
#include <string_view>

namespace app {

// Writes a file whole or not at all: into a temporary file beside it, which then takes its name. Throws
// std::runtime_error with the path and the system's reason; a file that stood there before is then as it was.
void write_whole_file(const std::filesystem::path& path, std::string_view content);

}  // namespace app

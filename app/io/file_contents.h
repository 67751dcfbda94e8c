#pragma once

#include <filesystem>
#include <string>

namespace app {

// Throws std::runtime_error with the file and the system's reason.
std::string file_contents(const std::filesystem::path& file);

}  // namespace app

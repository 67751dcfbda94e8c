#ifndef MINIHOST_WHOLE_FILE_H
#define MINIHOST_WHOLE_FILE_H

#include <filesystem>
#include <string_view>

namespace minihost {

/// Writes a file whole or not at all: into a temporary file beside it, which then takes its name. Throws
/// Error with the path and the system's reason; a file that stood there before is then as it was.
void write_whole_file(const std::filesystem::path& path, std::string_view content);

}  // namespace minihost

#endif

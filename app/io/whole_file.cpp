#include "app/io/whole_file.h"

#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>

#include <stdexcept>
#include "app/io/file_handle.h"

namespace app {
namespace {

// The content has reached the disk, or errno says why not.
bool write_all(const std::filesystem::path& path, std::string_view content)
{
    FileHandle file{std::fopen(path.c_str(), "wbx")};
    if (!file) return false;
    if (std::fwrite(content.data(), 1, content.size(), file.get()) != content.size()) return false;
    if (std::fflush(file.get()) != 0 || ::fsync(::fileno(file.get())) != 0) return false;
    return std::fclose(file.release()) == 0;
}

}  // namespace

void write_whole_file(const std::filesystem::path& path, std::string_view content)
{
    std::filesystem::path temporary = path;
    temporary += '.';
    temporary += std::to_string(::getpid()) + ".tmp";
    if (write_all(temporary, content) && std::rename(temporary.c_str(), path.c_str()) == 0) return;
    const std::string reason = std::strerror(errno);
    std::remove(temporary.c_str());
    throw std::runtime_error(path.string() + ": cannot be written: " + reason);
}

}  // namespace app

#include "app/io/whole_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <charconv>
#include <stdexcept>
#include <system_error>

#include "app/io/descriptor.h"
#include "app/io/staging.h"

namespace app {
namespace {

namespace fs = std::filesystem;

constexpr int most_links = 40;  // as many as the system follows

// A link in /proc/self/fd, by whatever name that folder is called.
bool is_open_descriptor(const fs::path& link)
{
    std::error_code failed;
    const auto folder = fs::canonical(link.parent_path(), failed);
    return !failed && folder == fs::canonical("/proc/self/fd", failed);
}

fs::path target_of(const fs::path& link)
{
    return link.parent_path() / fs::read_symlink(link);  // an absolute target replaces the folder
}

Descriptor open_stream(const fs::path& path)
{
    if (!is_open_descriptor(path)) return open_file(path, O_WRONLY | O_NOCTTY);
    const auto name = path.filename().string();
    int number = -1;
    std::from_chars(name.data(), name.data() + name.size(), number);
    return Descriptor{::dup(number)};
}

void write_stream(const fs::path& path, std::string_view content)
{
    auto stream = open_stream(path);
    if (!stream || !write_all(stream.number(), content) || !stream.close()) throw_not_written(path);
}

fs::path folder_of(const fs::path& file)
{
    return file.has_parent_path() ? file.parent_path() : fs::path{"."};
}

void replace(const fs::path& file, std::string_view content)
{
    const auto mode = mode_of_file(file);
    if (mode && ::access(file.c_str(), W_OK) != 0) throw_not_written(file);
    const Staging staging{folder_of(file)};
    const auto staged = staging.file(0);
    if (!write_new_file(staged, content, mode) || ::rename(staged.c_str(), file.c_str()) != 0 ||
        !sync_directory(folder_of(file)))
        throw_not_written(file);
}

}  // namespace

fs::path followed(fs::path path)
{
    for (int links = 0; fs::is_symlink(path) && !is_open_descriptor(path); path = target_of(path))
        if (++links > most_links)
            throw fs::filesystem_error{"symlink", path,
                                       std::make_error_code(std::errc::too_many_symbolic_link_levels)};
    return path;
}

bool is_stream(const fs::path& path)
{
    const auto file = followed(path);
    const auto status = fs::status(file);
    return is_open_descriptor(file) || (exists(status) && !is_regular_file(status) && !is_directory(status));
}

std::optional<mode_t> mode_of_file(const fs::path& path)
{
    struct stat found {};
    if (::lstat(path.c_str(), &found) != 0 || !S_ISREG(found.st_mode)) return {};
    constexpr mode_t permissions = 07777;
    return found.st_mode & permissions;
}

bool write_new_file(const fs::path& path, std::string_view content, std::optional<mode_t> mode)
{
    auto file = open_file(path, O_WRONLY | O_CREAT | O_EXCL);
    return file && write_all(file.number(), content) && (!mode || ::fchmod(file.number(), *mode) == 0) &&
           ::fsync(file.number()) == 0 && file.close();
}

void write_whole_file(const fs::path& path, std::string_view content)
try {
    const auto file = followed(path);
    if (is_stream(file)) return write_stream(file, content);
    replace(file, content);
} catch (const fs::filesystem_error& error) {
    throw_not_written(path, error.code().message());
}

}  // namespace app

#include "app/io/descriptor.h"

#include <dirent.h>
#include <fcntl.h>
#include <fmt/format.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <memory>
#include <stdexcept>
#include <system_error>

namespace app {

bool Descriptor::close()
{
    const int number = std::exchange(number_, -1);
    return number < 0 || ::close(number) == 0;
}

Descriptor open_file(const std::filesystem::path& path, int flags)
{
    constexpr mode_t readable_and_writable = 0666;  // less the bits of umask
    int number = -1;
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-vararg): the call has an optional argument
    do number = ::open(path.c_str(), flags | O_CLOEXEC, readable_and_writable);
    while (number < 0 && errno == EINTR);
    return Descriptor{number};
}

bool write_all(int descriptor, std::string_view text)
{
    while (!text.empty()) {
        const auto written = ::write(descriptor, text.data(), text.size());
        if (written < 0 && errno == EINTR) continue;
        if (written < 0) return false;
        text.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

std::optional<std::string> read_all(int descriptor)
{
    std::string text;
    std::vector<char> buffer(65536);
    for (;;) {
        const auto count = ::pread(descriptor, buffer.data(), buffer.size(), static_cast<off_t>(text.size()));
        if (count == 0) return text;
        if (count < 0 && errno != EINTR) return {};
        if (count > 0) text.append(buffer.data(), static_cast<std::size_t>(count));
    }
}

bool sync_directory(const std::filesystem::path& directory)
{
    const auto opened = open_file(directory, O_RDONLY | O_DIRECTORY);
    return opened && (::fsync(opened.number()) == 0 || errno == EINVAL);
}

std::vector<std::string> names_in(const std::filesystem::path& directory)
{
    const std::unique_ptr<DIR, int (*)(DIR*)> opened{::opendir(directory.c_str()), ::closedir};
    if (!opened)
        throw std::filesystem::filesystem_error{"opendir", directory, {errno, std::generic_category()}};
    std::vector<std::string> names;
    while (const auto* entry = ::readdir(opened.get())) {
        const std::string name = entry->d_name;
        if (name != "." && name != "..") names.push_back(name);
    }
    return names;
}

void throw_not_written(const std::filesystem::path& path, std::string_view reason)
{
    throw std::runtime_error{fmt::format("{}: cannot be written: {}", path.string(), reason)};
}

void throw_not_written(const std::filesystem::path& path)
{
    throw_not_written(path, std::strerror(errno));
}

}  // namespace app

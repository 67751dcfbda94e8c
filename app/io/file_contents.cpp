#include "app/io/file_contents.h"

#include <fmt/format.h>

#include <cerrno>
#include <cstring>
#include <fstream>
#include <limits>
#include <stdexcept>
#include <vector>

namespace app {

namespace {

std::string read_at_most(const std::filesystem::path& file, std::size_t limit)
{
    const auto fail = [&](std::string_view why) {
        throw FileError{file, fmt::format("cannot be read: {}", why)};
    };
    if (file.empty()) fail("its name is empty");
    std::error_code no_file;
    if (std::filesystem::is_directory(file, no_file)) fail("it is a directory");
    errno = 0;
    std::ifstream in{file, std::ios::binary};
    if (!in) fail(std::strerror(errno));
    std::error_code no_size;
    const auto size = std::filesystem::file_size(file, no_size);
    if (!no_size && size > limit) throw FileError{file, "is too large: " + too_large(size)};
    std::string text;
    std::vector<char> part(65536);
    while (in.read(part.data(), static_cast<std::streamsize>(part.size())) || in.gcount() > 0) {
        text.append(part.data(), static_cast<std::size_t>(in.gcount()));
        if (text.size() > limit) throw FileError{file, "is too large: more than " + too_large(limit)};
    }
    if (in.bad()) fail("reading failed");
    return text;
}

}  // namespace

std::string too_large(std::uintmax_t bytes)
{
    return fmt::format("{} bytes; expected {} MiB at most", bytes, largest_input >> 20U);
}

std::string file_contents(const std::filesystem::path& file)
{
    return read_at_most(file, std::numeric_limits<std::size_t>::max());
}

std::string input_file_contents(const std::filesystem::path& file)
{
    return read_at_most(file, largest_input);
}

}  // namespace app

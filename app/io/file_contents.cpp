#include "app/io/file_contents.h"

#include <fmt/format.h>

#include <cerrno>
#include <cstring>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace app {

std::string file_contents(const std::filesystem::path& file)
{
    const auto fail = [&](std::string_view why) {
        throw FileError{file, fmt::format("cannot be read: {}", why)};
    };
    if (std::filesystem::is_directory(file)) fail("it is a directory");
    errno = 0;
    std::ifstream in{file, std::ios::binary};
    if (!in) fail(std::strerror(errno));
    std::string text{std::istreambuf_iterator<char>{in}, {}};
    if (in.bad()) fail("reading failed");
    return text;
}

}  // namespace app

// A file of the C library that is closed when its handle goes.
#pragma once

#include <cstdio>
#include <memory>

namespace app {

struct CloseFile {
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): the unique_ptr around it owns the file
    void operator()(std::FILE* file) const { std::fclose(file); }
};

using FileHandle = std::unique_ptr<std::FILE, CloseFile>;

}  // namespace app

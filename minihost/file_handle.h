// A file of the C library that is closed when its handle goes.
#ifndef MINIHOST_FILE_HANDLE_H
#define MINIHOST_FILE_HANDLE_H

#include <cstdio>
#include <memory>

namespace minihost {

struct CloseFile {
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): the unique_ptr around it owns the file
    void operator()(std::FILE* file) const { std::fclose(file); }
};

using FileHandle = std::unique_ptr<std::FILE, CloseFile>;

}  // namespace minihost

#endif

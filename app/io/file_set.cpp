#include "app/io/file_set.h"

#include <unistd.h>

#include <stdexcept>

#include "app/io/whole_file.h"

namespace app {

void write_files(const std::filesystem::path& directory, const std::vector<OutputFile>& files)
{
    std::filesystem::create_directories(directory);
    const auto staging = directory / (".polyprops." + std::to_string(::getpid()) + ".tmp");
    std::filesystem::create_directory(staging);
    try {
        for (const auto& file : files) write_whole_file(staging / file.name, file.content);
        for (const auto& file : files)
            if (std::filesystem::is_directory(directory / file.name))
                throw std::runtime_error{(directory / file.name).string() +
                                         ": cannot be written: it is a directory"};
        for (const auto& file : files) std::filesystem::rename(staging / file.name, directory / file.name);
    } catch (...) {
        std::filesystem::remove_all(staging);
        throw;
    }
    std::filesystem::remove(staging);
}

}  // namespace app

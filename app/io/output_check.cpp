#include "app/io/output_check.h"

#include <fmt/format.h>

#include <algorithm>
#include <system_error>

#include "app/io/whole_file.h"

namespace app {

namespace fs = std::filesystem;

namespace {

// Device and inode; a terminal may be read and written.
bool is_same_file(const fs::path& a, const fs::path& b)
{
    std::error_code ignored;
    return fs::is_regular_file(a, ignored) && fs::equivalent(a, b, ignored);
}

bool is_existing_directory(const fs::path& path)
{
    std::error_code ignored;
    return fs::is_directory(path, ignored);
}

}  // namespace

void OutputCheck::refuse(std::string reason)
{
    if (reason_.empty()) reason_ = std::move(reason);
}

void OutputCheck::add_file(const std::string& option, const fs::path& file)
{
    if (file.empty()) return refuse(fmt::format("{} is empty; expected the name of a file", option));
    std::error_code fault;
    static_cast<void>(fs::status(file, fault));
    if (fault == std::errc::too_many_symbolic_link_levels)
        return refuse(fmt::format("{}: {}: {}", option, file.string(), fault.message()));
    if (is_existing_directory(file))
        return refuse(fmt::format("{}: {} is a directory; expected a file", option, file.string()));
    for (const auto& input : inputs_)
        if (is_same_file(file, input))
            refuse(fmt::format("{}: {} is the input file {}; expected another output", option, file.string(),
                               input.string()));
    if (is_stream(file)) return;
    const auto place = fs::weakly_canonical(fs::absolute(followed(file)));
    if (std::ranges::find(outputs_, place) != outputs_.end())
        refuse(fmt::format("{}: {} is another output as well; expected two files", option, file.string()));
    outputs_.push_back(place);
}

void OutputCheck::add_own_file(const std::string& option, const fs::path& file)
{
    add_file(option, file);
    std::error_code ignored;
    const auto status = fs::symlink_status(file, ignored);
    if (fs::exists(status) && !fs::is_regular_file(status))
        refuse(fmt::format("{}: {} is no regular file; expected none, or that of an interrupted run", option,
                           file.string()));
}

void OutputCheck::add_directory(const std::string& option, const fs::path& directory,
                                const std::vector<std::string>& names)
{
    if (directory.empty())
        return refuse(fmt::format("{} is empty; expected the name of a directory", option));
    std::error_code ignored;
    if (fs::exists(directory, ignored) && !is_existing_directory(directory))
        return refuse(fmt::format("{}: {} is a file; expected a directory", option, directory.string()));
    for (const auto& name : names) add_file(option, directory / name);
}

}  // namespace app

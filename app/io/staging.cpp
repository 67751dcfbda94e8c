#include "app/io/staging.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <string>
#include <system_error>

namespace app {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view prefix = ".polyprops.";
constexpr std::string_view unique_part = "XXXXXX";

bool is_left_behind(const fs::path& path)
{
    struct stat found {};
    const auto name = path.filename().string();
    return name.starts_with(prefix) && name.size() == prefix.size() + unique_part.size() &&
           ::lstat(path.c_str(), &found) == 0 && S_ISDIR(found.st_mode) && found.st_uid == ::geteuid();
}

// What cannot be removed is left for the next writer.
void remove_staging(const fs::path& directory) noexcept
try {
    const auto next = directory / "next";
    if (fs::is_directory(next))
        for (const auto& name : names_in(next))
            if (has_second_name(next / name)) ::unlink((next / name).c_str());
    if (::rmdir(next.c_str()) != 0 && errno != ENOENT) return;
    for (const auto& name : names_in(directory)) ::unlink((directory / name).c_str());
    ::rmdir(directory.c_str());
} catch (const std::exception& /*error*/) {
    return;
}

Descriptor locked(const fs::path& place)
{
    auto directory = open_file(place, O_RDONLY | O_DIRECTORY);
    if (!directory) return directory;
    while (::flock(directory.number(), LOCK_EX) != 0)
        if (errno != EINTR) return Descriptor{};  // no locks on this file system
    return directory;
}

void remove_left_behind(const fs::path& place)
{
    for (const auto& name : names_in(place))
        if (is_left_behind(place / name)) remove_staging(place / name);
}

fs::path unique_directory(const fs::path& place)
{
    auto name = (place / prefix).string().append(unique_part);
    if (::mkdtemp(name.data()) == nullptr)
        throw fs::filesystem_error{"mkdtemp", place, {errno, std::generic_category()}};
    return name;
}

}  // namespace

bool has_second_name(const fs::path& path)
{
    struct stat found {};
    return ::lstat(path.c_str(), &found) == 0 && !S_ISDIR(found.st_mode) && found.st_nlink > 1;
}

SignalsHeld::SignalsHeld()
{
    sigset_t held;
    ::sigemptyset(&held);
    for (const int signal : {SIGHUP, SIGINT, SIGTERM}) ::sigaddset(&held, signal);
    ::pthread_sigmask(SIG_BLOCK, &held, &before_);
}

SignalsHeld::~SignalsHeld()
{
    ::pthread_sigmask(SIG_SETMASK, &before_, nullptr);
}

Staging::Staging(const fs::path& place) : lock_(locked(place))
{
    if (lock_) remove_left_behind(place);
    directory_ = unique_directory(place);
}

Staging::~Staging()
{
    remove_staging(directory_);
}

}  // namespace app

// A directory for files on their way to their place.
#pragma once

#include <csignal>
#include <filesystem>

#include "app/io/descriptor.h"

namespace app {

// Keeps SIGHUP, SIGINT and SIGTERM waiting while it lives.
class SignalsHeld {
public:
    SignalsHeld();
    SignalsHeld(const SignalsHeld&) = delete;
    SignalsHeld& operator=(const SignalsHeld&) = delete;
    ~SignalsHeld();

private:
    sigset_t before_;
};

// Whether another name leads to the file; links are not followed, and directories have none.
bool has_second_name(const std::filesystem::path& path);

// A directory ".polyprops.XXXXXX" in `place`, which it locks against other writers of this program. First it
// removes those that killed processes left there. Its own goes with it, also by way of an interruption.
//
// It holds the files staged, and a directory `next()` with a second name of those that are to be exchanged
// for the files of a directory. A file of `next()` with no second name belongs to another program and is
// never removed.
class Staging {
public:
    // Throws std::filesystem::filesystem_error.
    explicit Staging(const std::filesystem::path& place);
    Staging(const Staging&) = delete;
    Staging& operator=(const Staging&) = delete;
    ~Staging();

    std::filesystem::path file(std::size_t number) const { return directory_ / std::to_string(number); }
    std::filesystem::path next() const { return directory_ / "next"; }
    const std::filesystem::path& directory() const { return directory_; }

private:
    Descriptor lock_;
    SignalsHeld signals_;
    std::filesystem::path directory_;
};

}  // namespace app

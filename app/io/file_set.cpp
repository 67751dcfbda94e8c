#include "app/io/file_set.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <optional>
#include <system_error>

#include "app/io/staging.h"
#include "app/io/whole_file.h"

namespace app {

namespace {

namespace fs = std::filesystem;

std::optional<struct stat> status_of(const fs::path& path)
{
    struct stat found {};
    if (::stat(path.c_str(), &found) != 0) return {};
    return found;
}

bool is_same(const struct stat& a, const struct stat& b)
{
    return a.st_dev == b.st_dev && a.st_ino == b.st_ino;
}

bool has_access_list(const fs::path& directory)
{
    const auto has = [&](const char* name) { return ::getxattr(directory.c_str(), name, nullptr, 0) >= 0; };
    return has("system.posix_acl_access") || has("system.posix_acl_default");
}

fs::path parent_of(const fs::path& directory)
{
    return directory.has_parent_path() ? directory.parent_path() : fs::path{"."};
}

// Next to the directory, from where another can take its place; otherwise in it.
fs::path staging_place(const fs::path& directory)
{
    const auto parent = parent_of(directory);
    const auto outer = status_of(parent);
    const auto inner = status_of(directory);
    const bool is_beside = !inner || (outer && outer->st_dev == inner->st_dev && !is_same(*outer, *inner) &&
                                      ::access(parent.c_str(), W_OK) == 0);
    return is_beside ? parent : directory;
}

// Of files that are regular, or not there yet.
class Replacement {
public:
    Replacement(const fs::path& directory, const std::vector<OutputFile>& files)
        : directory_(directory), files_(files), place_(staging_place(directory)), staging_(place_)
    {
    }

    void write()
    {
        for (std::size_t k = 0; k < files_.size(); ++k) stage(k);
        if (place_ == directory_ || !make_next() || !exchange()) replace_one_by_one();
        if (!sync_directory(parent_of(directory_)) || !sync_directory(directory_))
            throw_not_written(directory_);
    }

private:
    void stage(std::size_t k) const
    {
        const auto target = directory_ / files_[k].name;
        if (fs::is_directory(target)) throw_not_written(target, "it is a directory");
        if (!write_new_file(staging_.file(k), files_[k].content, mode_of_file(target)))
            throw_not_written(target);
    }

    bool is_written(const std::string& name) const
    {
        return std::ranges::any_of(files_, [&](const auto& file) { return file.name == name; });
    }

    // The directory as it is to be; false where this file system or what it holds does not allow it.
    bool make_next() const
    {
        const auto next = staging_.next();
        if (::mkdir(next.c_str(), 0777) != 0) return false;
        for (std::size_t k = 0; k < files_.size(); ++k)
            if (::link(staging_.file(k).c_str(), (next / files_[k].name).c_str()) != 0) return false;
        return keep_others() && sync_directory(next);
    }

    bool keep_others() const
    {
        const auto before = status_of(directory_);
        if (!before) return true;
        const auto working = status_of(".");
        if (!working || is_same(*before, *working) || ::access(directory_.c_str(), W_OK) != 0 ||
            has_access_list(directory_))
            return false;
        std::size_t number = files_.size();
        for (const auto& name : names_in(directory_))
            if (!keep(name, number++)) return false;
        return has_owner_and_mode(*before);
    }

    bool keep(const std::string& name, std::size_t number) const
    {
        const auto file = directory_ / name;
        if (fs::is_directory(fs::symlink_status(file))) return false;
        const auto add = [&](const fs::path& to) { return ::link(file.c_str(), to.c_str()) == 0; };
        return add(staging_.file(number)) && (is_written(name) || add(staging_.next() / name));
    }

    bool has_owner_and_mode(const struct stat& before) const
    {
        constexpr mode_t permissions = 07777;
        const auto made = status_of(staging_.next());
        if (!made) return false;
        const bool is_owned = made->st_uid == before.st_uid && made->st_gid == before.st_gid;
        return (is_owned || ::chown(staging_.next().c_str(), before.st_uid, before.st_gid) == 0) &&
               ::chmod(staging_.next().c_str(), before.st_mode & permissions) == 0;
    }

    bool exchange() const
    {
        const auto next = staging_.next();
        if (!fs::exists(directory_)) return ::rename(next.c_str(), directory_.c_str()) == 0;
        if (::renameat2(AT_FDCWD, next.c_str(), AT_FDCWD, directory_.c_str(), RENAME_EXCHANGE) != 0)
            return false;
        return_newcomers();
        return true;
    }

    // Files that another program made in the old directory after its files were listed.
    void return_newcomers() const
    {
        for (const auto& name : names_in(staging_.next())) {
            const auto file = staging_.next() / name;
            if (!has_second_name(file))
                ::renameat2(AT_FDCWD, file.c_str(), AT_FDCWD, (directory_ / name).c_str(), RENAME_NOREPLACE);
        }
    }

    void replace_one_by_one() const
    {
        fs::create_directory(directory_);
        for (std::size_t k = 0; k < files_.size(); ++k) {
            const auto target = directory_ / files_[k].name;
            if (::rename(staging_.file(k).c_str(), target.c_str()) != 0) throw_not_written(target);
        }
    }

    fs::path directory_;
    const std::vector<OutputFile>& files_;
    fs::path place_;
    Staging staging_;
};

fs::path made(const fs::path& directory)
{
    auto target = fs::weakly_canonical(followed(directory));
    if (!target.has_filename()) target = parent_of(target);
    fs::create_directories(parent_of(target));
    return target;
}

}  // namespace

void write_files(const fs::path& directory, const std::vector<OutputFile>& files)
try {
    const auto target = made(directory);
    const auto is_replaced = [&](const OutputFile& file) {
        const auto path = target / file.name;
        return !fs::is_symlink(path) && !is_stream(path);
    };
    auto replaced = files;
    const auto written = std::stable_partition(replaced.begin(), replaced.end(), is_replaced);
    const std::vector<OutputFile> through{written, replaced.end()};
    replaced.erase(written, replaced.end());
    Replacement{target, replaced}.write();
    for (const auto& file : through) write_whole_file(target / file.name, file.content);
} catch (const fs::filesystem_error& error) {
    throw_not_written(directory, error.code().message());
}

}  // namespace app

#include "userbundle.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <stdexcept>
#include <system_error>
#include <vector>

#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

const fs::path programs = "Contents/MacOS";
const fs::path executable = programs / "tessaro";

void check(bool succeeded, const char *what, const fs::path &path)
{
    if (!succeeded)
        throw fs::filesystem_error(what, path, {errno, std::generic_category()});
}

// Mode 0700, as the XDG Base Directory rules ask for.
void makePrivateFolders(const fs::path &folder)
{
    if (fs::is_directory(folder))
        return;
    makePrivateFolders(folder.parent_path());
    check(mkdir(folder.c_str(), S_IRWXU) == 0 || errno == EEXIST, "mkdir", folder);
}

bool haveSameContent(const fs::path &one, const fs::path &other)
{
    std::error_code missing;
    if (fs::file_size(one) != fs::file_size(other, missing) || missing)
        return false;
    constexpr size_t blockSize = size_t(256) * 1024;
    std::ifstream first(one, std::ios::binary), second(other, std::ios::binary);
    std::vector<char> left(blockSize), right(blockSize);
    while (first && second) {
        first.read(left.data(), blockSize);
        second.read(right.data(), blockSize);
        if (first.gcount() != second.gcount() ||
            !std::equal(left.begin(), left.begin() + first.gcount(), right.begin()))
            return false;
    }
    return first.eof() && second.eof();
}

/// Puts what `make` makes at a free name into the place of `target`.
void replace(const fs::path &target, const std::function<void(const fs::path &)> &make)
{
    std::string folder = (target.parent_path() / ".new-XXXXXX").string();
    check(mkdtemp(folder.data()) != nullptr, "mkdtemp", target);
    const fs::path made = fs::path(folder) / target.filename();
    try {
        make(made);
        fs::rename(made, target);
    } catch (...) {
        std::error_code ignored;
        fs::remove_all(folder, ignored);
        throw;
    }
    fs::remove(folder);
}

void readyCopy(const fs::path &original, const fs::path &copy)
{
    // A link would lead the program to the folder that the original is in.
    if (fs::is_regular_file(fs::symlink_status(copy)) && haveSameContent(original, copy))
        return;
    replace(copy, [&original](const fs::path &made) {
        fs::copy_file(original, made);
        fs::permissions(made, fs::perms::owner_all);
    });
}

void readyLink(const fs::path &target, const fs::path &link)
{
    std::error_code none;
    if (fs::read_symlink(link, none) == target)
        return;
    replace(link, [&target](const fs::path &made) { fs::create_symlink(target, made); });
}

} // namespace

fs::path dataFolder()
{
    const auto absolute = [](const char *variable) {
        const char *value = std::getenv(variable);
        const fs::path path = value ? value : "";
        return path.is_absolute() ? path : fs::path();
    };
    if (fs::path data = absolute("XDG_DATA_HOME"); !data.empty())
        return data;
    const fs::path home = absolute("HOME");
    if (home.empty())
        throw std::runtime_error("there is no home folder: HOME is not set to an absolute path.");
    return home / ".local/share";
}

void readyBundle(const fs::path &shared, const fs::path &own)
{
    makePrivateFolders(own / programs);
    for (const fs::path &folder : {fs::path("Contents"), programs}) {
        for (const fs::directory_entry &entry : fs::directory_iterator(shared / folder)) {
            const fs::path name = folder / entry.path().filename();
            if (name == executable)
                readyCopy(entry.path(), own / name);
            else if (name != programs)
                readyLink(entry.path(), own / name);
        }
    }
}

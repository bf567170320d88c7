#include "userbundle.h"

#include "firstsettings.h"

#include <algorithm>
#include <cerrno>
#include <fstream>
#include <string>
#include <system_error>
#include <vector>

#include <fcntl.h>
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

void updateCopy(const fs::path &original, const fs::path &copy)
{
    // Started through a link, the program would find the folder of the original.
    const fs::file_status status = fs::symlink_status(copy);
    const fs::perms rights = fs::perms::owner_all;
    if (fs::is_regular_file(status) && (status.permissions() & rights) == rights &&
        haveSameContent(original, copy))
        return;
    fs::remove_all(copy);
    fs::copy_file(original, copy);
    fs::permissions(copy, rights);
}

void updateLink(const fs::path &target, const fs::path &link)
{
    std::error_code none;
    if (fs::read_symlink(link, none) == target)
        return;
    fs::remove_all(link);
    fs::create_symlink(target, link);
}

void updateBundle(const fs::path &shared, const fs::path &own)
{
    for (const fs::path &folder : {fs::path("Contents"), programs}) {
        for (const fs::directory_entry &entry : fs::directory_iterator(shared / folder)) {
            const fs::path name = folder / entry.path().filename();
            if (name == executable)
                updateCopy(entry.path(), own / name);
            else if (name != programs)
                updateLink(entry.path(), own / name);
        }
    }
}

// A POSIX lock belongs to the process: it survives execve(2), tools do not inherit it, and it ends
// with the process. On a file system without locks, no bundle counts as used.
bool isUsed(const fs::path &bundle)
{
    const fs::path path = bundle / "lock";
    const int file = open(path.c_str(), O_RDWR | O_CREAT, S_IRUSR | S_IWUSR);
    check(file >= 0, "open", path);
    struct flock whole = {};
    whole.l_type = F_WRLCK;
    if (fcntl(file, F_SETLK, &whole) == 0 || (errno != EAGAIN && errno != EACCES))
        return false;
    close(file);
    return true;
}

/// Locks the bundle in `folder` for this process and sets it up; false if another uses it.
bool take(const fs::path &shared, const fs::path &folder)
{
    const fs::path bundle = folder / "Tessaro.app";
    const bool isNew = !fs::exists(bundle);
    try {
        makePrivateFolders(bundle / programs);
        if (isUsed(bundle))
            return false;
        updateBundle(shared, bundle);
    } catch (...) {
        std::error_code ignored;
        if (isNew)
            fs::remove_all(bundle, ignored);
        throw;
    }
    return true;
}

} // namespace

fs::path dataFolder()
{
    if (fs::path data = absolutePathIn("XDG_DATA_HOME"); !data.empty())
        return data;
    const fs::path home = absolutePathIn("HOME");
    if (home.empty())
        throw fs::filesystem_error("getenv", "HOME",
                                   std::make_error_code(std::errc::no_such_file_or_directory));
    return home / ".local/share";
}

fs::path takeBundle(const fs::path &shared, const fs::path &own)
{
    fs::path folder = own;
    for (int window = 2; !take(shared, folder); ++window)
        folder = own / ("window-" + std::to_string(window));
    if (folder == own)
        writeFirstSettings(own / "setting.ini");
    else
        updateLink("../setting.ini", folder / "setting.ini");
    return folder / "Tessaro.app";
}

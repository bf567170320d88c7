#include "filerights.h"

#include "hardening.h"

#include <algorithm>
#include <optional>
#include <string_view>

#include <linux/limits.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace {

constexpr mode_t permissions = 0777;
constexpr mode_t newFile = 0666;
constexpr mode_t forGroup = 070;
constexpr const char *accessList = "system.posix_acl_access";

std::optional<std::string> attribute(const std::string &path, const char *name)
{
    std::string value(XATTR_SIZE_MAX, '\0');
    const ssize_t length = lgetxattr(path.c_str(), name, value.data(), value.size());
    if (length < 0)
        return std::nullopt;
    value.resize(static_cast<size_t>(length));
    return value;
}

bool setAttribute(int file, const char *name, const std::string &value)
{
    return fsetxattr(file, name, value.data(), value.size(), 0) == 0;
}

// Security modules give a file their own; only the user's have to be carried.
void takeOverUserAttributes(int file, const std::string &path)
{
    std::string names(XATTR_LIST_MAX, '\0');
    const ssize_t length = llistxattr(path.c_str(), names.data(), names.size());
    names.resize(static_cast<size_t>(std::max<ssize_t>(length, 0)));
    for (size_t start = 0; start < names.size(); start = names.find('\0', start) + 1) {
        const char *name = &names[start];
        if (std::string_view(name).starts_with("user.")) {
            if (const std::optional<std::string> value = attribute(path, name))
                setAttribute(file, name, *value);
        }
    }
}

// Only root can give a file to another user. False when it stays with another group.
bool takeOverOwners(int file, const struct stat &old)
{
    struct stat status = {};
    return fchown(file, old.st_uid, old.st_gid) == 0 ||
           fchown(file, static_cast<uid_t>(-1), old.st_gid) == 0 ||
           (fstat(file, &status) == 0 && status.st_gid == old.st_gid);
}

// The group's bits of a file with a list are the mask of all its entries, and not the group's.
bool takeOverList(int file, const std::string &path)
{
    const std::optional<std::string> list = attribute(path, accessList);
    // The new file may have one from its folder.
    fremovexattr(file, accessList);
    return !list || setAttribute(file, accessList, *list);
}

} // namespace

// A file system that knows no modes, groups or lists refuses to change them, and needs no change.
void takeOverRights(int file, const std::string &path)
{
    struct stat old = {};
    mode_t mode = newFile & ~userMask();
    if (lstat(path.c_str(), &old) == 0) {
        mode = old.st_mode & permissions;
        takeOverUserAttributes(file, path);
        if (!takeOverOwners(file, old) || !takeOverList(file, path))
            mode &= ~forGroup;
    }
    [[maybe_unused]] const int result = fchmod(file, mode);
}

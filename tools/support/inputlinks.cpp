#include "inputlinks.h"

#include "error.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

void copyFile(const std::string &path, int folder, const std::string &name)
{
    const FileDescriptor from(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    const FileDescriptor to(
        openat(folder, name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
    std::string buffer(65536, '\0');
    ssize_t count = -1;
    while (from.valid() && to.valid() &&
           (count = read(from.get(), buffer.data(), buffer.size())) > 0) {
        if (!writeAll(to.get(), {buffer.data(), static_cast<size_t>(count)}))
            break;
    }
    if (count != 0)
        throw systemError("cannot copy", path);
}

} // namespace

// vfat and exFAT know no links. A copy never stands for anything but the file.
std::string InputLinks::add(int folder, const std::string &path, const std::string &name)
{
    const std::string origin = absolutePath(path);
    std::string word = name;
    if (symlinkat(origin.c_str(), folder, name.c_str()) != 0) {
        if (symlinkat(origin.c_str(), m_elsewhere.descriptor(), name.c_str()) == 0)
            word = m_elsewhere.plainPath() + "/" + name;
        else
            copyFile(origin, folder, name);
    }
    m_originalPaths.emplace(word, path);
    return word;
}

std::string InputLinks::requireSuccess(const SubprocessResult &result) const
{
    std::string errors = replaced(result.explainedErrors(), m_originalPaths);
    if (!result.succeeded())
        throw ToolError({result.exitStatus(), replaced(result.output, m_originalPaths), errors});
    return errors;
}

void requireRegularFile(const std::string &path)
{
    struct stat status = {};
    if (stat(path.c_str(), &status) != 0 || access(path.c_str(), R_OK) != 0)
        throw systemError("cannot read", path);
    if (!S_ISREG(status.st_mode))
        throw ToolError("cannot read '" + path + "': not a regular file");
}

#include "bundle.h"

#include "error.h"
#include "text.h"

#include <climits>

#include <sys/stat.h>
#include <unistd.h>

namespace {

std::string programFolder()
{
    std::string path(PATH_MAX, '\0');
    const ssize_t length = readlink("/proc/self/exe", path.data(), path.size());
    if (length <= 0)
        throw systemError("cannot read", "/proc/self/exe");
    path.resize(static_cast<size_t>(length));
    return folderOf(path);
}

} // namespace

std::string resourcesFolder()
{
    return folderOf(programFolder()) + "/Resources";
}

std::string policyFolder()
{
    return resourcesFolder() + "/magick";
}

void requirePolicy()
{
    const std::string folder = policyFolder();
    // ImageMagick takes its folders as a list that colons separate.
    if (folder.find(':') != std::string::npos)
        throw ToolError("cannot work below a folder with a colon in its name, '" + folder + "'");
    for (const char *file : {"/limits/policy.xml", "/rights/ImageMagick/policy.xml"}) {
        struct stat status = {};
        const std::string path = folder + file;
        if (stat(path.c_str(), &status) != 0 || !S_ISREG(status.st_mode) || status.st_size == 0 ||
            access(path.c_str(), R_OK) != 0)
            throw ToolError("cannot read '" + path + "'; run packaging/assemble-tools again");
    }
}

std::vector<std::string> realCommand(const std::string &name)
{
    const std::string file = resourcesFolder() + "/" + name + ".tool";
    std::vector<std::string> words = linesOf(readFile(file).value_or(""));
    if (words.empty())
        throw ToolError("cannot read '" + file + "'; run packaging/assemble-tools again");
    return words;
}

#include "bundle.h"

#include "error.h"
#include "text.h"

#include <climits>
#include <optional>
#include <utility>

#include <sys/stat.h>
#include <unistd.h>

namespace {

// A start-up archive that was cut off, by a full disk perhaps, ends OpenJDK 17 by SIGBUS.
std::optional<std::string> wordOf(const std::string &line)
{
    const size_t word = line.find('\t'), file = line.rfind('\t');
    if (word == std::string::npos)
        return line;
    struct stat status = {};
    const bool counts = stat(line.substr(word + 1, file - word - 1).c_str(), &status) == 0 &&
                        std::to_string(status.st_size) == line.substr(file + 1);
    return counts ? std::optional(line.substr(0, word)) : std::nullopt;
}

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
    static const std::string placeholder = "@Resources@";
    const std::string resources = resourcesFolder();
    const std::string file = resources + "/" + name + ".tool";
    std::vector<std::string> words;
    for (std::string &line : linesOf(readFile(file).value_or(""))) {
        replaceAll(line, placeholder, resources);
        if (std::optional<std::string> word = wordOf(line))
            words.push_back(std::move(*word));
    }
    if (words.empty())
        throw ToolError("cannot read '" + file + "'; run packaging/assemble-tools again");
    return words;
}

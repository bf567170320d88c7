#include "support/bundle.h"

#include <climits>

#include <unistd.h>

#include "support/diagnosis.h"
#include "support/text.h"

std::string resourcesFolder()
{
    std::string path(PATH_MAX, '\0');
    const ssize_t length = readlink("/proc/self/exe", path.data(), path.size());
    if (length <= 0)
        throw systemError("cannot read", "/proc/self/exe");
    path.resize(static_cast<size_t>(length));
    const std::string programs = folderOf(path);
    return folderOf(programs) + "/Resources";
}

std::vector<std::string> realCommand(const std::string &name)
{
    static const std::string placeholder = "@Resources@";
    const std::string resources = resourcesFolder();
    const std::string file = resources + "/" + name + ".tool";
    std::vector<std::string> words;
    std::string content;
    if (readFile(file, content))
        words = linesOf(content);
    if (words.empty())
        throw ToolError("cannot read '" + file + "'; run packaging/assemble-tools again");
    for (std::string &word : words)
        replaceAll(word, placeholder, resources);
    return words;
}

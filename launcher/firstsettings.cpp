#include "firstsettings.h"

#include <cstdlib>
#include <fstream>
#include <iomanip>
#include <sstream>
#include <string>
#include <system_error>

namespace fs = std::filesystem;

namespace {

/// The folder that `line` of user-dirs.dirs gives to `variable`, such as
/// XDG_PICTURES_DIR="$HOME/Pictures"; "" if it gives none.
fs::path folderIn(const std::string &line, const std::string &variable, const fs::path &home)
{
    const std::string start = variable + '=';
    std::string value;
    if (line.compare(0, start.size(), start) != 0 ||
        !(std::istringstream(line.substr(start.size())) >> std::quoted(value)))
        return {};
    const std::string below = "$HOME/";
    return value.compare(0, below.size(), below) == 0 ? home / value.substr(below.size())
                                                      : fs::path(value);
}

/// The folder that the user has for `variable`, `usual` in the home folder if nothing is
/// configured.
fs::path userFolder(const std::string &variable, const char *usual)
{
    const fs::path home = absolutePathIn("HOME");
    fs::path config = absolutePathIn("XDG_CONFIG_HOME");
    if (config.empty())
        config = home / ".config";
    fs::path folder = home / usual;
    std::ifstream lines(config / "user-dirs.dirs");
    for (std::string line; std::getline(lines, line);) {
        if (fs::path configured = folderIn(line, variable, home); configured.is_absolute())
            folder = configured;
    }
    std::error_code none;
    return fs::is_directory(folder, none) ? folder : home;
}

} // namespace

fs::path absolutePathIn(const char *variable)
{
    const char *value = std::getenv(variable);
    const fs::path path = value ? value : "";
    return path.is_absolute() ? path : fs::path();
}

void writeFirstSettings(const fs::path &file)
{
    if (fs::exists(file) || absolutePathIn("HOME").empty())
        return;
    // A path is streamed in quotes, with the escapes that the INI format of Qt has too.
    std::ofstream(file) << "[dir]\ninput=" << userFolder("XDG_PICTURES_DIR", "Pictures")
                        << "\noutput=" << userFolder("XDG_DOCUMENTS_DIR", "Documents") << '\n';
}

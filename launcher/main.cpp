// The command `tessaro`: readies the user's own bundle of what is installed, and becomes the
// program in it.

#include "userbundle.h"

#include <cstdio>
#include <fstream>
#include <stdexcept>
#include <string>
#include <system_error>

#include <unistd.h>

namespace fs = std::filesystem;

namespace {

/// The bundle of the installation that this command belongs to.
fs::path installedBundle()
{
    return fs::read_symlink("/proc/self/exe").parent_path().parent_path() /
           "lib/tessaro/Tessaro.app";
}

// Written by packaging/setup-tools where the tools could not be readied: nothing would be
// converted.
void complainAboutTools(const fs::path &bundle)
{
    std::ifstream failure(bundle / "Contents/Resources/failure");
    if (std::string sentence; std::getline(failure, sentence))
        throw std::runtime_error(sentence);
}

void run(char **arguments)
{
    const fs::path installed = installedBundle();
    complainAboutTools(installed);
    const fs::path own = dataFolder() / "tessaro/Tessaro.app";
    readyBundle(installed, own);
    const fs::path program = own / "Contents/MacOS/tessaro";
    execv(program.c_str(), arguments);
    throw fs::filesystem_error("execv", program, {errno, std::generic_category()});
}

} // namespace

int main(int, char **argv)
{
    try {
        run(argv);
    } catch (const fs::filesystem_error &error) {
        std::fprintf(
            stderr,
            "tessaro: cannot ready the program for this user: %s: %s. It needs a folder of "
            "its own in XDG_DATA_HOME or ~/.local/share.\n",
            error.path1().c_str(), error.code().message().c_str());
    } catch (const std::exception &error) {
        std::fprintf(stderr, "tessaro: %s\n", error.what());
    }
    return 1;
}

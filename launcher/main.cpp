// The command `tessaro`: sets up the user's own bundle from the installed one and becomes the
// program in it.

#include "userbundle.h"

#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <stdexcept>
#include <string>
#include <system_error>

#include <sys/statvfs.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

const fs::path program = "Contents/MacOS/tessaro";

/// The bundle of the installation that this command belongs to.
fs::path installedBundle()
{
    return fs::read_symlink("/proc/self/exe").parent_path().parent_path() /
           "lib/tessaro/Tessaro.app";
}

// packaging/setup-tools writes the file if it could not set up the tools.
void checkTools(const fs::path &bundle)
{
    std::ifstream reason(bundle / "Contents/Resources/setup-error");
    if (std::string sentence; std::getline(reason, sentence))
        throw std::runtime_error(sentence);
}

// The installed program reports the failure, in a box too, and still answers --help and --version.
[[noreturn]] void reportFailure(const char *kind, const std::string &failure, char **arguments)
{
    setenv(kind, failure.c_str(), 1);
    execv((installedBundle() / program).c_str(), arguments);
    std::fprintf(stderr, "tessaro: %s\n", failure.c_str());
    std::exit(1);
}

void becomeProgram(char **arguments)
{
    const fs::path installed = installedBundle();
    checkTools(installed);
    const fs::path own = takeBundle(installed, dataFolder() / "tessaro");
    execv((own / program).c_str(), arguments);
    const int error = errno;
    struct statvfs system = {};
    if (statvfs(own.c_str(), &system) == 0 && (system.f_flag & ST_NOEXEC) != 0)
        reportFailure("TESSARO_PLACE_FAILURE", own.string() + ": noexec", arguments);
    throw fs::filesystem_error("execv", own / program, {error, std::generic_category()});
}

} // namespace

int main(int, char **argv)
{
    // The system's errors in the user's language, and in UTF-8, as the program reads them.
    std::setlocale(LC_MESSAGES, "");
    std::setlocale(LC_CTYPE, "C.UTF-8");
    try {
        becomeProgram(argv);
    } catch (const fs::filesystem_error &error) {
        // Of two paths, the second is the one to create.
        const fs::path &path = error.path2().empty() ? error.path1() : error.path2();
        reportFailure("TESSARO_PLACE_FAILURE", path.string() + ": " + error.code().message(), argv);
    } catch (const std::exception &error) {
        reportFailure("TESSARO_TOOLS_FAILURE", error.what(), argv);
    }
}

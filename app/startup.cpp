#include "startup.h"

#include "bundlepaths.h"
#include "look.h"

#include <QApplication>
#include <QDir>
#include <QImageReader>
#include <QLoggingCategory>

#include <sys/resource.h>
#include <unistd.h>

namespace {

/// Megabytes; a quarter of the machine's memory, so that a picture that unpacks to more is an
/// unreadable file and not the end of the program.
int imageAllocationLimit()
{
    const auto bytes = static_cast<qint64>(sysconf(_SC_PHYS_PAGES)) * sysconf(_SC_PAGESIZE);
    return static_cast<int>(bytes / 4 / 1024 / 1024);
}

} // namespace

void raiseArgumentLimit()
{
    constexpr rlim_t enough = rlim_t(64) * 1024 * 1024;
    rlimit stack = {};
    if (getrlimit(RLIMIT_STACK, &stack) != 0 || stack.rlim_cur >= enough)
        return;
    stack.rlim_cur = std::min(enough, stack.rlim_max);
    setrlimit(RLIMIT_STACK, &stack);
}

void prepare(QApplication &application)
{
    const QString executableFolder = QCoreApplication::applicationDirPath();
    QCoreApplication::setLibraryPaths({pluginFolder(executableFolder)});
    QDir::setCurrent(bundleFolder(executableFolder));
    // Texts need no codec: every literal is ASCII, and the toolkit reads literals as UTF-8.
    QImageReader::setAllocationLimit(imageAllocationLimit());
    applyLook(application);
    QGuiApplication::setDesktopFileName(QStringLiteral("org.example.tessaro"));
    // Two page slots have no button of their name in the layout, and a broken image is no news:
    // neither is worth a line on the terminal, the latter at every refresh of the preview.
    QLoggingCategory::setFilterRules(
        QStringLiteral("qt.core.qmetaobject.connectslotsbyname.warning=false\n"
                       "qt.gui.imageio*.warning=false"));
}

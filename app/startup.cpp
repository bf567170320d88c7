#include "startup.h"

#include "activation.h"
#include "bundlepaths.h"
#include "previewpicture.h"
#include "style.h"
#include "translation.h"

#include <QApplication>
#include <QDir>
#include <QLoggingCategory>

#include <algorithm>

#include <sys/resource.h>

void raiseArgumentLimit()
{
    constexpr rlim_t enough = rlim_t(64) * 1024 * 1024;
    rlimit stack = {};
    if (getrlimit(RLIMIT_STACK, &stack) != 0 || stack.rlim_cur >= enough)
        return;
    stack.rlim_cur = std::min(enough, stack.rlim_max);
    setrlimit(RLIMIT_STACK, &stack);
}

void setUpApplication(QApplication &application)
{
    const QString executableFolder = QCoreApplication::applicationDirPath();
    QCoreApplication::setLibraryPaths({pluginFolder(executableFolder)});
    QDir::setCurrent(bundleFolder(executableFolder));
    // Texts need no codec: every literal is ASCII, and Qt reads literals as UTF-8.
    limitDecodedPictures();
    applyLook(application);
    activateWindows(application);
    attachPopups(application);
    keepFixedSizes(application);
    if (const QString language = wantedLanguage(); !language.isEmpty())
        installTranslators(application, language);
    QGuiApplication::setDesktopFileName(QStringLiteral("org.example.tessaro"));
    // Two page slots have no button of their name in the layout, and a broken image is no news:
    // neither is worth a line on the terminal, the latter at every refresh of the preview.
    QLoggingCategory::setFilterRules(
        QStringLiteral("qt.core.qmetaobject.connectslotsbyname.warning=false\n"
                       "qt.gui.imageio*.warning=false"));
}

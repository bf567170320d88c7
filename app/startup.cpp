#include "startup.h"

#include "activation.h"
#include "bundlepaths.h"
#include "previewpicture.h"
#include "style.h"
#include "translation.h"

#include <QApplication>
#include <QDir>
#include <QLoggingCategory>

void setUpApplication(QApplication &application)
{
    const QString executableFolder = QCoreApplication::applicationDirPath();
    QCoreApplication::setLibraryPaths({pluginFolder(executableFolder)});
    QDir::setCurrent(bundleFolder(executableFolder));
    // Texts need no codec: every literal is ASCII, and Qt reads literals as UTF-8.
    limitDecodedPictures();
    applyStyle(application);
    activateWindows(application);
    attachPopups(application);
    keepFixedSizes(application);
    if (const QString language = wantedLanguage(); !language.isEmpty())
        installTranslators(application, language);
    QGuiApplication::setDesktopFileName(QStringLiteral("org.example.tessaro"));
    // No warnings about two page slots without a button of their name.
    QLoggingCategory::setFilterRules(
        QStringLiteral("qt.core.qmetaobject.connectslotsbyname.warning=false"));
}

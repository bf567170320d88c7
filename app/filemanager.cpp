#include "filemanager.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDesktopServices>
#include <QFileInfo>
#include <QUrl>

using namespace Qt::StringLiterals;

void showInFolder(const QString &path)
{
    const QString service = u"org.freedesktop.FileManager1"_s;
    const auto openFolder = [path] {
        QDesktopServices::openUrl(QUrl::fromLocalFile(QFileInfo(path).absolutePath()));
    };
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) {
        openFolder();
        return;
    }
    auto call = QDBusMessage::createMethodCall(service, u"/org/freedesktop/FileManager1"_s, service,
                                               u"ShowItems"_s);
    call << QStringList{QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded)} << QString();
    auto *answer = new QDBusPendingCallWatcher(bus.asyncCall(call));
    QObject::connect(answer, &QDBusPendingCallWatcher::finished, answer, [answer, openFolder] {
        if (answer->isError())
            openFolder();
        answer->deleteLater();
    });
}

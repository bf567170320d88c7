#pragma once

#include <QDir>
#include <QList>
#include <QUrl>

/// The files of `folder` by name.
inline QList<QUrl> filesIn(const QString &folder)
{
    QList<QUrl> urls;
    const QFileInfoList files = QDir(folder).entryInfoList(QDir::Files);
    for (const QFileInfo &file : files)
        urls << QUrl::fromLocalFile(file.absoluteFilePath());
    return urls;
}

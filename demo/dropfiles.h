#pragma once

#include <QCoreApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QUrl>
#include <QWidget>

/// Drops `files` on the window, as the desktop would: Qt hands a drop only to a widget that has
/// accepted the drag before.
inline void dropFiles(QWidget &window, const QList<QUrl> &files)
{
    QMimeData data;
    data.setUrls(files);
    QDragEnterEvent enter({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&window, &enter);
    QDropEvent drop(QPointF(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&window, &drop);
}

#pragma once

#include "windowfixture.h"

#include <QFrame>
#include <QImage>
#include <QTableWidget>

inline QFrame *frameOf(WindowFixture &fixture)
{
    return fixture.find<QFrame>("previewframe");
}

inline QImage pictureOf(WindowFixture &fixture)
{
    const QFrame *frame = frameOf(fixture);
    return frame->palette().brush(frame->backgroundRole()).textureImage();
}

/// Colour in the middle of the picture shown; invalid when it is blank.
inline QColor colourOf(WindowFixture &fixture)
{
    const QImage picture = pictureOf(fixture);
    return picture.isNull() ? QColor() : picture.pixelColor(picture.rect().center());
}

inline QString savePicture(WindowFixture &fixture, const QString &name, QSize size, QColor colour)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(colour);
    if (!image.save(fixture.inputPath(name)))
        qFatal("cannot save the picture");
    return fixture.inputPath(name);
}

/// Adds the file and makes its row the current one, without a selection.
inline void makeCurrent(WindowFixture &fixture, const QString &path)
{
    fixture.drop({QUrl::fromLocalFile(path)});
    auto *table = fixture.find<QTableWidget>("inputfiletableWidget");
    table->selectionModel()->setCurrentIndex(table->model()->index(table->rowCount() - 1, 0),
                                             QItemSelectionModel::NoUpdate);
}

/// The preview of the file, drawn at once.
inline void preview(WindowFixture &fixture, const QString &path)
{
    makeCurrent(fixture, path);
    fixture.window.dopreview();
}

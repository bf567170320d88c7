#include "pixmaps.h"

#include "iconfile.h"

#include <QImageReader>

QPixmap scaledPixmap(const QPixmap &picture, QSize size, Qt::AspectRatioMode mode, qreal ratio)
{
    QPixmap scaled =
        picture.scaled((QSizeF(size) * ratio).toSize(), mode, Qt::SmoothTransformation);
    scaled.setDevicePixelRatio(ratio);
    return scaled;
}

QPixmap readScaled(const QString &path, QSize size, qreal ratio)
{
    QImageReader reader(path);
    reader.setScaledSize((QSizeF(size) * ratio).toSize());
    QPixmap scaled = QPixmap::fromImageReader(&reader);
    scaled.setDevicePixelRatio(ratio);
    return scaled;
}

QPixmap crispPixmap(const QString &path, QSize size, qreal ratio)
{
    QIcon icon;
    addPng(icon, path);
    return icon.pixmap(size, ratio);
}

QBrush pixmapBrush(const QPixmap &picture)
{
    return QBrush(picture);
}

QBitmap widgetMask(const QPixmap &picture)
{
    const QBitmap mask = picture.mask();
    if (mask.isNull() || qFuzzyCompare(picture.devicePixelRatio(), 1.0))
        return mask;
    return QBitmap::fromPixmap(mask.scaled(picture.deviceIndependentSize().toSize()));
}

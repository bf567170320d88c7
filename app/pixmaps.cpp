#include "pixmaps.h"

#include "iconfile.h"

#include <QImageReader>
#include <QPixmapCache>

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
    const QString key =
        QStringLiteral("%1 %2x%3@%4").arg(path).arg(size.width()).arg(size.height()).arg(ratio);
    QPixmap picture;
    if (!QPixmapCache::find(key, &picture)) {
        QIcon icon;
        addPng(icon, path);
        picture = icon.pixmap(size, ratio);
        QPixmapCache::insert(key, picture);
    }
    return picture;
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

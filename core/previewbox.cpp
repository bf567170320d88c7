#include "previewbox.h"

QSize previewSize(QSize image)
{
    const qint64 width = image.width();
    const qint64 height = image.height();
    const qint64 widthInBoxShape = height * previewBox.width() / previewBox.height();
    if (widthInBoxShape < width)
        return {previewBox.width(), static_cast<int>(height * previewBox.width() / width)};
    return {static_cast<int>(width * previewBox.height() / height), previewBox.height()};
}

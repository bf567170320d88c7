#pragma once

#include <QImage>
#include <QString>
#include <QStringList>

/// How the data of each image in the PDF at `path` is packed, in the words of PDF: "/DCTDecode".
QStringList imageFilters(const QString &path);

/// Dark cyan, at a point to the pixel.
QImage plainImage(QSize size);

/// The same with a white upper left quarter, so that each turn of it looks different.
QImage markedImage();

/// Where the lightest quarter of the image is: "upper left".
QString lightestQuarter(const QImage &image);

/// How many in a hundred pixels are neither black nor white, but for what scaling blurs.
int colouredPixels(const QImage &image);

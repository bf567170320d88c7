#pragma once

#include "copyablepage.h"

#include <QByteArrayList>
#include <QString>

#include <vector>

/// What the readers make of an image file.
struct Reading
{
    /// None when ImageMagick has to convert it.
    std::vector<CopyablePage> pages;
    /// The stream of each.
    QByteArrayList streams;
    /// Why the file is refused, or "".
    QString refusal;
};

Reading readImage(const QByteArray &file, Compression asked = Compression::Unset);

/// Columns "file" and "isCopied", and the test over them.
void addReadingRows();
void compareReading();

/// The test over a column "file": each is refused, whatever is asked for.
void compareRefusal();

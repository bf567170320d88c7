#pragma once

#include "copyablepage.h"

#include <QByteArrayList>
#include <QString>

#include <string>
#include <vector>

/// What the readers make of an image file.
struct Reading
{
    /// None when ImageMagick has to convert it.
    std::vector<CopyablePage> pages;
    /// The stream of each, and its colour profile.
    QByteArrayList streams;
    QByteArrayList profiles;
    /// Why the file is refused, or "".
    QString refusal;
};

/// `compress` is what the application asks for.
Reading readImage(const QByteArray &file, const std::string &compress = {});

/// Columns "file" and "isCopied", and the test over them.
void addReadingRows();
void compareReading();

/// The test over a column "file": each is refused with any options.
void compareRefusal();

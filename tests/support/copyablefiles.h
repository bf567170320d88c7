#pragma once

#include <QByteArray>
#include <QList>

/// An image file, and whether its data can go into a PDF as it stands.
struct CopyableFile
{
    QByteArray name;
    QByteArray bytes;
    bool isCopied;
};

/// Every combination of density, colour kind and orientation that the page's size depends on.
QList<CopyableFile> densityFiles();

/// Every kind of picture that is copied, at 72 dots per inch.
QList<CopyableFile> pictureFiles();

#pragma once

#include <QString>
#include <QStringList>

/// `path` between double quotes, which keep its blanks together when the command is split.
/// Nothing is escaped: a path that holds a double quote breaks the command.
QString quoted(const QString &path);

/// Every path quoted, one blank between them.
QString quoted(const QStringList &paths);

/// `quotedPath` without its double quotes.
QString unquoted(QString quotedPath);

/// Quoted path of the program `name` in the folder of the running executable.
QString toolPath(const QString &name);

/// Quoted path of the PDF made from the image at `imagePath`: in `folder`, named after the
/// image's file name cut at its first dot.
QString outputPath(const QString &folder, const QString &imagePath);

/// Path, not quoted, of pdftk's intermediate file for the PDF at `quotedOutput`: in `folder`, with
/// "-1" after the PDF's name.
QString intermediatePath(const QString &folder, const QString &quotedOutput);

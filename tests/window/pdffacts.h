#pragma once

#include <QByteArray>
#include <QList>
#include <QSizeF>
#include <QString>

/// What a PDF says about itself, as poppler reads it. Tests compare these facts instead of bytes.
struct PdfFacts
{
    /// False when poppler finds no PDF there; everything below is then as initialised here.
    bool readable = false;
    /// -1 while the document is locked: poppler 22.12 reports nothing but `encrypted`.
    int pages = -1;
    /// In points (1/72 inch), one for each page, as shown (a page's own rotation is applied).
    QList<QSizeF> pageSizes;
    /// An absent field and an empty one are the same to poppler: "".
    QString title, subject, keywords, author;
    bool encrypted = false;
    /// The document cannot be opened with the password that was given (none, by default).
    bool needsPassword = false;
    /// What the user-password holder may do; all true in a document that is not encrypted. When
    /// only the owner password was given, and a user password exists, all true as well.
    bool mayPrint = false, mayModify = false, mayCopy = false, mayAnnotate = false;
};

/// The facts of the file at `path`. `password` is tried as the user password, then as the owner's.
PdfFacts readPdf(const QString &path, const QByteArray &password = {});

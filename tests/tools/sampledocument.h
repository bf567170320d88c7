#pragma once

#include <QString>

/// Writes a PDF of two pages with everything that a finished one has to keep: boxes, a rotated
/// page, XMP, an attachment, an outline, a form and an information dictionary. qpdf makes its
/// cross-references.
void makeSampleDocument(const QString &path);

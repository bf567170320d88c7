#pragma once

#include "pagelibrary.h"

#include <qpdf/QPDF.hh>

#include <map>
#include <string>
#include <vector>

/// Makes pages of images whose compressed data stands in their files. It is read when the document
/// is written.
class CopiedPages
{
public:
    explicit CopiedPages(QPDF &document)
        : m_document(document)
    {
    }

    /// The pages of an image file.
    std::vector<QPDFObjectHandle> make(const DocumentPart &part);

private:
    QPDFObjectHandle makePage(const DocumentPart &part, const CopyablePage &page);
    QPDFObjectHandle imageOf(const DocumentPart &part, const CopyablePage &page);
    QPDFObjectHandle colorSpaceOf(const CopyablePage &page);
    QPDFObjectHandle profileOf(const CopyablePage &page);

    QPDF &m_document;
    // Scans of one scanner share theirs.
    std::map<std::string, QPDFObjectHandle> m_profiles;
};

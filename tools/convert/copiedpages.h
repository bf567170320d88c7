#pragma once

#include "document.h"
#include "error.h"

#include <qpdf/QPDF.hh>

#include <functional>
#include <map>
#include <string>
#include <vector>

/// For a page whose size no reader can show.
ToolError unsoundPage();

/// Makes pages of images whose compressed data is copied from their files, or from the spool, when
/// the document is written.
class CopiedPages
{
public:
    /// `check` is called again and again while data is copied.
    CopiedPages(QPDF &document, int spool, std::function<void()> check)
        : m_document(document)
        , m_spool(spool)
        , m_check(std::move(check))
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
    int m_spool;
    std::function<void()> m_check;
    // By their place in the spool: scans of one scanner share theirs.
    std::map<std::uint64_t, QPDFObjectHandle> m_profiles;
};

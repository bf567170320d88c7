#include "document.h"

#include "copiedpages.h"
#include "error.h"

#include <qpdf/ClosedFileInputSource.hh>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>
#include <qpdf/QPDFWriter.hh>
#include <qpdf/QUtil.hh>

#include <algorithm>
#include <ctime>
#include <memory>
#include <new>

#include <sys/resource.h>

namespace {

// How many files may stay open, once as many as allowed are asked for. Opening a file at each of
// some hundred reads takes a tenth of the time that its page takes.
size_t roomForFiles()
{
    constexpr rlim_t others = 64;
    rlimit limit = {};
    getrlimit(RLIMIT_NOFILE, &limit);
    limit.rlim_cur = limit.rlim_max;
    setrlimit(RLIMIT_NOFILE, &limit);
    getrlimit(RLIMIT_NOFILE, &limit);
    return limit.rlim_cur - std::min(limit.rlim_cur, others);
}

// JPEG 2000 data states its own colours, and ImageMagick 7.1.1 declares some pages grey whose data
// is not: readers based on poppler then show stripes.
void leaveColoursToJpeg2000(QPDFPageObjectHelper &page)
{
    page.forEachImage(true, [](QPDFObjectHandle &image, QPDFObjectHandle &, const std::string &) {
        QPDFObjectHandle dictionary = image.getDict();
        QPDFObjectHandle filter = dictionary.getKey("/Filter");
        if (filter.isArray() && filter.getArrayNItems() == 1)
            filter = filter.getArrayItem(0);
        if (filter.isNameAndEquals("/JPXDecode") &&
            dictionary.getKey("/ColorSpace").isNameAndEquals("/DeviceGray"))
            dictionary.removeKey("/ColorSpace");
    });
}

// Readers show pages of 3 to 14,400 units in full. A larger or smaller one is scaled into that
// range, and its unit says how large it is meant to be.
void fitReaders(QPDF &document, QPDFPageObjectHelper &page)
{
    constexpr double minSide = 3;
    constexpr double maxSide = 14'400;
    constexpr int decimals = 9;
    const QPDFObjectHandle::Rectangle box =
        page.getObjectHandle().getKey("/MediaBox").getArrayAsRectangle();
    const double longSide = std::max(box.urx - box.llx, box.ury - box.lly);
    const double shortSide = std::min(box.urx - box.llx, box.ury - box.lly);
    double unit = 1;
    if (longSide > maxSide)
        unit = longSide / maxSide;
    else if (shortSide < minSide)
        unit = std::max(shortSide / minSide, longSide / maxSide);
    if (unit == 1 || shortSide <= 0)
        return;
    const std::string scale = QPDFObjectHandle::newReal(1 / unit, decimals).unparse();
    page.addPageContents(
        QPDFObjectHandle::newStream(&document, scale + " 0 0 " + scale + " 0 0 cm\n"), true);
    page.getObjectHandle().replaceKey(
        "/MediaBox", QPDFObjectHandle::newFromRectangle(QPDFObjectHandle::Rectangle(
                         0, 0, (box.urx - box.llx) / unit, (box.ury - box.lly) / unit)));
    // ImageMagick's crop box is the media box before scaling.
    page.getObjectHandle().removeKey("/CropBox");
    page.getObjectHandle().replaceKey("/UserUnit", QPDFObjectHandle::newReal(unit, decimals));
}

// libqpdf calls it some hundred times while it writes.
class Check : public QPDFWriter::ProgressReporter
{
public:
    explicit Check(const std::function<void()> &check)
        : m_check(check)
    {
    }

    void reportProgress(int) override { m_check(); }

private:
    const std::function<void()> &m_check;
};

class Document
{
public:
    Document(int spool, const std::function<void()> &check)
        : m_check(check)
        , m_pages((m_pdf.emptyPDF(), m_pdf))
        , m_copied(m_pdf, spool, check)
    {
    }

    void add(const DocumentPart &part);
    void describe(const std::string &title);
    void write(FileOutput &output);

private:
    void addPdf(const DocumentPart &part);

    const std::function<void()> &m_check;
    const size_t m_maxOpen = roomForFiles();
    QPDF m_pdf;
    // The document reads from them while it is written.
    std::vector<std::unique_ptr<QPDF>> m_sources;
    QPDFPageDocumentHelper m_pages;
    CopiedPages m_copied;
};

void Document::add(const DocumentPart &part)
{
    m_check();
    if (part.copied.empty()) {
        addPdf(part);
        return;
    }
    for (QPDFPageObjectHelper page : m_copied.make(part)) {
        fitReaders(m_pdf, page);
        m_pages.addPage(page, false);
    }
}

void Document::addPdf(const DocumentPart &part)
{
    auto &source = m_sources.emplace_back(std::make_unique<QPDF>());
    source->setSuppressWarnings(true);
    source->setAttemptRecovery(false);
    if (m_sources.size() < m_maxOpen)
        source->processFile(part.path.c_str());
    else
        source->processInputSource(std::make_shared<ClosedFileInputSource>(part.path.c_str()));
    std::vector<QPDFPageObjectHelper> pages = QPDFPageDocumentHelper(*source).getAllPages();
    if (pages.size() < part.minPages)
        throw ToolError("a page is missing");
    // ImageMagick writes a length of a million points as 1e+06, which PDF does not allow.
    if (source->anyWarnings())
        throw unsoundPage();
    for (QPDFPageObjectHelper &page : pages) {
        // Viewers make their own, and a copied page has none.
        page.getObjectHandle().removeKey("/Thumb");
        leaveColoursToJpeg2000(page);
        fitReaders(*source, page);
        m_pages.addPage(page, false);
    }
}

// In UTC, as the time zone would reveal where the document was made.
std::string currentPdfTime()
{
    const time_t now = time(nullptr);
    tm utc = {};
    gmtime_r(&now, &utc);
    return QUtil::qpdf_time_to_pdf_time(
        {utc.tm_year + 1900, utc.tm_mon + 1, utc.tm_mday, utc.tm_hour, utc.tm_min, utc.tm_sec, 0});
}

void Document::describe(const std::string &title)
{
    const std::string now = currentPdfTime();
    QPDFObjectHandle information = QPDFObjectHandle::newDictionary();
    if (!title.empty())
        information.replaceKey("/Title", QPDFObjectHandle::newUnicodeString(title));
    information.replaceKey("/Producer", QPDFObjectHandle::newUnicodeString(TESSARO_PRODUCER));
    information.replaceKey("/CreationDate", QPDFObjectHandle::newString(now));
    information.replaceKey("/ModDate", QPDFObjectHandle::newString(now));
    m_pdf.getTrailer().replaceKey("/Info", m_pdf.makeIndirectObject(information));
}

void Document::write(FileOutput &output)
{
    QPDFWriter writer(m_pdf);
    writer.setOutputPipeline(&output);
    writer.setStreamDataMode(qpdf_s_preserve);
    // /UserUnit needs this version, JPEG 2000 needs 1.5.
    writer.setMinimumPDFVersion("1.6");
    writer.registerProgressReporter(std::make_shared<Check>(m_check));
    writer.write();
    output.requireSuccess();
}

} // namespace

void writeDocument(FileOutput &output, const std::vector<DocumentPart> &parts, int spool,
                   const std::string &title, const std::function<void()> &check)
{
    try {
        Document document(spool, check);
        for (const DocumentPart &part : parts)
            document.add(part);
        document.describe(title);
        document.write(output);
    } catch (const ToolError &) {
        throw;
    } catch (const std::bad_alloc &) {
        throw ToolError("cannot join the pages: not enough memory");
    } catch (const std::exception &error) {
        throw ToolError(std::string("cannot join the pages: ") + error.what());
    }
}

#include "pagereading.h"

#include "error.h"
#include "imageplan.h"

#include <QTemporaryFile>
#include <QTest>

#include <sys/mman.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

QByteArray contentOf(const Extent &extent, const QByteArray &file, int spool)
{
    if (!extent.isSpooled)
        return file.mid(qsizetype(extent.offset), qsizetype(extent.length));
    QByteArray content(qsizetype(extent.length), '\0');
    const auto count = static_cast<std::size_t>(extent.length);
    if (pread(spool, content.data(), count, off_t(extent.offset)) != qsizetype(count))
        qFatal("cannot read the spool");
    return content;
}

} // namespace

Reading readImage(const QByteArray &content, const std::string &compress)
{
    Reading reading;
    QTemporaryFile file;
    if (!file.open() || file.write(content) != content.size() || !file.flush())
        qFatal("no temporary file");
    ConvertOptions options;
    options.compress = compress;
    Spool spool(FileDescriptor(memfd_create("spool", MFD_CLOEXEC)));
    try {
        ImagePlan plan = planImage(file.handle(), options, spool);
        if (auto *copied = std::get_if<CopiedImage>(&plan))
            reading.pages = std::move(copied->pages);
    } catch (const ToolError &error) {
        reading.refusal = QString::fromUtf8(error.what());
    }
    for (const CopyablePage &page : reading.pages) {
        QByteArray stream;
        for (const Extent &extent : page.extents)
            stream += contentOf(extent, content, spool.file());
        reading.streams.append(stream);
        reading.profiles.append(page.iccProfile ? contentOf(*page.iccProfile, content, spool.file())
                                                : QByteArray());
    }
    return reading;
}

void addReadingRows()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<bool>("isCopied");
}

void compareReading()
{
    QFETCH(const QByteArray, file);
    QFETCH(const bool, isCopied);
    const Reading reading = readImage(file);
    QCOMPARE(reading.refusal, QString());
    QCOMPARE(!reading.pages.empty(), isCopied);
}

void compareRefusal()
{
    QFETCH(const QByteArray, file);
    for (const char *compress : {"", "None"}) {
        const Reading reading = readImage(file, compress);
        QVERIFY2(reading.refusal.startsWith(u"the image is "_s), qPrintable(reading.refusal));
    }
}

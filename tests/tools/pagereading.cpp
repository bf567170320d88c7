#include "pagereading.h"

#include "error.h"

#include <QTemporaryFile>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QByteArray streamOf(const CopyablePage &page, const QByteArray &file)
{
    QByteArray stream = QByteArray::fromStdString(page.data);
    for (const Extent &extent : page.extents)
        stream += file.mid(qsizetype(extent.offset), qsizetype(extent.length));
    return stream;
}

} // namespace

Reading readImage(const QByteArray &content, Compression asked)
{
    Reading reading;
    QTemporaryFile file;
    if (!file.open() || file.write(content) != content.size() || !file.flush())
        qFatal("no temporary file");
    try {
        reading.pages = copyablePages(file.handle(), asked).value_or(std::vector<CopyablePage>());
    } catch (const ToolError &error) {
        reading.refusal = QString::fromUtf8(error.what());
    }
    for (const CopyablePage &page : reading.pages)
        reading.streams.append(streamOf(page, content));
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
    for (const Compression asked : {Compression::Unset, Compression::Other}) {
        const Reading reading = readImage(file, asked);
        QVERIFY2(reading.refusal.startsWith(u"the picture is "_s), qPrintable(reading.refusal));
    }
}

// The memory that the two programs take themselves, with any input.

#include "imagefiles.h"
#include "pdffacts.h"
#include "tifffields.h"
#include "toolbench.h"

#include <QTest>

#include <array>

using namespace Qt::StringLiterals;
using namespace imagefiles;

class ToolMemoryTest : public QObject
{
    Q_OBJECT

private slots:
    void hostileTableTakesLittleMemory_data();
    void hostileTableTakesLittleMemory();
    void profilesAreNotHeldInMemory_data();
    void profilesAreNotHeldInMemory();
    void pagesOfAPdfAreNotHeldInMemory();

private:
    QTemporaryDir m_folder;
};

namespace {

constexpr qsizetype megabyte = 1'000'000;

// Of addresses, with those of the libraries; ImageMagick would need more.
const QString littleMemory = u"ulimit -v 65536"_s;

// Its only page follows its text.
QByteArray tiffWithText(quint32 length)
{
    TiffForm form;
    form.description = "text";
    QByteArray file = tiff(form);
    const QByteArray field = little(270, 2) + little(2, 2);
    file.replace(file.indexOf(field + little(5, 4)) + 4, 8, little(length, 4) + little(8, 4));
    return file + QByteArray(length, ' ');
}

// The same part of a profile again and again.
QByteArray jpegOfProfileParts(int parts)
{
    const QByteArray part =
        segment(0xE2, QByteArray("ICC_PROFILE\0\1\1", 14) + QByteArray(65'000, '\1'));
    return jpeg({part.repeated(parts)}, jpegBody(true));
}

// As many comments, each of them between two segments that decoding needs.
QByteArray jpegOfPieces(int pieces)
{
    return jpeg({(segment(0xDD, big16(0)) + segment(0xFE, {})).repeated(pieces)}, jpegBody(true));
}

QByteArray pngWith(const QByteArray &chunks)
{
    PngForm form;
    form.before = {chunks};
    return png(form);
}

// An empty chunk of each of two million unknown types.
QByteArray pngOfTypes()
{
    constexpr int letters = 126;
    QByteArray chunks;
    for (int type = 0; type < letters * letters * letters; ++type) {
        const std::array<char, 5> name = {'q', static_cast<char>(1 + type % letters),
                                          static_cast<char>(1 + type / letters % letters),
                                          static_cast<char>(1 + type / letters / letters), '\0'};
        chunks += chunk(name.data(), {});
    }
    return pngWith(chunks);
}

QByteArray webp(const QByteArray &exif)
{
    return "RIFF" + little(quint32(exif.size()) + 12, 4) + "WEBPEXIF" +
           little(quint32(exif.size()), 4) + exif;
}

} // namespace

// What comes to ImageMagick ends there.
void ToolMemoryTest::hostileTableTakesLittleMemory_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QByteArray>("errors");
    const QByteArray converted = "came to ImageMagick\n";
    const QByteArray long100(100 * megabyte, '\0');
    QTest::newRow("TIFF directories that share a table")
        << sharingTiff(4'000, 500'000) << QByteArray("tables of the TIFF file overlap\n");
    QTest::newRow("TIFF directory of 20 million strips")
        << sharingTiff(1, 20'000'000)
        << QByteArray("a directory of the TIFF file cannot be read\n");
    QTest::newRow("TIFF with a text of 100 MB") << tiffWithText(100 * megabyte) << converted;
    QTest::newRow("JPEG with one part of a profile 1,500 times")
        << jpegOfProfileParts(1'500) << converted;
    QTest::newRow("JPEG in five million pieces") << jpegOfPieces(5'000'000) << converted;
    QTest::newRow("PNG with two million types of chunks") << pngOfTypes() << QByteArray();
    QTest::newRow("PNG with a text of 100 MB") << pngWith(chunk("tEXt", long100)) << converted;
    QTest::newRow("PNG with a profile that inflates to 100 MB")
        << pngWith(chunk("iCCP", QByteArray("name\0\0", 6) + qCompress(long100).mid(4)))
        << converted;
    QTest::newRow("WEBP with EXIF data of 100 MB") << webp(long100) << converted;
}

void ToolMemoryTest::hostileTableTakesLittleMemory()
{
    QFETCH(const QByteArray, file);
    QFETCH(const QByteArray, errors);
    const ToolBundle bundle(shellTool(u"echo came to ImageMagick >&2; exit 1"_s));
    writeContent(m_folder.filePath(u"x"_s), file);
    const RunResult result =
        runInShell(littleMemory, bundle.tool(u"convert"_s), {u"x"_s, u"o.pdf"_s}, m_folder.path());
    QVERIFY2(errors.isEmpty() ? result.errors.isEmpty() : result.errors.endsWith(errors),
             result.errors.constData());
}

void ToolMemoryTest::profilesAreNotHeldInMemory_data()
{
    QTest::addColumn<bool>("areEqual");
    QTest::newRow("equal ones, which stand once in the PDF") << true;
    QTest::newRow("different ones") << false;
}

// 100 of a megabyte.
void ToolMemoryTest::profilesAreNotHeldInMemory()
{
    QFETCH(const bool, areEqual);
    constexpr int pages = 100;
    const QByteArray body = jpegBody(true);
    QByteArray profile = big32(megabyte) + QByteArray(megabyte - 4, '\0');
    profile.replace(12, 8, "scnrRGB ").replace(36, 4, "acsp");
    QStringList names;
    for (int page = 0; page < pages; ++page) {
        names += QString::number(page);
        profile[200] = static_cast<char>(areEqual ? 0 : page);
        writeContent(m_folder.filePath(names.last()), jpeg(profileSegments(profile, 20), body));
    }
    const RunResult result = runInShell(littleMemory, bundledTool(u"convert"_s),
                                        names + QStringList{u"o.pdf"_s}, m_folder.path());
    QCOMPARE(result.errors, QByteArray());
    const QString pdf = m_folder.filePath(u"o.pdf"_s);
    QCOMPARE(readPdf(pdf).pages, pages);
    const qsizetype profiles = areEqual ? 1 : pages;
    const qsizetype size = contentOf(pdf).size();
    QVERIFY(size > profiles * megabyte);
    QVERIFY(size < profiles * megabyte + pages * (body.size() + 1'000));
}

// 100 MB of pages, with 64 MiB to work in.
void ToolMemoryTest::pagesOfAPdfAreNotHeldInMemory()
{
    const QByteArray page(1'000'000, 'x');
    QByteArray content = "%PDF-1.4\n1 0 obj\n<< /Type /Catalog /Pages 2 0 R >>\nendobj\n";
    QByteArray kids;
    constexpr int pages = 100;
    for (int i = 0; i < pages; ++i) {
        const QByteArray number = QByteArray::number(3 + 2 * i);
        kids += number + " 0 R ";
        content += number + " 0 obj\n<< /Type /Page /Parent 2 0 R /MediaBox [0 0 9 9] /Contents " +
                   QByteArray::number(4 + 2 * i) + " 0 R >>\nendobj\n" +
                   QByteArray::number(4 + 2 * i) + " 0 obj\n<< /Length 1000000 >>\nstream\n" +
                   page + "\nendstream\nendobj\n";
    }
    content += "2 0 obj\n<< /Type /Pages /Count 100 /Kids [ " + kids +
               "] >>\nendobj\ntrailer\n<< /Root 1 0 R /Size 203 >>\n";
    writeContent(m_folder.filePath(u"text"_s), content);
    runProgram(u"/usr/bin/qpdf"_s,
               {u"--warning-exit-0"_s, u"--no-warn"_s, u"--stream-data=preserve"_s, u"text"_s,
                u"big.pdf"_s},
               m_folder.path());
    const RunResult result = runInShell(
        u"ulimit -d 65536"_s, bundledTool(u"pdftk"_s),
        {u"big.pdf"_s, u"output"_s, u"o.pdf"_s, u"user_pw"_s, u"use"_s}, m_folder.path());
    QCOMPARE(result.errors, QByteArray());
    QCOMPARE(readPdf(m_folder.filePath(u"o.pdf"_s), "use").pages, pages);
}

QTEST_GUILESS_MAIN(ToolMemoryTest)
#include "toolmemory_test.moc"

// Which TIFF files go into a PDF as they stand, with which bytes, and which are refused.

#include "imagefiles.h"
#include "pagereading.h"
#include "tifffields.h"

#include <QSet>
#include <QTest>
#include <QtEndian>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace imagefiles;

class TiffPagesTest : public QObject
{
    Q_OBJECT

private slots:
    void onlyStripIsCopied();
    void severalStripsBecomeOne();
    void everyPageHasItsOwnStrips();
    void isCopiedOrLeftToImageMagick_data();
    void isCopiedOrLeftToImageMagick();
    void fieldThatNobodySeesChangesNothing_data();
    void fieldThatNobodySeesChangesNothing();
    void incompleteFileIsRefused_data();
    void incompleteFileIsRefused();
    void sharedTablesAreRefused();
    void whatIsAskedForDecides_data();
    void whatIsAskedForDecides();
};

namespace {

TiffForm form()
{
    return {};
}

template <typename Member, typename Value>
QByteArray with(Member member, Value value)
{
    TiffForm changed;
    changed.*member = value;
    return tiff(changed);
}

// The place of a field of the first directory of a little-endian file.
qsizetype fieldAt(const QByteArray &file, int tag)
{
    const auto number = [&file](qsizetype at) {
        return quint8(file[at]) | quint8(file[at + 1]) << 8;
    };
    qsizetype at = number(4) + (number(6) << 16);
    for (qsizetype field = number(at); field > 0; --field)
        if (number(at + 2 + 12 * (field - 1)) == tag)
            return at + 2 + 12 * (field - 1);
    qFatal("no such field");
    return 0;
}

// The file with a byte of a field changed: 0 of its tag, 2 of its type, 4 of its count, 8 of its
// value.
QByteArray withFieldByte(const QByteArray &file, int tag, int place, char value)
{
    QByteArray changed = file;
    changed[fieldAt(file, tag) + place] = value;
    return changed;
}

// The little-endian file with one field more; its directory moves to the end.
QByteArray withFieldMore(QByteArray file, quint16 tag, quint16 type, quint16 count)
{
    const auto little = [](quint32 value, int size) {
        const quint32 bytes = qToLittleEndian(value);
        return QByteArray(reinterpret_cast<const char *>(&bytes), size);
    };
    const auto directory = qFromLittleEndian<quint32>(file.constData() + 4);
    const auto fields = qFromLittleEndian<quint16>(file.constData() + directory);
    QByteArrayList table = {little(tag, 2) + little(type, 2) + little(count, 4) +
                            QByteArray("1\0\0\0", 4)};
    for (int field = 0; field < fields; ++field)
        table += file.mid(qsizetype{directory} + 2 + qsizetype{12} * field, 12);
    std::ranges::sort(table, {}, [](const QByteArray &field) {
        return qFromLittleEndian<quint16>(field.constData());
    });
    file.append(file.size() % 2, '\0').replace(4, 4, little(quint32(file.size()), 4));
    return file + little(fields + 1U, 2) + table.join() + little(0, 4);
}

// The file whose last directory says that another one is its successor.
QByteArray withNext(const QByteArray &file, const QByteArray &offset)
{
    const qsizetype at = quint8(file[4]) + (quint8(file[5]) << 8);
    return QByteArray(file).replace(at + 2 + qsizetype(12) * quint8(file[at]), 4, offset);
}

} // namespace

void TiffPagesTest::onlyStripIsCopied()
{
    const QByteArray file = tiff(form());

    const Reading reading = readImage(file);

    QCOMPARE(reading.pages.size(), size_t(1));
    const CopyablePage &page = reading.pages.front();
    QVERIFY(!page.extents.front().isSpooled);
    QVERIFY(!page.inverted);
    QVERIFY(!reading.streams.front().isEmpty());
    const decltype(page.decodeParms) parms = {
        {"/K", "-1"}, {"/Columns", "40"}, {"/Rows", "30"}, {"/EndOfBlock", "false"}};
    QVERIFY(page.decodeParms == parms);
    QVERIFY(readImage(with(&TiffForm::zeroIsBlack, true)).pages.front().inverted);
}

void TiffPagesTest::severalStripsBecomeOne()
{
    const QByteArrayList whole = readImage(tiff(form())).streams;

    for (const int rows : {1, 7, 29})
        QCOMPARE(readImage(with(&TiffForm::rowsPerStrip, rows)).streams, whole);
    QCOMPARE(readImage(with(&TiffForm::fillOrder, 2)).streams, whole);
}

void TiffPagesTest::everyPageHasItsOwnStrips()
{
    const QByteArrayList whole = readImage(tiff({.pages = 3})).streams;
    QCOMPARE(QSet<QByteArray>(whole.begin(), whole.end()).size(), 3);
    QCOMPARE(readImage(tiff({.rowsPerStrip = 7, .pages = 3})).streams, whole);
}

void TiffPagesTest::isCopiedOrLeftToImageMagick_data()
{
    addReadingRows();
    const auto row = [](const char *name, const QByteArray &file, bool isCopied) {
        QTest::newRow(name) << file << isCopied;
    };
    const QByteArray plain = tiff(form());
    row("plain", plain, true);
    row("big-endian", with(&TiffForm::bigEndian, true), true);
    row("BigTIFF", with(&TiffForm::big, true), true);
    row("200 pages", with(&TiffForm::pages, 200), true);
    row("Group 3", with(&TiffForm::compression, 3), false);
    row("LZW", with(&TiffForm::compression, 5), false);
    row("a name, which ImageMagick prints", with(&TiffForm::pageName, "Page"), false);
    row("turned", with(&TiffForm::orientation, 6), true);
    row("a page of several", with(&TiffForm::subfileType, 2), true);
    row("a reduced image", with(&TiffForm::subfileType, 1), false);
    row("a transparency mask", with(&TiffForm::subfileType, 4), false);
    row("no uncompressed rows", with(&TiffForm::group4Options, 0), true);
    row("uncompressed rows", with(&TiffForm::group4Options, 2), false);
    row("samples in planes of their own", withFieldByte(plain, 284, 8, 2), false);
    row("two bits", withFieldByte(plain, 258, 8, 2), false);
    row("two samples", withFieldByte(plain, 277, 8, 2), false);
    row("an unknown order of bits", withFieldByte(plain, 266, 8, 3), false);
    row("an unknown unit", withFieldByte(with(&TiffForm::unit, 3), 296, 8, 4), false);
    row("more rows in a strip than there are", withFieldByte(plain, 278, 8, 100), true);
    row("32,000 pixels wide", withFieldByte(withFieldByte(plain, 256, 8, 0), 256, 9, 0x7D), true);
    row("32,001 pixels wide", withFieldByte(withFieldByte(plain, 256, 8, 1), 256, 9, 0x7D), false);
    row("fields that are not in order", withFieldByte(plain, 258, 0, 0), false);
    row("a number of another kind", withFieldByte(with(&TiffForm::orientation, 6), 274, 2, 2),
        false);
    row("two numbers for one", withFieldByte(with(&TiffForm::orientation, 6), 274, 4, 2), false);
    row("a text that does not end",
        withFieldByte(with(&TiffForm::description, "abc"), 270, 11, 'd'), true);
    row("a text with several ends",
        withFieldByte(with(&TiffForm::description, "abc"), 270, 9, '\0'), true);
    row("a resolution beyond the end", withFieldByte(with(&TiffForm::x, 300), 282, 10, 1), false);
    row("a field that is not known", withFieldByte(plain, 284, 1, 2), false);
    row("strip of no bytes", withFieldByte(plain, 279, 8, 0), false);
    TiffForm mixed;
    mixed.pages = 2;
    row("a second page that is not copied", withFieldByte(tiff(mixed), 259, 8, 5), false);
}

void TiffPagesTest::isCopiedOrLeftToImageMagick()
{
    compareReading();
}

void TiffPagesTest::fieldThatNobodySeesChangesNothing_data()
{
    addReadingRows();
    constexpr quint16 text = 2;
    constexpr quint16 number = 3;
    const auto row = [](const char *name, quint16 tag, quint16 type, bool isCopied = true) {
        const quint16 count = type == text || tag == 297 ? 2 : 1;
        QTest::newRow(name) << withFieldMore(tiff(form()), tag, type, count) << isCopied;
    };
    row("thresholding", 263, number);
    row("width of a dither cell", 264, number);
    row("length of a dither cell", 265, number);
    row("document name", 269, text);
    row("description", 270, text);
    row("make", 271, text);
    row("model", 272, text);
    row("least sample", 280, number);
    row("greatest sample", 281, number);
    row("page number", 297, number);
    row("software", 305, text);
    row("date", 306, text);
    row("artist", 315, text);
    row("computer", 316, text);
    row("bad lines of a fax", 326, number);
    row("copyright", 33432, text);
    row("page name, which ImageMagick prints", 285, text, false);
    row("a number that nobody knows", 40000, number, false);
}

void TiffPagesTest::fieldThatNobodySeesChangesNothing()
{
    compareReading();
}

void TiffPagesTest::incompleteFileIsRefused_data()
{
    QTest::addColumn<QByteArray>("file");
    const QByteArray plain = tiff(form());
    const qsizetype directory = quint8(plain[4]) + (quint8(plain[5]) << 8);
    QTest::newRow("everything but a header") << plain.left(8);
    QTest::newRow("half a header") << plain.left(6);
    QTest::newRow("the directory") << plain.left(directory);
    QTest::newRow("half of the directory") << plain.left(directory + 30);
    QTest::newRow("the end of the last directory") << plain.chopped(1);
    QTest::newRow("a page") << QByteArray("II*\0\0\0\0\0", 8);
    QTest::newRow("the end of the strip") << withFieldByte(plain, 279, 9, 0x7F);
    QTest::newRow("the strip") << withFieldByte(plain, 273, 10, 1);
    QTest::newRow("the counts of the strips")
        << withFieldByte(withFieldByte(plain, 279, 6, 0x7F), 279, 4, 9);
    QTest::newRow("strips that a page does not use")
        << withFieldByte(with(&TiffForm::rowsPerStrip, 7), 278, 8, 30);
    QTest::newRow("the end of a loop of directories") << withNext(plain, plain.mid(4, 4));
    QTest::newRow("the next directory") << withNext(plain, QByteArray("\0\0\1\0", 4));
    QTest::newRow("the strip of one that is not copied")
        << withFieldByte(with(&TiffForm::compression, 5), 273, 10, 1);
    TiffForm big;
    big.big = true;
    QTest::newRow("end of a BigTIFF") << tiff(big).chopped(20);
    QTest::newRow("end of the last directory of a BigTIFF") << tiff(big).chopped(1);
    // What libtiff reads no page from, neither does ImageMagick.
    QTest::newRow("colours of a palette") << withFieldByte(plain, 262, 8, 3);
    QTest::newRow("rows in a strip") << withFieldByte(plain, 278, 8, 0);
    QTest::newRow("pixels") << withFieldByte(plain, 256, 8, 0);
    QTest::newRow("a width that is a number") << withFieldByte(plain, 256, 2, 2);
}

void TiffPagesTest::incompleteFileIsRefused()
{
    compareRefusal();
}

// Time and memory would grow with the directories times the strips.
void TiffPagesTest::sharedTablesAreRefused()
{
    const QByteArray file = sharingTiff(1'000, 10'000);
    QCOMPARE(readImage(file).refusal, u"the image is damaged: tables of the TIFF file overlap"_s);
}

void TiffPagesTest::whatIsAskedForDecides_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<std::string>("own");
    QTest::newRow("JPEG") << jpeg({}, jpegBody(true)) << std::string("JPEG");
    QTest::newRow("PNG") << png({}) << std::string("zip");
    QTest::newRow("TIFF") << tiff(form()) << std::string("Group4");
}

void TiffPagesTest::whatIsAskedForDecides()
{
    QFETCH(const QByteArray, file);
    QFETCH(const std::string, own);
    for (const std::string compress : {"", "JPEG", "zip", "Group4", "None"}) {
        const bool isCopied = compress.empty() || compress == own;
        QCOMPARE(!readImage(file, compress).pages.empty(), isCopied);
    }
    QVERIFY(readImage("GIF89a").pages.empty());
    QVERIFY(readImage("").pages.empty());
}

QTEST_GUILESS_MAIN(TiffPagesTest)
#include "tiffpages_test.moc"

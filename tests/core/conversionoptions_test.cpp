// What the chosen options add to the tools' command lines.

#include "blanks.h"
#include "compressions.h"
#include "pagesizes.h"
#include "security.h"

#include <QTest>

using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(Security)

class ConversionOptionsTest : public QObject
{
    Q_OBJECT

private slots:
    void pageSizeGivesAResizeOption_data();
    void pageSizeGivesAResizeOption();
    void compressionGivesTheToolsWord_data();
    void compressionGivesTheToolsWord();
    void blankTextHasNothingButBlanks_data();
    void blankTextHasNothingButBlanks();
    void securityGivesPasswordsThenPermissions_data();
    void securityGivesPasswordsThenPermissions();
};

void ConversionOptionsTest::pageSizeGivesAResizeOption_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("option");

    QTest::newRow("below the first") << -1 << ""
                                     << "";
    const struct
    {
        const char *text;
        const char *option;
    } sizes[] = {
        {"", ""},
        {"A0 (841x1189 mm)", " -resize 2380x3368"},
        {"A1 (594x841 mm)", " -resize 1684x2380"},
        {"A2 (420x594 mm)", " -resize 1190x1684"},
        {"A3 (297x420 mm)", " -resize 842x1190"},
        {"A4 (210x297 mm)", " -resize 595x842"},
        {"A5 (148x210 mm)", " -resize 421x595"},
        {"A6 (105x148 mm)", " -resize 297x421"},
        {"A7 (74x105 mm)", " -resize 210x297"},
        {"A8 (52x74 mm)", " -resize 148x210"},
        {"A9 (37x52 mm)", " -resize 105x148"},
        {"ArchA (229x305 mm)", " -resize 648x864"},
        {"ArchB (305x457 mm)", " -resize 864x1296"},
        {"ArchC (457x610 mm)", " -resize 1296x1728"},
        {"ArchD (610x914 mm)", " -resize 1728x2592"},
        {"ArchE (914x1219 mm)", " -resize 2592x3456"},
        {"Ledger (431.8x279. 4mm)", " -resize 1224x792"},
        {"Legal (215.9x355.6 mm)", " -resize 612x1008"},
        {"Letter (215.9x279.4 mm)", " -resize 612x792"},
        {"Tabloid (279.4x431.8 mm)", " -resize 792x1224"},
    };
    int index = 0;
    for (const auto &[text, option] : sizes) {
        QTest::addRow("%s", *text ? text : "no page size") << index << text << option;
        ++index;
    }
    QTest::newRow("past the last") << 20 << ""
                                   << "";
}

void ConversionOptionsTest::pageSizeGivesAResizeOption()
{
    QFETCH(int, index);
    const auto place = static_cast<std::size_t>(index);
    QTEST(QString::fromUtf8(place < pageSizes.size() ? pageSizes.at(place).text : ""), "text");
    QTEST(resizeOption(index), "option");
}

void ConversionOptionsTest::compressionGivesTheToolsWord_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("option");

    QTest::newRow("below the first") << -1 << ""
                                     << "";
    QTest::newRow("left to the tool") << 0 << ""
                                      << "";
    QTest::newRow("none") << 1 << "None"
                          << " -compress None";
    QTest::newRow("Bzip") << 2 << "Bzip"
                          << " -compress Bzip";
    QTest::newRow("fax group 3") << 3 << "CCITT Group 3"
                                 << " -compress Fax";
    QTest::newRow("fax group 4") << 4 << "CCITT Group 4"
                                 << " -compress Group4";
    QTest::newRow("JPEG") << 5 << "JPEG"
                          << " -compress JPEG";
    QTest::newRow("JPEG 2000") << 6 << "JPEG2000"
                               << " -compress JPEG2000";
    QTest::newRow("lossless") << 7 << "Lossless"
                              << " -compress Lossless";
    QTest::newRow("LZW") << 8 << "Lempel-Ziv-Welch"
                         << " -compress LZW";
    QTest::newRow("run-length") << 9 << "Run-length encoding"
                                << " -compress RLE";
    QTest::newRow("zip, in lower case") << 10 << "Zip"
                                        << " -compress zip";
    QTest::newRow("past the last") << 11 << ""
                                   << "";
}

void ConversionOptionsTest::compressionGivesTheToolsWord()
{
    QFETCH(int, index);
    const auto place = static_cast<std::size_t>(index);
    QTEST(QString::fromUtf8(place < compressions.size() ? compressions.at(place).text : ""),
          "text");
    QTEST(compressOption(index), "option");
}

void ConversionOptionsTest::blankTextHasNothingButBlanks_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("blank");

    QTest::newRow("null") << QString() << true;
    QTest::newRow("empty") << "" << true;
    QTest::newRow("blanks") << "   " << true;
    QTest::newRow("a tab is no blank") << "\t" << false;
    QTest::newRow("a line end is no blank") << " \n" << false;
    QTest::newRow("a no-break space is no blank") << QString(QChar(0xA0)) << false;
    QTest::newRow("a letter among blanks") << " a " << false;
}

void ConversionOptionsTest::blankTextHasNothingButBlanks()
{
    QFETCH(QString, text);
    QTEST(isBlank(text), "blank");
}

void ConversionOptionsTest::securityGivesPasswordsThenPermissions_data()
{
    QTest::addColumn<Security>("security");
    QTest::addColumn<QString>("option");

    QTest::newRow("nothing") << Security{} << "";
    QTest::newRow("everything")
        << Security{u"abc"_s, u"xyz"_s, true, true, true, true}
        << " owner_pw abc user_pw xyz allow printing allow modifycontents allow copycontents"
           " allow modifyannotations";
    QTest::newRow("an owner password alone") << Security{u"abc"_s, u""_s} << " owner_pw abc";
    QTest::newRow("a user password alone stays alone")
        << Security{u""_s, u"xyz"_s} << " user_pw xyz";
    QTest::newRow("equal passwords: the owner's alone")
        << Security{u"abc"_s, u"abc"_s} << " owner_pw abc";
    QTest::newRow("passwords that differ in case")
        << Security{u"Abc"_s, u"abc"_s} << " owner_pw Abc user_pw abc";
    QTest::newRow("passwords that differ in a blank")
        << Security{u"abc"_s, u"abc "_s} << " owner_pw abc user_pw abc ";
    QTest::newRow("an owner password of blanks counts as none")
        << Security{u"   "_s, u""_s, false, false, false, true} << " allow modifyannotations";
    QTest::newRow("a user password of blanks counts as none")
        << Security{u"abc"_s, u" "_s} << " owner_pw abc";
    QTest::newRow("a tab is a password") << Security{u"\t"_s, u""_s} << " owner_pw \t";
    QTest::newRow("blanks and quotes as typed")
        << Security{u" a b"_s, u"c\"d"_s} << " owner_pw  a b user_pw c\"d";
    QTest::newRow("printing") << Security{u""_s, u""_s, true} << " allow printing";
    QTest::newRow("modifying") << Security{u""_s, u""_s, false, true} << " allow modifycontents";
    QTest::newRow("copying") << Security{u""_s, u""_s, false, false, true} << " allow copycontents";
}

void ConversionOptionsTest::securityGivesPasswordsThenPermissions()
{
    QFETCH(Security, security);
    QTEST(securityOption(security), "option");
}

QTEST_GUILESS_MAIN(ConversionOptionsTest)
#include "conversionoptions_test.moc"

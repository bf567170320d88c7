// Names of inputs and outputs that a tool or a shell would read as something else.

#include "pdffacts.h"
#include "pdfpages.h"
#include "privatelocales.h"
#include "toolbench.h"

#include <QDir>
#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;

class ConvertNamesTest : public QObject
{
    Q_OBJECT

private slots:
    void anyNameIsAnOutput_data();
    void anyNameIsAnOutput();
    void titleIsReadInTheCharsetOfTheLocale_data();
    void titleIsReadInTheCharsetOfTheLocale();
    void anyNameIsAnInput_data();
    void anyNameIsAnInput();
    void anyExtensionIsAnInput_data();
    void anyExtensionIsAnInput();
    void thousandsOfLongNamesFit();
};

namespace {

RunResult convertIn(const QTemporaryDir &folder, const QStringList &words)
{
    return runBundled(u"convert"_s, words, folder.path());
}

// Rows for every name that one of the tools or a shell would read as something else.
void addOddNames()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"",
                             "100%",
                             "a%d",
                             "%03d",
                             "a[0]",
                             "a[x]",
                             "png:x",
                             "-dash",
                             "--help",
                             " two  blanks ",
                             "@list",
                             "a*b?",
                             "a{1,2}",
                             "a\\b",
                             "~",
                             "quote's",
                             "semi;$(colon)`",
                             "\xC3\xBC\xE2\x82\xAC \xF0\x9F\x98\x80",
                             "\xE6\x97\xA5\xE6\x9C\xAC",
                             "a<b>&c",
                             "x.y.z"})
        QTest::newRow(name) << QString::fromUtf8(name);
    QTest::newRow("200 bytes of UTF-8") << QString(100, u'\u00FC');
}

} // namespace

void ConvertNamesTest::anyNameIsAnOutput_data()
{
    addOddNames();
}

void ConvertNamesTest::anyNameIsAnOutput()
{
    QFETCH(QString, name);
    const QTemporaryDir folder;
    makeImage(folder.filePath(u"x.png"_s));
    const QString file = name + u".pdf"_s;
    const RunResult result = convertIn(folder, {u"x.png"_s, u"x.png"_s, file});
    QCOMPARE(result.errors, QByteArray());
    QCOMPARE(result.status, 0);
    QCOMPARE(namesIn(folder.path()).size(), 2);
    const PdfFacts facts = readPdf(folder.filePath(file));
    QCOMPARE(facts.pages, 2);
    QCOMPARE(facts.title, name);
    QCOMPARE(facts.author, QString());
}

void ConvertNamesTest::titleIsReadInTheCharsetOfTheLocale_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("bytes");
    QTest::addColumn<QString>("title");
    QTest::newRow("Latin-1") << "en_US.ISO-8859-1"
                             << "\\344\\366 x" << u"\u00E4\u00F6 x"_s;
    QTest::newRow("UTF-8 in Latin-1") << "en_US.ISO-8859-1"
                                      << "\\303\\244 x" << u"\u00E4 x"_s;
    QTest::newRow("Latin-1 in UTF-8") << "C.UTF-8"
                                      << "\\344 x" << u"\uFFFD x"_s;
}

void ConvertNamesTest::titleIsReadInTheCharsetOfTheLocale()
{
    QFETCH(QString, locale);
    QFETCH(QString, bytes);
    PrivateLocales locales;
    QVERIFY(locales.add(u"en_US"_s, u"ISO-8859-1"_s));
    const QTemporaryDir folder;
    makeImage(folder.filePath(u"x.png"_s));
    const QString script = u"\"$0\" x.png \"$(printf '%1.pdf')\" && mv *.pdf o.pdf"_s.arg(bytes);
    const RunResult result =
        runProgram(u"/bin/sh"_s, {u"-c"_s, script, bundledTool(u"convert"_s)}, folder.path(),
                   {{u"LOCPATH"_s, locales.path()}, {u"LC_ALL"_s, locale}});
    QCOMPARE(result.errors, QByteArray());
    QTEST(readPdf(folder.filePath(u"o.pdf"_s)).title, "title");
}

void ConvertNamesTest::anyNameIsAnInput_data()
{
    addOddNames();
}

void ConvertNamesTest::anyNameIsAnInput()
{
    QFETCH(QString, name);
    const QTemporaryDir folder;
    const QString file = name + u".png"_s;
    makeImage(folder.filePath(file));
    // What begins with a dash is an option.
    const QString relative = file.startsWith(u'-') ? u"./"_s + file : file;
    for (const QString &input : {relative, folder.filePath(file)}) {
        const RunResult result = convertIn(folder, {input, input, u"o.pdf"_s});
        QCOMPARE(result.errors, QByteArray());
        for (const int page : {0, 1})
            QCOMPARE(visibleDifference(drawnPage(folder.filePath(u"o.pdf"_s), page, finelyDrawn),
                                       QImage(folder.filePath(file))),
                     QString());
    }
}

void ConvertNamesTest::anyExtensionIsAnInput_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"x.dng", "x.map", "x.pdf", "x.svg", "x.html", "x.1", "x"})
        QTest::newRow(name) << name;
}

void ConvertNamesTest::anyExtensionIsAnInput()
{
    QFETCH(QString, name);
    const QTemporaryDir folder;
    const QImage image(makeImage(folder.filePath(u"x.bmp"_s)));
    QVERIFY(QFile::rename(folder.filePath(u"x.bmp"_s), folder.filePath(name)));
    const RunResult result = convertIn(folder, {name, u"o.pdf"_s});
    QCOMPARE(result.errors, QByteArray());
    QCOMPARE(visibleDifference(drawnPage(folder.filePath(u"o.pdf"_s), 0, finelyDrawn), image),
             QString());
}

void ConvertNamesTest::thousandsOfLongNamesFit()
{
    const QTemporaryDir folder;
    const QString deep = folder.filePath(QString(190, u'd'));
    QDir().mkpath(deep);
    makeImage(deep + u"/x.ppm"_s, {1, 1});
    const RunResult result = convertIn(folder, QStringList(3000, deep + u"/x.ppm"_s) << u"o.pdf"_s);
    QCOMPARE(result.errors, QByteArray());
    QCOMPARE(readPdf(folder.filePath(u"o.pdf"_s)).pages, 3000);
}

QTEST_GUILESS_MAIN(ConvertNamesTest)
#include "convertnames_test.moc"

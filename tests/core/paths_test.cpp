// Folders derived from the executable's place, and the quoted paths of command lines.

#include "bundlepaths.h"
#include "commandline.h"

#include <QProcess>
#include <QTest>

using namespace Qt::StringLiterals;

class PathsTest : public QObject
{
    Q_OBJECT

private slots:
    void bundleFolderIsCutTwice_data();
    void bundleFolderIsCutTwice();
    void pluginsStandBesideTheExecutablesFolder_data();
    void pluginsStandBesideTheExecutablesFolder();
    void quotedPathsSplitIntoThemselves_data();
    void quotedPathsSplitIntoThemselves();
    void quotedPathsStandWithOneBlankBetween();
    void pathWithADoubleQuoteBreaksTheCommand();
    void unquotingTakesEveryDoubleQuoteAway();
    void toolsStandBesideTheExecutable();
    void outputsAreNamedAfterTheImage_data();
    void outputsAreNamedAfterTheImage();
};

void PathsTest::bundleFolderIsCutTwice_data()
{
    QTest::addColumn<QString>("executableFolder");
    QTest::addColumn<QString>("folder");

    QTest::newRow("a bundle") << "/home/u/Apps/Tessaro.app/Contents/MacOS"
                              << "/home/u/Apps";
    QTest::newRow("a folder with a blank and a dot above the bundle")
        << "/home/u. v/My Apps/Tessaro.app/Contents/MacOS"
        << "/home/u. v/My Apps";
    QTest::newRow("a dot in the bundle's name") << "/opt/Tessaro 2.0.app/Contents/MacOS"
                                                << "/opt";
    QTest::newRow("no dot at all") << "/opt/app/bin"
                                   << "/opt/app";
    QTest::newRow("a dot further up") << "/opt/v1.2/app/bin"
                                      << "/opt";
    QTest::newRow("a dot below the bundle") << "/opt/Tessaro.app/Contents/Mac.OS"
                                            << "/opt/Tessaro.app/Contents";
    QTest::newRow("a bundle at the root") << "/Tessaro.app/Contents/MacOS"
                                          << "";
    QTest::newRow("neither dot nor slash") << "bin"
                                           << "bin";
}

void PathsTest::bundleFolderIsCutTwice()
{
    QFETCH(QString, executableFolder);
    QTEST(bundleFolder(executableFolder), "folder");
}

void PathsTest::pluginsStandBesideTheExecutablesFolder_data()
{
    QTest::addColumn<QString>("executableFolder");
    QTest::addColumn<QString>("folder");

    QTest::newRow("a bundle") << "/Apps/Tessaro.app/Contents/MacOS"
                              << "/Apps/Tessaro.app/Contents/Plugins";
    QTest::newRow("a plain folder") << "/opt/my app/bin"
                                    << "/opt/my app/Plugins";
}

void PathsTest::pluginsStandBesideTheExecutablesFolder()
{
    QFETCH(QString, executableFolder);
    QTEST(pluginFolder(executableFolder), "folder");
}

void PathsTest::quotedPathsSplitIntoThemselves_data()
{
    QTest::addColumn<QStringList>("paths");

    QTest::newRow("one") << QStringList{u"/in/a.jpg"_s};
    QTest::newRow("blanks, also two together")
        << QStringList{u"/in/my  scan.jpg"_s, u"/in/ b .jpg"_s};
    QTest::newRow("a leading dash") << QStringList{u"-a.jpg"_s, u"/in/-b.jpg"_s};
    QTest::newRow("per cent signs") << QStringList{u"/in/%1%2%d.jpg"_s, u"/in/%%.jpg"_s};
    QTest::newRow("brackets, colons, backslashes and apostrophes")
        << QStringList{u"/in/a[0]{b}.jpg"_s, u"/in/x:y.jpg"_s, u"/in/a\\b'c.jpg"_s};
    QTest::newRow("letters outside ASCII")
        << QStringList{QString::fromUtf8("/in/\u00fcber \u65e5\u672c.jpg")};
    QTest::newRow("two hundred characters")
        << QStringList{QString(200, QLatin1Char('a')), QString(200, QLatin1Char(' '))};
}

void PathsTest::quotedPathsSplitIntoThemselves()
{
    QFETCH(QStringList, paths);
    QCOMPARE(QProcess::splitCommand(u"tool "_s + quoted(paths)), QStringList(u"tool"_s) + paths);
}

void PathsTest::quotedPathsStandWithOneBlankBetween()
{
    QCOMPARE(quoted(QString(u"/in/a b.jpg"_s)), QString(u"\"/in/a b.jpg\""_s));
    QCOMPARE(quoted(QStringList{u"/in/a.jpg"_s, u"/in/b.jpg"_s, u"/in/c.jpg"_s}),
             QString(u"\"/in/a.jpg\" \"/in/b.jpg\" \"/in/c.jpg\""_s));
}

void PathsTest::pathWithADoubleQuoteBreaksTheCommand()
{
    QCOMPARE(quoted(QString(u"a\" b.jpg"_s)), QString(u"\"a\" b.jpg\""_s));
    QCOMPARE(QProcess::splitCommand(quoted(QString(u"a\" b.jpg"_s))),
             QStringList({u"a"_s, u"b.jpg"_s}));
}

void PathsTest::unquotingTakesEveryDoubleQuoteAway()
{
    QCOMPARE(unquoted(u"\"/out/a b.pdf\""_s), QString(u"/out/a b.pdf"_s));
    QCOMPARE(unquoted(u"\"/out/a\"b'.pdf\""_s), QString(u"/out/ab'.pdf"_s));
    QCOMPARE(unquoted(u""_s), QString());
}

void PathsTest::toolsStandBesideTheExecutable()
{
    QCOMPARE(toolPath(u"convert"_s),
             u"\"%1/convert\""_s.arg(QCoreApplication::applicationDirPath()));
}

void PathsTest::outputsAreNamedAfterTheImage_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("image");
    QTest::addColumn<QString>("output");
    QTest::addColumn<QString>("intermediate");

    QTest::newRow("a plain name") << "/out"
                                  << "/in/photo.jpg"
                                  << "\"/out/photo.pdf\""
                                  << "/out/photo-1.pdf";
    QTest::newRow("several dots: cut at the first") << "/out"
                                                    << "/in/a.1.tar.jpg"
                                                    << "\"/out/a.pdf\""
                                                    << "/out/a-1.pdf";
    QTest::newRow("dots in the folders do not count") << "/o.u.t"
                                                      << "/i.n/a.jpg"
                                                      << "\"/o.u.t/a.pdf\""
                                                      << "/o.u.t/a-1.pdf";
    QTest::newRow("no dot") << "/out"
                            << "/in/photo"
                            << "\"/out/photo.pdf\""
                            << "/out/photo-1.pdf";
    QTest::newRow("a hidden file has no name before its first dot") << "/out"
                                                                    << "/in/.hidden.jpg"
                                                                    << "\"/out/.pdf\""
                                                                    << "/out/-1.pdf";
    QTest::newRow("place markers in the name") << "/out"
                                               << "/in/%1 %2.jpg"
                                               << "\"/out/%1 %2.pdf\""
                                               << "/out/%1 %2-1.pdf";
    QTest::newRow("place markers in the folder") << "/%2/%1"
                                                 << "/in/a.jpg"
                                                 << "\"/%2/%1/a.pdf\""
                                                 << "/%2/%1/a-1.pdf";
    QTest::newRow("blanks") << "/my out"
                            << "/in/ a b .jpg"
                            << "\"/my out/ a b .pdf\""
                            << "/my out/ a b -1.pdf";
    QTest::newRow("a slash at the folder's end is doubled") << "/out/"
                                                            << "/in/a.jpg"
                                                            << "\"/out//a.pdf\""
                                                            << "/out//a-1.pdf";
    QTest::newRow("a double quote in the name is kept") << "/out"
                                                        << "/in/a\"b.jpg"
                                                        << "\"/out/a\"b.pdf\""
                                                        << "/out/a\"b-1.pdf";
    QTest::newRow("a double quote in the folder is kept") << "/o\"ut"
                                                          << "/in/a.jpg"
                                                          << "\"/o\"ut/a.pdf\""
                                                          << "/o\"ut/a-1.pdf";
}

void PathsTest::outputsAreNamedAfterTheImage()
{
    QFETCH(QString, folder);
    QFETCH(QString, image);
    const QString output = outputPath(folder, image);
    QTEST(output, "output");
    QTEST(intermediatePath(folder, output), "intermediate");
}

QTEST_GUILESS_MAIN(PathsTest)
#include "paths_test.moc"

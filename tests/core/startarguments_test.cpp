// What the program is started with: options, files, and what a file's name means.

#include "startarguments.h"

#include <QTest>

using namespace Qt::StringLiterals;

class StartArgumentsTest : public QObject
{
    Q_OBJECT

private slots:
    void optionsAndFilesAreSeparated_data();
    void optionsAndFilesAreSeparated();
    void helpNamesEveryOption();
    void namesAreSeenFromTheFolder_data();
    void namesAreSeenFromTheFolder();
};

void StartArgumentsTest::optionsAndFilesAreSeparated_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QStringList>("wishes");
    QTest::addColumn<QStringList>("files");
    using Words = QStringList;
    QTest::newRow("nothing") << Words() << Words() << Words();
    QTest::newRow("files in their order") << Words{u"b.png"_s, u"a b.png"_s, u"b.png"_s} << Words()
                                          << Words{u"b.png"_s, u"a b.png"_s, u"b.png"_s};
    QTest::newRow("help") << Words{u"--help"_s} << Words{u"help"_s} << Words();
    QTest::newRow("short help") << Words{u"-h"_s} << Words{u"help"_s} << Words();
    QTest::newRow("version") << Words{u"--version"_s} << Words{u"version"_s} << Words();
    QTest::newRow("short version") << Words{u"-v"_s} << Words{u"version"_s} << Words();
    QTest::newRow("help after a file")
        << Words{u"a.png"_s, u"--help"_s} << Words{u"help"_s} << Words{u"a.png"_s};
    QTest::newRow("another option")
        << Words{u"--colour"_s, u"a.png"_s} << Words{u"--colour"_s} << Words{u"a.png"_s};
    QTest::newRow("another option with a value")
        << Words{u"--colour=red"_s} << Words{u"--colour"_s} << Words();
    QTest::newRow("one of Qt's options") << Words{u"-style"_s} << Words{u"-style"_s} << Words();
    QTest::newRow("a word with the letter of help")
        << Words{u"-sh"_s} << Words{u"-sh"_s} << Words();
    QTest::newRow("files after two dashes")
        << Words{u"a.png"_s, u"--"_s, u"--help"_s, u"-b.png"_s} << Words()
        << Words{u"a.png"_s, u"--help"_s, u"-b.png"_s};
    QTest::newRow("a dash alone") << Words{u"-"_s} << Words() << Words{u"-"_s};
}

void StartArgumentsTest::optionsAndFilesAreSeparated()
{
    QFETCH(QStringList, arguments);
    const StartArguments read = readStartArguments(QStringList(u"tessaro"_s) + arguments);
    QStringList wishes = read.unknownOptions;
    if (read.wantsHelp)
        wishes << u"help"_s;
    if (read.wantsVersion)
        wishes << u"version"_s;
    QTEST(wishes, "wishes");
    QTEST(read.files, "files");
}

void StartArgumentsTest::helpNamesEveryOption()
{
    const QString help = startHelp();
    for (const QString &word :
         {u"[FILE ...]"_s, u"Turns images into PDF documents."_s, u"Images to list when"_s,
          u"-h, --help"_s, u"Show this help and end."_s, u"-v, --version"_s,
          u"Show the version and end."_s})
        QVERIFY2(help.contains(word), qPrintable(help));
}

void StartArgumentsTest::namesAreSeenFromTheFolder_data()
{
    QTest::addColumn<QString>("argument");
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("path");
    const auto row = [](const char *name, const char *argument, const char *path,
                        const char *folder = "/home/u") {
        QTest::newRow(name) << QString::fromUtf8(argument) << QString::fromUtf8(folder)
                            << QString::fromUtf8(path);
    };
    row("a name", "a.png", "/home/u/a.png");
    row("a name in the root folder", "a.png", "/a.png", "/");
    row("a folder below", "in/a.png", "/home/u/in/a.png");
    row("this folder", "./a.png", "/home/u/a.png");
    row("the folder above", "../a.png", "/home/a.png");
    row("this folder and the one above", "./../v/a.png", "/home/v/a.png");
    row("this folder with two slashes", ".//a.png", "/home/u/a.png");
    row("the folder above with three slashes", "..///v//a.png", "/home/v//a.png");
    row("a name with a colon before it", ":a.png", "/home/u/:a.png");
    row("a name like a resource's", ":/iconoption/a.png", "/home/u/:/iconoption/a.png");
    row("above a folder that may be a link", "in/../a.png", "/home/u/in/../a.png");
    row("a name with a blank and an umlaut", "a \xc3\xa4.png", "/home/u/a \xc3\xa4.png");
    row("a name that looks like a URL's", "a%20b#c?.png", "/home/u/a%20b#c?.png");
    row("an absolute path", "/tmp/../a.png", "/tmp/../a.png");
    row("a URL", "file:///tmp/a%20b%23c.png", "/tmp/a b#c.png");
    row("a URL in capitals", "FILE:///tmp/a.png", "/tmp/a.png");
    row("a URL of this machine", "file://localhost/tmp/a.png", "/tmp/a.png");
    row("a short URL", "file:/tmp/a.png", "/tmp/a.png");
    row("a URL below the folder", "file:in/a.png", "/home/u/in/a.png");
    row("a URL of another machine", "file://other/tmp/a.png", "");
    row("a URL of nothing", "file:", "");
    row("another kind of URL is a name", "http://a/b.png", "/home/u/http://a/b.png");
    row("nothing", "", "");
}

void StartArgumentsTest::namesAreSeenFromTheFolder()
{
    QFETCH(QString, argument);
    QFETCH(QString, folder);
    QTEST(startFile(argument, folder), "path");
}

QTEST_GUILESS_MAIN(StartArgumentsTest)
#include "startarguments_test.moc"

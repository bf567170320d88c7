// Systems that lack something: a folder, descriptors, plain names.

#include "pdffacts.h"
#include "toolbench.h"

#include <QDir>
#include <QTest>

#include <unistd.h>

using namespace Qt::StringLiterals;

class OddSystemsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void temporaryFolderMayHaveAnyName_data();
    void temporaryFolderMayHaveAnyName();
    void longMergeNeedsFewDescriptors_data();
    void longMergeNeedsFewDescriptors();
    void foldersOfTheSystemMayBeAway_data();
    void foldersOfTheSystemMayBeAway();

private:
    QString file(const QString &name) const { return m_folder.filePath(name); }

    QTemporaryDir m_folder;
};

void OddSystemsTest::initTestCase()
{
    makeImage(file(u"x.png"_s));
}

void OddSystemsTest::temporaryFolderMayHaveAnyName_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("blanks") << " a  b ";
    QTest::newRow("quotes and patterns") << "\"a' [0] *%d";
    QTest::newRow("a line break") << "a\nb";
}

void OddSystemsTest::temporaryFolderMayHaveAnyName()
{
    QFETCH(const QString, name);
    const QTemporaryDir places;
    QVERIFY(QDir(places.path()).mkdir(name));
    const QString place = places.filePath(name);
    const ToolBundle bundle(shellTool(u"touch \"$MAGICK_TEMPORARY_PATH/pixels\" && "
                                      "echo \"$MAGICK_TEMPORARY_PATH\" >&2; exit 3"_s));
    const RunResult result =
        runProgram(bundle.tool(u"convert"_s), {u"-rotate"_s, u"90"_s, u"x.png"_s, u"o.pdf"_s},
                   m_folder.path(), {{u"TMPDIR"_s, place}});
    QCOMPARE(result.status, 3);
    QVERIFY2(result.errors.startsWith(place.toUtf8() + "/.tessaro-"), result.errors.constData());
    QCOMPARE(namesIn(place), QStringList());
}

void OddSystemsTest::longMergeNeedsFewDescriptors_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::newRow("copied") << QStringList();
    QTest::newRow("converted") << QStringList{u"-rotate"_s, u"90"_s};
}

void OddSystemsTest::longMergeNeedsFewDescriptors()
{
    QFETCH(const QStringList, options);
    constexpr int pages = 150;
    const RunResult result = runInShell(
        u"ulimit -n 64"_s, bundledTool(u"convert"_s),
        options + QStringList(pages, u"x.png"_s) + QStringList{u"long.pdf"_s}, m_folder.path());
    QCOMPARE(result.errors, QByteArray());
    QCOMPARE(readPdf(file(u"long.pdf"_s)).pages, pages);
}

void OddSystemsTest::foldersOfTheSystemMayBeAway_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QByteArray>("errors");
    QTest::newRow("shared memory") << "/dev/shm" << QByteArray();
    QTest::newRow("processes")
        << "/proc"
        << QByteArray("convert: cannot work without '/proc': No such file or directory\n");
}

// An empty file system hides what was there.
void OddSystemsTest::foldersOfTheSystemMayBeAway()
{
    QFETCH(const QString, folder);
    QFETCH(const QByteArray, errors);
    if (geteuid() != 0)
        QSKIP("only root can mount a file system");
    const RunResult result = runProgram(QStringLiteral(TESSARO_ON_IMAGE),
                                        {u"tmpfs"_s, u"1"_s, folder, bundledTool(u"convert"_s),
                                         u"-rotate"_s, u"90"_s, u"x.png"_s, u"o.pdf"_s},
                                        m_folder.path());
    QCOMPARE(result.errors, errors);
    QCOMPARE(result.status, errors.isEmpty() ? 0 : 1);
}

QTEST_GUILESS_MAIN(OddSystemsTest)
#include "oddsystems_test.moc"

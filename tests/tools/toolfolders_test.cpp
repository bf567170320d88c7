// The private folders of the two programs: that nobody foresees, shares or keeps them, and that
// the real tools see plain names in them on every file system.

#include "pdffacts.h"
#include "toolbench.h"

#include <QDir>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

class ToolFolders : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void privateFolderIsForTheUserAlone();
    void namesCannotBeForeseen();
    void nothingIsLeftWithoutDescriptors();
    void leftoversAreClearedAway();
    void leftoversAreFoundAmongManyFiles();
    void foreignFoldersAreLeftAlone();
    void inputsHavePlainNamesEverywhere_data();
    void inputsHavePlainNamesEverywhere();
    void inputsArePlainOnImages_data();
    void inputsArePlainOnImages();
    void fullPlacesAreNamedAndLeftClean_data();
    void fullPlacesAreNamedAndLeftClean();
    void messagesNameTheRightInput_data();
    void messagesNameTheRightInput();

private:
    QTemporaryDir m_folder;
};

namespace {

const QString wholePdf = "printf '%%PDF-1.4\\n%%%%EOF\\n'";

QStringList ourFoldersIn(const QString &folder)
{
    return QDir(folder).entryList({".tessaro-*"}, QDir::Dirs | QDir::Hidden);
}

// A folder as a call that was killed leaves it.
void leaveOver(const QString &folder)
{
    QVERIFY(QDir().mkpath(folder));
    for (const char *file : {".tessaro", "o.pdf", "input-1"})
        writeContent(folder + "/" + file, "left over");
}

} // namespace

void ToolFolders::initTestCase()
{
    makeImage(m_folder.filePath("x.png"));
    QCOMPARE(runBundled("convert", {"x.png", "in.pdf"}, m_folder.path()).status, 0);
}

void ToolFolders::privateFolderIsForTheUserAlone()
{
    const QStringList tool = shellTool("stat -c '%a' . >&2; exit 1");
    const ToolBundle bundle(tool, tool);
    for (const char *mask : {"umask 000", "umask 022", "umask 0777"}) {
        const RunResult result =
            runInShell(mask, bundle.tool("pdftk"), {"in.pdf", "output", "o.pdf"}, m_folder.path());
        QCOMPARE(result.errors, QByteArray("700\n"));
    }
}

void ToolFolders::namesCannotBeForeseen()
{
    const QStringList tool = shellTool("basename \"$PWD\" >&2; exit 1");
    const ToolBundle bundle(tool, tool);
    QSet<QByteArray> names;
    for (int i = 0; i < 20; ++i) {
        const QByteArray name =
            runProgram(bundle.tool("pdftk"), {"in.pdf", "output", "o.pdf"}, m_folder.path()).errors;
        QVERIFY2(
            QRegularExpression("^\\.tessaro-[A-Za-z0-9]{6}\n$").match(QString(name)).hasMatch(),
            name.constData());
        names.insert(name);
    }
    QCOMPARE(names.size(), 20);
}

// However few descriptors there are: a PDF or one sentence, and no folder.
void ToolFolders::nothingIsLeftWithoutDescriptors()
{
    const QStringList tool = shellTool(wholePdf + " >result.pdf");
    const ToolBundle bundle(tool, tool);
    int failed = 0;
    for (int descriptors = 3; descriptors < 24; ++descriptors) {
        const QTemporaryDir folder, pixels;
        writeContent(folder.filePath("in.pdf"), "in");
        for (const QStringList &call : {QStringList{"convert", "in.pdf", "o.pdf"},
                                        QStringList{"pdftk", "in.pdf", "output", "o.pdf"}}) {
            const RunResult result =
                runInShell("ulimit -n " + QString::number(descriptors), bundle.tool(call.first()),
                           call.mid(1), folder.path(), {{"TMPDIR", pixels.path()}});
            if (result.status != 0) {
                ++failed;
                QCOMPARE(result.errors.count('\n'), 1);
            }
            QCOMPARE(ourFoldersIn(folder.path()), QStringList());
            QCOMPARE(namesIn(pixels.path()), QStringList());
        }
    }
    QVERIFY(failed > 8);
    QVERIFY(failed < 42);
}

void ToolFolders::leftoversAreClearedAway()
{
    const QTemporaryDir folder;
    QVERIFY(QFile::copy(m_folder.filePath("in.pdf"), folder.filePath("in.pdf")));
    leaveOver(folder.filePath(".tessaro-aB3xYz"));
    leaveOver(folder.filePath(".tessaro-000000"));
    QVERIFY(QDir(folder.path()).mkdir(".tessaro-killed"));
    const RunResult result = runBundled("pdftk", {"in.pdf", "output", "o.pdf"}, folder.path());
    QCOMPARE(result.errors, QByteArray());
    QCOMPARE(namesIn(folder.path()), QStringList({"in.pdf", "o.pdf"}));
    QCOMPARE(readPdf(folder.filePath("o.pdf")).pages, 1);
}

void ToolFolders::leftoversAreFoundAmongManyFiles()
{
    const QStringList tool = shellTool(wholePdf + " >result.pdf");
    const ToolBundle bundle(tool, tool);
    const QTemporaryDir folder;
    for (int i = 0; i < 3000; ++i)
        writeContent(folder.filePath(QString::number(i)), "");
    writeContent(folder.filePath("in.pdf"), "in");
    leaveOver(folder.filePath(".tessaro-aB3xYz"));
    QCOMPARE(runProgram(bundle.tool("pdftk"), {"in.pdf", "output", "o.pdf"}, folder.path()).status,
             0);
    QCOMPARE(ourFoldersIn(folder.path()), QStringList());
}

// One that is in use, one that only looks like ours, one that a link of our name leads to, and, as
// far as this user can make one, another user's.
void ToolFolders::foreignFoldersAreLeftAlone()
{
    const QTemporaryDir folder, elsewhere;
    QVERIFY(QFile::copy(m_folder.filePath("in.pdf"), folder.filePath("in.pdf")));
    leaveOver(folder.filePath(".tessaro-inwork"));
    leaveOver(folder.filePath(".tessaro-other0"));
    QVERIFY(QDir(folder.path()).mkdir(".tessaro-backup"));
    writeContent(folder.filePath(".tessaro-backup/work"), "the user's own");
    writeContent(elsewhere.filePath(".tessaro"), "");
    writeContent(elsewhere.filePath("work"), "another user's");
    QFile::link(elsewhere.path(), folder.filePath(".tessaro-linked"));
    const QByteArray others = QFile::encodeName(folder.filePath(".tessaro-other0"));
    const bool isRoot = geteuid() == 0;
    if (isRoot)
        QCOMPARE(chown(others.constData(), 65534, 65534), 0);
    const int lock = open(QFile::encodeName(folder.filePath(".tessaro-inwork")).constData(),
                          O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    QCOMPARE(flock(lock, LOCK_EX), 0);
    const RunResult result = runBundled("pdftk", {"in.pdf", "output", "o.pdf"}, folder.path());
    close(lock);
    QCOMPARE(result.errors, QByteArray());
    QCOMPARE(contentOf(folder.filePath(".tessaro-inwork/o.pdf")), QByteArray("left over"));
    QCOMPARE(contentOf(folder.filePath(".tessaro-backup/work")), QByteArray("the user's own"));
    QCOMPARE(contentOf(elsewhere.filePath("work")), QByteArray("another user's"));
    QVERIFY(QFile::exists(folder.filePath(".tessaro-linked")));
    QCOMPARE(QFile::exists(folder.filePath(".tessaro-other0/o.pdf")), isRoot);
}

void ToolFolders::inputsHavePlainNamesEverywhere_data()
{
    QTest::addColumn<QString>("refused");
    QTest::newRow("the folder takes links") << "";
    QTest::newRow("no place takes symbolic links") << "symbolic";
    QTest::newRow("no place takes any link") << "all";
}

// The word that the real tool is given, and the content that it finds there.
void ToolFolders::inputsHavePlainNamesEverywhere()
{
    QFETCH(QString, refused);
    const QStringList tool = shellTool("printf '%s\\n' \"$1\" >../word; cat \"$1\" >../content; " +
                                       wholePdf + " >result.pdf");
    const ToolBundle bundle(tool, tool);
    const QTemporaryDir folder;
    writeContent(folder.filePath("x[1]*?{a}.pdf"), "content");
    QStringList call = {bundle.tool("pdftk"), "x[1]*?{a}.pdf", "output", "o.pdf"};
    if (!refused.isEmpty())
        call = QStringList{TESSARO_WITHOUTLINKS, refused} + call;
    const RunResult result = runProgram(call.first(), call.mid(1), folder.path());
    QCOMPARE(result.errors, QByteArray());
    QCOMPARE(contentOf(folder.filePath("word")).trimmed(), QByteArray("input-1"));
    QCOMPARE(contentOf(folder.filePath("content")), QByteArray("content"));
    QCOMPARE(contentOf(folder.filePath("x[1]*?{a}.pdf")), QByteArray("content"));
    QCOMPARE(namesIn(folder.path()), QStringList({"content", "o.pdf", "word", "x[1]*?{a}.pdf"}));
}

void ToolFolders::inputsArePlainOnImages_data()
{
    QTest::addColumn<QString>("kind");
    QTest::newRow("vfat") << "vfat";
    QTest::newRow("exFAT") << "exfat";
}

// The real tools, inputs of every awkward name, and one whose content would be taken as arguments
// if its name were a pattern. Root alone can mount.
void ToolFolders::inputsArePlainOnImages()
{
    QFETCH(QString, kind);
    if (geteuid() != 0)
        QSKIP("only root can mount a file system; the other rows refuse links by other means");
    const QTemporaryDir stick, folder, places;
    writeContent(folder.filePath("x[1].jpg"),
                 "-write jpg:" + QFile::encodeName(folder.filePath("victim")));
    writeContent(folder.filePath("victim"), "kept");
    for (const char *name : {"cat[1].png", "st*r.png", "wh?t.png", "br{a,b}ce.png"})
        makeImage(folder.filePath(name));
    writeContent(folder.filePath("info"), "InfoKey:Title\nInfoValue:on a stick\n");
    writeContent(folder.filePath("work"),
                 "cd \"$1\"; shift\n"
                 "\"$1\" 'cat[1].png' 'st*r.png' 'wh?t.png' 'br{a,b}ce.png' \"$3/all.pdf\" || "
                 "exit 1\n"
                 "\"$1\" 'x[1].jpg' \"$3/hostile.pdf\" && exit 2\n"
                 "\"$2\" \"$3/all.pdf\" update_info info output \"$3/done.pdf\" || exit 3\n"
                 "ls -A \"$3\"; cp \"$3/done.pdf\" .\n");
    const RunResult result =
        runProgram(TESSARO_ON_IMAGE,
                   {kind, "16", stick.path(), "/bin/sh", folder.filePath("work"), folder.path(),
                    bundledTool("convert"), bundledTool("pdftk"), stick.path()},
                   folder.path(), {{"TMPDIR", places.path()}});
    if (result.status == 77)
        QSKIP("neither the kernel nor a program in user space mounts this file system here");
    QVERIFY2(result.status == 0, result.errors.constData());
    QCOMPARE(result.output, QByteArray("all.pdf\ndone.pdf\n"));
    QCOMPARE(readPdf(folder.filePath("done.pdf")).pages, 4);
    QCOMPARE(contentOf(folder.filePath("victim")), QByteArray("kept"));
    QCOMPARE(namesIn(places.path()), QStringList());
}

void ToolFolders::fullPlacesAreNamedAndLeftClean_data()
{
    QTest::addColumn<QStringList>("image");
    QTest::newRow("no room") << QStringList{"tmpfs", "1"};
    QTest::newRow("no inodes") << QStringList{"tmpfs", "1,nr_inodes=3"};
    QTest::newRow("one inode too few") << QStringList{"tmpfs", "1,nr_inodes=4"};
    QTest::newRow("two inodes too few") << QStringList{"tmpfs", "1,nr_inodes=5"};
}

void ToolFolders::fullPlacesAreNamedAndLeftClean()
{
    QFETCH(QStringList, image);
    if (geteuid() != 0)
        QSKIP("only root can mount a file system");
    const QStringList tool = shellTool("head -c 2000000 /dev/zero >result.pdf; exit 1");
    const ToolBundle bundle(tool, tool);
    const QTemporaryDir full;
    const QString script =
        "echo older >\"$1/o.pdf\"; \"$0\" in.pdf output \"$1/o.pdf\"; status=$?; ls -A \"$1\"; "
        "cat \"$1/o.pdf\"; exit $status";
    const RunResult result = runProgram(TESSARO_ON_IMAGE,
                                        image + QStringList{full.path(), "/bin/sh", "-c", script,
                                                            bundle.tool("pdftk"), full.path()},
                                        m_folder.path());
    QCOMPARE(result.status, 1);
    QCOMPARE(result.output, QByteArray("o.pdf\nolder\n"));
    QVERIFY2(result.errors.contains("No space left on device"), result.errors.constData());
}

void ToolFolders::messagesNameTheRightInput_data()
{
    QTest::addColumn<QString>("failing");
    QTest::addColumn<QByteArray>("message");
    QTest::newRow("input-1 is not the beginning of input-11")
        << "input-11" << QByteArray("cannot read file11\n");
    QTest::newRow("one that is called as another is inside")
        << "input-2" << QByteArray("cannot read input-3\n");
}

void ToolFolders::messagesNameTheRightInput()
{
    QFETCH(QString, failing);
    QFETCH(QByteArray, message);
    const ToolBundle bundle(
        shellTool("[ $1 != $FAILING ] || { echo \"cannot read $1\" >&2; exit 1; }; "
                  "for last; do :; done; cp ../whole.pdf ${last#pdf:}"),
        {"/bin/false"});
    const QTemporaryDir folder;
    makeImage(folder.filePath("x.png"));
    QCOMPARE(runBundled("convert", {"x.png", "whole.pdf"}, folder.path()).status, 0);
    QStringList call;
    for (int i = 1; i <= 11; ++i)
        call.append(i == 2 ? QString("input-3") : "file" + QString::number(i));
    for (const QString &name : call)
        writeContent(folder.filePath(name), "in");
    const RunResult result = runProgram(bundle.tool("convert"), call + QStringList{"o.pdf"},
                                        folder.path(), {{"FAILING", failing}});
    QCOMPARE(result.errors, message);
}

QTEST_GUILESS_MAIN(ToolFolders)
#include "toolfolders_test.moc"

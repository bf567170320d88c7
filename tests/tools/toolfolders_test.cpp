// The private folders of the two programs: unpredictable, unshared, removed, and with plain names
// for the real tools on every file system.

#include "pdffacts.h"
#include "toolbench.h"
#include "workdirectory.h"

#include <QDir>
#include <QImage>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

class ToolFoldersTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void privateFolderIsForTheUserAlone();
    void namesAreUnpredictable();
    void nothingIsLeftWithoutDescriptors();
    void leftoversAreClearedAway();
    void leftoversAreFoundAmongManyFiles();
    void foreignFoldersAreLeftAlone();
    void nestedFoldersAreRemoved();
    void inputsHavePlainNamesEverywhere_data();
    void inputsHavePlainNamesEverywhere();
    void inputsArePlainOnImages_data();
    void inputsArePlainOnImages();
    void fullPlacesAreNamedAndLeftClean_data();
    void fullPlacesAreNamedAndLeftClean();
    void tenPdftkCallsAtOnceInOneFolder();
    void messagesNameTheRightInput_data();
    void messagesNameTheRightInput();

private:
    QTemporaryDir m_folder;
};

namespace {

QStringList ourFoldersIn(const QString &folder)
{
    return QDir(folder).entryList({u".tessaro-*"_s}, QDir::Dirs | QDir::Hidden);
}

// A folder as a call that was killed leaves it.
void leaveOver(const QString &folder)
{
    QVERIFY(QDir().mkpath(folder));
    for (const QString &file : {u".tessaro"_s, u"o.pdf"_s, u"input-1"_s})
        writeContent(folder + u'/' + file, "left over");
}

} // namespace

void ToolFoldersTest::initTestCase()
{
    makeImage(m_folder.filePath(u"x.png"_s));
    QCOMPARE(runBundled(u"convert"_s, {u"x.png"_s, u"in.pdf"_s}, m_folder.path()).status, 0);
    QImage noise(1000, 1000, QImage::Format_RGB32);
    QRandomGenerator(7).fillRange(reinterpret_cast<quint32 *>(noise.bits()), 1'000'000);
    QVERIFY(noise.save(m_folder.filePath(u"noise.png"_s)));
    QCOMPARE(runBundled(u"convert"_s, {u"noise.png"_s, u"large.pdf"_s}, m_folder.path()).status, 0);
    QVERIFY(QFileInfo(m_folder.filePath(u"large.pdf"_s)).size() > 2'000'000);
}

void ToolFoldersTest::privateFolderIsForTheUserAlone()
{
    const QStringList tool = shellTool(u"stat -c '%a' . >&2; exit 1"_s);
    const ToolBundle bundle(tool);
    for (const QString &mask : {u"umask 000"_s, u"umask 022"_s, u"umask 0777"_s}) {
        const RunResult result =
            runInShell(mask, bundle.tool(u"convert"_s), {u"in.pdf"_s, u"o.pdf"_s}, m_folder.path());
        QCOMPARE(result.errors, QByteArray("700\n"));
    }
}

void ToolFoldersTest::namesAreUnpredictable()
{
    const QStringList tool = shellTool(u"cd ..; basename \"$PWD\" >&2; exit 1"_s);
    const ToolBundle bundle(tool);
    QSet<QByteArray> names;
    for (int i = 0; i < 20; ++i) {
        const QByteArray name =
            runProgram(bundle.tool(u"convert"_s), {u"in.pdf"_s, u"o.pdf"_s}, m_folder.path())
                .errors;
        QVERIFY2(QRegularExpression(u"^\\.tessaro-[A-Za-z0-9]{6}\n$"_s)
                     .match(QString::fromUtf8(name))
                     .hasMatch(),
                 name.constData());
        names.insert(name);
    }
    QCOMPARE(names.size(), 20);
}

// With any number of descriptors: a PDF or one sentence, and no folder.
void ToolFoldersTest::nothingIsLeftWithoutDescriptors()
{
    const ToolBundle bundle(shellTool(u"cp ../../in.pdf page.pdf"_s));
    int failed = 0;
    for (int descriptors = 3; descriptors < 24; ++descriptors) {
        const QTemporaryDir folder, pixels;
        QVERIFY(QFile::copy(m_folder.filePath(u"in.pdf"_s), folder.filePath(u"in.pdf"_s)));
        for (const QStringList &call :
             {QStringList{u"convert"_s, u"in.pdf"_s, u"o.pdf"_s},
              QStringList{u"pdftk"_s, u"in.pdf"_s, u"output"_s, u"o.pdf"_s}}) {
            const RunResult result = runInShell(u"ulimit -n "_s + QString::number(descriptors),
                                                bundle.tool(call.first()), call.mid(1),
                                                folder.path(), {{u"TMPDIR"_s, pixels.path()}});
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

void ToolFoldersTest::leftoversAreClearedAway()
{
    const QTemporaryDir folder;
    QVERIFY(QFile::copy(m_folder.filePath(u"in.pdf"_s), folder.filePath(u"in.pdf"_s)));
    leaveOver(folder.filePath(u".tessaro-aB3xYz"_s));
    leaveOver(folder.filePath(u".tessaro-000000"_s));
    QVERIFY(QDir(folder.path()).mkdir(u".tessaro-killed"_s));
    const RunResult result =
        runBundled(u"pdftk"_s, {u"in.pdf"_s, u"output"_s, u"o.pdf"_s}, folder.path());
    QCOMPARE(result.errors, QByteArray());
    QCOMPARE(namesIn(folder.path()), QStringList({u"in.pdf"_s, u"o.pdf"_s}));
    QCOMPARE(readPdf(folder.filePath(u"o.pdf"_s)).pages, 1);
}

void ToolFoldersTest::leftoversAreFoundAmongManyFiles()
{
    const QTemporaryDir folder;
    for (int i = 0; i < 3000; ++i)
        writeContent(folder.filePath(QString::number(i)), "");
    QVERIFY(QFile::copy(m_folder.filePath(u"in.pdf"_s), folder.filePath(u"in.pdf"_s)));
    leaveOver(folder.filePath(u".tessaro-aB3xYz"_s));
    QCOMPARE(runBundled(u"pdftk"_s, {u"in.pdf"_s, u"output"_s, u"o.pdf"_s}, folder.path()).status,
             0);
    QCOMPARE(ourFoldersIn(folder.path()), QStringList());
}

// One that is in use, one that only looks like ours, one that a link of our name leads to, and, as
// far as this user can make one, another user's.
void ToolFoldersTest::foreignFoldersAreLeftAlone()
{
    const QTemporaryDir folder, elsewhere;
    QVERIFY(QFile::copy(m_folder.filePath(u"in.pdf"_s), folder.filePath(u"in.pdf"_s)));
    leaveOver(folder.filePath(u".tessaro-inwork"_s));
    leaveOver(folder.filePath(u".tessaro-other0"_s));
    QVERIFY(QDir(folder.path()).mkdir(u".tessaro-backup"_s));
    writeContent(folder.filePath(u".tessaro-backup/work"_s), "the user's own");
    writeContent(elsewhere.filePath(u".tessaro"_s), "");
    writeContent(elsewhere.filePath(u"work"_s), "another user's");
    QFile::link(elsewhere.path(), folder.filePath(u".tessaro-linked"_s));
    const QByteArray others = QFile::encodeName(folder.filePath(u".tessaro-other0"_s));
    const bool isRoot = geteuid() == 0;
    if (isRoot)
        QCOMPARE(chown(others.constData(), 65534, 65534), 0);
    const int lock = open(QFile::encodeName(folder.filePath(u".tessaro-inwork"_s)).constData(),
                          O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    QCOMPARE(flock(lock, LOCK_EX), 0);
    const RunResult result =
        runBundled(u"pdftk"_s, {u"in.pdf"_s, u"output"_s, u"o.pdf"_s}, folder.path());
    close(lock);
    QCOMPARE(result.errors, QByteArray());
    QCOMPARE(contentOf(folder.filePath(u".tessaro-inwork/o.pdf"_s)), QByteArray("left over"));
    QCOMPARE(contentOf(folder.filePath(u".tessaro-backup/work"_s)), QByteArray("the user's own"));
    QCOMPARE(contentOf(elsewhere.filePath(u"work"_s)), QByteArray("another user's"));
    QVERIFY(QFile::exists(folder.filePath(u".tessaro-linked"_s)));
    QCOMPARE(QFile::exists(folder.filePath(u".tessaro-other0/o.pdf"_s)), isRoot);
}

void ToolFoldersTest::inputsHavePlainNamesEverywhere_data()
{
    QTest::addColumn<QString>("refused");
    QTest::newRow("the folder takes links") << "";
    QTest::newRow("no place takes symbolic links") << "symlinks";
    QTest::newRow("no place takes any link") << "links";
}

// The word that the real tool is given, and the content that it finds there.
void ToolFoldersTest::inputsHavePlainNamesEverywhere()
{
    QFETCH(QString, refused);
    const QStringList tool = shellTool(
        u"printf '%s\\n' \"$1\" >../../word; cat \"$1\" >../../content; cp ../../whole.pdf page.pdf"_s);
    const ToolBundle bundle(tool);
    const QTemporaryDir folder;
    QVERIFY(QFile::copy(m_folder.filePath(u"in.pdf"_s), folder.filePath(u"whole.pdf"_s)));
    writeContent(folder.filePath(u"x[1]*?{a}.bmp"_s), "content");
    QStringList call = {bundle.tool(u"convert"_s), u"x[1]*?{a}.bmp"_s, u"o.pdf"_s};
    if (!refused.isEmpty())
        call = QStringList{QStringLiteral(TESSARO_WITHOUTCALLS), refused} + call;
    const RunResult result = runProgram(call.first(), call.mid(1), folder.path());
    QCOMPARE(result.errors, QByteArray());
    QCOMPARE(contentOf(folder.filePath(u"word"_s)).trimmed(), QByteArray("input-1.bmp"));
    QCOMPARE(contentOf(folder.filePath(u"content"_s)), QByteArray("content"));
    QCOMPARE(contentOf(folder.filePath(u"x[1]*?{a}.bmp"_s)), QByteArray("content"));
    QCOMPARE(namesIn(folder.path()), QStringList({u"content"_s, u"o.pdf"_s, u"whole.pdf"_s,
                                                  u"word"_s, u"x[1]*?{a}.bmp"_s}));
}

void ToolFoldersTest::inputsArePlainOnImages_data()
{
    QTest::addColumn<QString>("kind");
    QTest::newRow("vfat") << "vfat";
    QTest::newRow("exFAT") << "exfat";
}

// The real tools, inputs of every awkward name, and one whose content would be taken as arguments
// if its name were a pattern. Root alone can mount.
void ToolFoldersTest::inputsArePlainOnImages()
{
    QFETCH(QString, kind);
    if (geteuid() != 0)
        QSKIP("only root can mount a file system; the other rows refuse links by other means");
    const QTemporaryDir stick, folder, places;
    writeContent(folder.filePath(u"x[1].jpg"_s),
                 "-write jpg:" + QFile::encodeName(folder.filePath(u"victim"_s)));
    writeContent(folder.filePath(u"victim"_s), "kept");
    for (const QString &name : {u"cat[1].png"_s, u"st*r.png"_s, u"wh?t.png"_s, u"br{a,b}ce.png"_s})
        makeImage(folder.filePath(name));
    writeContent(folder.filePath(u"info"_s), "InfoKey:Title\nInfoValue:on a stick\n");
    writeContent(folder.filePath(u"work"_s),
                 "cd \"$1\"; shift\n"
                 "\"$1\" 'cat[1].png' 'st*r.png' 'wh?t.png' 'br{a,b}ce.png' \"$3/all.pdf\" || "
                 "exit 1\n"
                 "\"$1\" 'x[1].jpg' \"$3/hostile.pdf\" && exit 2\n"
                 "\"$2\" \"$3/all.pdf\" update_info info output \"$3/done.pdf\" || exit 3\n"
                 "ls -A \"$3\"; cp \"$3/done.pdf\" .\n");
    const RunResult result = runProgram(
        QStringLiteral(TESSARO_ON_IMAGE),
        {kind, u"16"_s, stick.path(), u"/bin/sh"_s, folder.filePath(u"work"_s), folder.path(),
         bundledTool(u"convert"_s), bundledTool(u"pdftk"_s), stick.path()},
        folder.path(), {{u"TMPDIR"_s, places.path()}});
    if (result.status == 77 && !qEnvironmentVariableIsEmpty("CI"))
        QFAIL("nothing mounts this file system here; continuous integration may not pass it over");
    if (result.status == 77)
        QSKIP("neither the kernel nor a program in user space mounts this file system here");
    QVERIFY2(result.status == 0, result.errors.constData());
    QCOMPARE(result.output, QByteArray("all.pdf\ndone.pdf\n"));
    QCOMPARE(readPdf(folder.filePath(u"done.pdf"_s)).pages, 4);
    QCOMPARE(contentOf(folder.filePath(u"victim"_s)), QByteArray("kept"));
    QCOMPARE(namesIn(places.path()), QStringList());
}

void ToolFoldersTest::fullPlacesAreNamedAndLeftClean_data()
{
    QTest::addColumn<QStringList>("image");
    QTest::newRow("no room") << QStringList{u"tmpfs"_s, u"1"_s};
    QTest::newRow("no inodes") << QStringList{u"tmpfs"_s, u"1,nr_inodes=3"_s};
    QTest::newRow("one inode too few") << QStringList{u"tmpfs"_s, u"1,nr_inodes=4"_s};
    QTest::newRow("two inodes too few") << QStringList{u"tmpfs"_s, u"1,nr_inodes=5"_s};
}

void ToolFoldersTest::fullPlacesAreNamedAndLeftClean()
{
    QFETCH(QStringList, image);
    if (geteuid() != 0)
        QSKIP("only root can mount a file system");
    const QTemporaryDir full;
    const QString script =
        u"echo older >\"$1/o.pdf\"; \"$0\" large.pdf output \"$1/o.pdf\"; status=$?; ls -A \"$1\"; "
        "cat \"$1/o.pdf\"; exit $status"_s;
    const RunResult result =
        runProgram(QStringLiteral(TESSARO_ON_IMAGE),
                   image + QStringList{full.path(), u"/bin/sh"_s, u"-c"_s, script,
                                       bundledTool(u"pdftk"_s), full.path()},
                   m_folder.path());
    QCOMPARE(result.status, 1);
    QCOMPARE(result.output, QByteArray("o.pdf\nolder\n"));
    QVERIFY2(result.errors.contains("'" + full.path().toUtf8()), result.errors.constData());
    QVERIFY2(result.errors.contains("No space left on device"), result.errors.constData());
}

void ToolFoldersTest::messagesNameTheRightInput_data()
{
    QTest::addColumn<QString>("failing");
    QTest::addColumn<QByteArray>("message");
    QTest::newRow("input-1 is not the beginning of input-11")
        << "input-11" << QByteArray("cannot read file11\n");
    QTest::newRow("one that is called as another is inside")
        << "input-2" << QByteArray("cannot read input-3\n");
}

void ToolFoldersTest::messagesNameTheRightInput()
{
    QFETCH(QString, failing);
    QFETCH(QByteArray, message);
    const ToolBundle bundle(shellTool(u"[ $1 != "_s + failing +
                                      u" ] || { echo \"cannot read $1\" >&2; exit 1; }; "
                                      "for last; do :; done; cp ../../whole.pdf ${last#pdf:}"_s));
    const QTemporaryDir folder;
    makeImage(folder.filePath(u"x.png"_s));
    QCOMPARE(runBundled(u"convert"_s, {u"x.png"_s, u"whole.pdf"_s}, folder.path()).status, 0);
    QStringList call;
    for (int i = 1; i <= 11; ++i)
        call.append(i == 2 ? u"input-3"_s : u"file"_s + QString::number(i));
    for (const QString &name : call)
        writeContent(folder.filePath(name), "in");
    const RunResult result =
        runProgram(bundle.tool(u"convert"_s), call + QStringList{u"o.pdf"_s}, folder.path());
    QCOMPARE(result.errors, message);
}

void ToolFoldersTest::tenPdftkCallsAtOnceInOneFolder()
{
    const QTemporaryDir folder;
    QVERIFY(QFile::copy(m_folder.filePath(u"in.pdf"_s), folder.filePath(u"in.pdf"_s)));
    QStringList expected = {u"in.pdf"_s};
    std::vector<std::unique_ptr<QProcess>> calls;
    calls.reserve(10);
    for (int i = 0; i < 10; ++i) {
        const QString name = u"o"_s + QString::number(i) + u".pdf"_s;
        expected.append(name);
        calls.push_back(startProgram(
            bundledTool(u"pdftk"_s),
            {u"in.pdf"_s, u"output"_s, name, u"owner_pw"_s, u"a"_s, u"user_pw"_s, u"b"_s},
            folder.path()));
    }
    for (const auto &call : calls) {
        QVERIFY(call->waitForFinished(120'000));
        QCOMPARE(call->readAllStandardError(), QByteArray());
    }
    QCOMPARE(namesIn(folder.path()), expected);
    for (const QString &name : expected.mid(1))
        QVERIFY(!readPdf(folder.filePath(name), "b").needsPassword);
}

// Our own reader, once taken over, can leave them in the private folder: the process outside
// removes them, and never what a link leads to.
void ToolFoldersTest::nestedFoldersAreRemoved()
{
    const QTemporaryDir parent;
    const QTemporaryDir users;
    writeContent(users.filePath(u"kept"_s), "kept");
    const QString deep = u"/run-1"_s + u"/folder"_s.repeated(100) + u"/moved-0/moved-1"_s;
    {
        const WorkDirectory work(parent.path().toStdString());
        const QString path = QString::fromStdString(work.path());
        QVERIFY(QDir().mkpath(path + deep));
        QVERIFY(QDir().mkpath(path + u"/moved-0/moved-0/.tessaro/moved-1"_s));
        writeContent(path + deep + u"/.tessaro"_s, "x");
        for (const QString &place : {path, path + u"/run-1"_s, path + deep})
            QVERIFY(QFile::link(users.path(), place + u"/link"_s));
        for (const QString &place : {path + u"/moved-0/moved-0"_s, path + u"/run-1"_s})
            QCOMPARE(chmod(qPrintable(place), 0), 0);
    }
    QCOMPARE(namesIn(parent.path()), QStringList());
    QCOMPARE(contentOf(users.filePath(u"kept"_s)), QByteArray("kept"));
}

QTEST_GUILESS_MAIN(ToolFoldersTest)
#include "toolfolders_test.moc"

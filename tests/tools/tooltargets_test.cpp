// What a new PDF keeps of the one that it replaces, and what is never replaced.

#include "pdffacts.h"
#include "toolbench.h"

#include <QDir>
#include <QTest>

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

class ToolTargetsTest : public QObject
{
    Q_OBJECT

private slots:
    void modeIsKept_data();
    void modeIsKept();
    void newFileFollowsTheUmask_data();
    void newFileFollowsTheUmask();
    void groupIsKept();
    void linkLeadsToTheTarget_data();
    void linkLeadsToTheTarget();
    void linksWithoutEndAreRefused();
    void anotherUsersLinkInASharedFolderIsRefused();
    void otherKindsOfFilesAreRefused_data();
    void otherKindsOfFilesAreRefused();
    void inputsOfOtherKindsAreRefused_data();
    void inputsOfOtherKindsAreRefused();
};

namespace {

unsigned modeOf(const QString &path)
{
    struct stat status = {};
    return stat(QFile::encodeName(path).constData(), &status) == 0 ? status.st_mode & 0777 : 0;
}

RunResult finish(const QString &folder, const QString &output, const QString &setting = u":"_s)
{
    makeImage(folder + u"/x.png"_s);
    runBundled(u"convert"_s, {u"x.png"_s, u"in.pdf"_s}, folder);
    return runInShell(setting, bundledTool(u"pdftk"_s), {u"in.pdf"_s, u"output"_s, output}, folder);
}

} // namespace

void ToolTargetsTest::modeIsKept_data()
{
    QTest::addColumn<unsigned>("mode");
    QTest::newRow("for the user alone") << 0600U;
    QTest::newRow("for the group") << 0640U;
    QTest::newRow("for all") << 0666U;
    QTest::newRow("read-only") << 0444U;
}

void ToolTargetsTest::modeIsKept()
{
    QFETCH(unsigned, mode);
    const QTemporaryDir folder;
    writeContent(folder.filePath(u"o.pdf"_s), "older");
    QCOMPARE(chmod(QFile::encodeName(folder.filePath(u"o.pdf"_s)).constData(), mode), 0);
    QCOMPARE(finish(folder.path(), u"o.pdf"_s).errors, QByteArray());
    QCOMPARE(modeOf(folder.filePath(u"o.pdf"_s)), mode);
    QCOMPARE(readPdf(folder.filePath(u"o.pdf"_s)).pages, 1);
}

void ToolTargetsTest::newFileFollowsTheUmask_data()
{
    QTest::addColumn<QString>("mask");
    QTest::addColumn<unsigned>("mode");
    QTest::newRow("usual") << "umask 022" << 0644U;
    QTest::newRow("shared with a group") << "umask 002" << 0664U;
    QTest::newRow("private") << "umask 077" << 0600U;
    QTest::newRow("mode 0") << "umask 0777" << 0U;
}

void ToolTargetsTest::newFileFollowsTheUmask()
{
    QFETCH(QString, mask);
    QFETCH(unsigned, mode);
    const QTemporaryDir folder;
    QCOMPARE(finish(folder.path(), u"o.pdf"_s, mask).errors, QByteArray());
    QVERIFY(QFile::exists(folder.filePath(u"o.pdf"_s)));
    QCOMPARE(modeOf(folder.filePath(u"o.pdf"_s)), mode);
}

void ToolTargetsTest::groupIsKept()
{
    const QTemporaryDir folder;
    writeContent(folder.filePath(u"o.pdf"_s), "older");
    const QByteArray path = QFile::encodeName(folder.filePath(u"o.pdf"_s));
    const gid_t group = geteuid() == 0 ? 65534 : getegid();
    QCOMPARE(chown(path.constData(), static_cast<uid_t>(-1), group), 0);
    QCOMPARE(finish(folder.path(), u"o.pdf"_s).errors, QByteArray());
    struct stat status = {};
    QCOMPARE(stat(path.constData(), &status), 0);
    QCOMPARE(status.st_gid, group);
    QCOMPARE(readPdf(folder.filePath(u"o.pdf"_s)).pages, 1);
}

void ToolTargetsTest::linkLeadsToTheTarget_data()
{
    QTest::addColumn<QString>("target");
    QTest::addColumn<bool>("present");
    QTest::newRow("in the same folder") << "o.pdf" << true;
    QTest::newRow("in another folder") << "sub/o.pdf" << true;
    QTest::newRow("by an absolute path") << "/sub/o.pdf" << true;
    QTest::newRow("that is not there yet") << "sub/o.pdf" << false;
}

void ToolTargetsTest::linkLeadsToTheTarget()
{
    QFETCH(QString, target);
    QFETCH(bool, present);
    const QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkdir(u"sub"_s));
    const QString file = folder.filePath(target.startsWith(u'/') ? target.mid(1) : target);
    const QByteArray content = QFile::encodeName(target.startsWith(u'/') ? file : target);
    if (present)
        writeContent(file, "older");
    const QString link = folder.filePath(u"link.pdf"_s);
    QCOMPARE(symlink(content.constData(), QFile::encodeName(link).constData()), 0);
    QCOMPARE(finish(folder.path(), u"link.pdf"_s).errors, QByteArray());
    QVERIFY(QFileInfo(link).isSymLink());
    QVERIFY(!QFileInfo(file).isSymLink());
    QCOMPARE(readPdf(file).pages, 1);
}

void ToolTargetsTest::linksWithoutEndAreRefused()
{
    const QTemporaryDir folder;
    QFile::link(folder.filePath(u"b.pdf"_s), folder.filePath(u"a.pdf"_s));
    QFile::link(folder.filePath(u"a.pdf"_s), folder.filePath(u"b.pdf"_s));
    const RunResult result = finish(folder.path(), u"a.pdf"_s);
    QCOMPARE(result.status, 1);
    QVERIFY2(result.errors.contains("Too many levels of symbolic links"),
             result.errors.constData());
}

void ToolTargetsTest::anotherUsersLinkInASharedFolderIsRefused()
{
    if (geteuid() != 0)
        QSKIP("only root can make another user's link");
    const QTemporaryDir folder;
    QCOMPARE(chmod(QFile::encodeName(folder.path()).constData(), 01777), 0);
    writeContent(folder.filePath(u"precious"_s), "older");
    const QString link = folder.filePath(u"link.pdf"_s);
    QFile::link(folder.filePath(u"precious"_s), link);
    QCOMPARE(lchown(QFile::encodeName(link).constData(), 65534, 65534), 0);
    const RunResult result = finish(folder.path(), u"link.pdf"_s);
    QCOMPARE(result.status, 1);
    QCOMPARE(result.errors,
             QByteArray("pdftk: cannot replace 'link.pdf': a link of another user\n"));
    QCOMPARE(contentOf(folder.filePath(u"precious"_s)), QByteArray("older"));
}

void ToolTargetsTest::otherKindsOfFilesAreRefused_data()
{
    QTest::addColumn<QString>("making");
    QTest::newRow("a pipe") << "mkfifo o.pdf";
    QTest::newRow("a folder") << "mkdir o.pdf";
    // Of root's own devices none is put at risk: a program that fails here would replace it.
    QTest::newRow("a link to a device")
        << (geteuid() == 0 ? "mknod device c 1 3; ln -s device o.pdf" : "ln -s /dev/null o.pdf");
    QTest::newRow("a link to a pipe") << "mkfifo pipe; ln -s pipe o.pdf";
}

void ToolTargetsTest::otherKindsOfFilesAreRefused()
{
    QFETCH(QString, making);
    const QTemporaryDir folder;
    const RunResult result = finish(folder.path(), u"o.pdf"_s, making);
    QCOMPARE(result.status, 1);
    QVERIFY2(result.errors.endsWith("not a regular file\n"), result.errors.constData());
    QVERIFY(!QFileInfo(folder.filePath(u"o.pdf"_s)).isFile());
}

void ToolTargetsTest::inputsOfOtherKindsAreRefused_data()
{
    QTest::addColumn<QStringList>("call");
    QTest::newRow("a pipe as PDF") << QStringList{u"pipe.pdf"_s, u"output"_s, u"o.pdf"_s};
    QTest::newRow("a device as PDF") << QStringList{u"device.pdf"_s, u"output"_s, u"o.pdf"_s};
    QTest::newRow("a pipe as info file")
        << QStringList{u"in.pdf"_s, u"update_info"_s, u"pipe.pdf"_s, u"output"_s, u"o.pdf"_s};
    QTest::newRow("a device as info file")
        << QStringList{u"in.pdf"_s, u"update_info"_s, u"/dev/zero"_s, u"output"_s, u"o.pdf"_s};
    QTest::newRow("a folder as PDF") << QStringList{u"folder.pdf"_s, u"output"_s, u"o.pdf"_s};
}

void ToolTargetsTest::inputsOfOtherKindsAreRefused()
{
    QFETCH(QStringList, call);
    const QTemporaryDir folder;
    writeContent(folder.filePath(u"in.pdf"_s), "in");
    QCOMPARE(mkfifo(QFile::encodeName(folder.filePath(u"pipe.pdf"_s)).constData(), 0600), 0);
    QVERIFY(QDir(folder.path()).mkdir(u"folder.pdf"_s));
    QVERIFY(QFile::link(u"/dev/zero"_s, folder.filePath(u"device.pdf"_s)));
    const RunResult result = runBundled(u"pdftk"_s, call, folder.path());
    QCOMPARE(result.status, 1);
    QVERIFY2(result.errors.endsWith("not a regular file\n"), result.errors.constData());
    QCOMPARE(namesIn(folder.path()),
             QStringList({u"device.pdf"_s, u"folder.pdf"_s, u"in.pdf"_s, u"pipe.pdf"_s}));
}

QTEST_GUILESS_MAIN(ToolTargetsTest)
#include "tooltargets_test.moc"

// What code that has taken over a tool can reach: each attempt is refused inside the sandbox, and
// succeeds without it.

#include "toolbench.h"

#include <QDir>
#include <QLocalServer>
#include <QTcpServer>
#include <QTemporaryFile>
#include <QTest>
#include <QUdpSocket>

#include <array>

#include <fcntl.h>

using namespace Qt::StringLiterals;

namespace {

struct Attempt
{
    const char *name;
    /// Succeeds without a sandbox on any system; else kernel settings decide.
    bool succeedsOutside = true;
};

constexpr auto attempts = std::to_array<Attempt>({
    {"read the user's key"},
    {"read /etc/passwd"},
    {"read another input"},
    {"read the older PDF"},
    {"list the home"},
    {"list the output's folder"},
    {"write into the home"},
    {"write beside the input"},
    {"write over the input"},
    {"write over the output"},
    {"write into another private folder"},
    {"cut the input off while reading it"},
    {"cut the input off by its path"},
    {"remove the user's file"},
    {"rename the user's file"},
    {"move the user's file into the private folder"},
    {"link the user's key into the private folder"},
    {"make a symbolic link in the home"},
    {"make a folder"},
    {"link a descriptor of the input into the private folder"},
    {"write over the input by its descriptor"},
    {"make a FIFO"},
    {"read through a symbolic link"},
    {"change the input's mode"},
    // Linux 6.6.
    {"change the input's mode by a new call", false},
    {"change the input's owner"},
    {"change the input's time"},
    // Not on every file system.
    {"list the attributes of the user's key"},
    {"read an attribute of the user's key", false},
    {"set an attribute of the input", false},
    {"watch the home"},
    {"start a process"},
    {"execute a shell"},
    {"execute another program"},
    {"execute a setuid program"},
    {"gain rights by executing"},
    {"execute a copy of itself"},
    {"execute memory"},
    {"connect by TCP"},
    {"connect by UDP"},
    {"connect to a Unix socket"},
    {"connect to an abstract Unix socket"},
    {"open a netlink socket"},
    {"signal another process"},
    {"signal a thread of another process"},
    {"signal the caller's processes"},
    {"signal by a descriptor"},
    // Yama forbids these to users.
    {"trace another process", false},
    {"read another process's memory", false},
    {"open another process's memory", false},
    {"read another process's environment"},
    {"list the mounts"},
    {"list the network's connections"},
    {"list the processes"},
    {"limit another process"},
    {"slow another process down"},
    {"read the caller's secret variable"},
    {"read the caller's descriptor"},
    {"type into a terminal"},
    {"make shared memory"},
    {"reach the keyring"},
    // Settings and containers often forbid these.
    {"set up io_uring", false},
    {"enter a user namespace", false},
    {"load a BPF program", false},
});

/// What became of each attempt, by its name: "succeeded" or "refused (reason)".
using Fates = QMap<QString, QString>;

Fates fatesIn(const QByteArray &lines)
{
    Fates fates;
    for (const QByteArray &line : lines.split('\n')) {
        if (const qsizetype colon = line.indexOf(": "); colon > 0)
            fates.insert(QString::fromUtf8(line.left(colon)),
                         QString::fromUtf8(line.mid(colon + 2)));
    }
    return fates;
}

/// A user's files, which the attempts are after.
class UserFiles
{
public:
    UserFiles()
    {
        for (const QString &folder : {u"home/.ssh"_s, u"in"_s, u"out/private"_s})
            QDir(m_folder.path()).mkpath(folder);
        for (const QString &file :
             {u"home/.ssh/id"_s, u"home/remove"_s, u"home/rename"_s, u"home/move"_s,
              u"in/other.bmp"_s, u"in/own.bmp"_s, u"out/o.pdf"_s})
            writeContent(path(file), "secret");
    }

    QString path(const QString &name) const { return m_folder.filePath(name); }

    QStringList described() const
    {
        return {u"key="_s + path(u"home/.ssh/id"_s),
                u"home="_s + path(u"home"_s),
                u"input="_s + path(u"in/own.bmp"_s),
                u"other-input="_s + path(u"in/other.bmp"_s),
                u"output="_s + path(u"out/o.pdf"_s),
                u"output-folder="_s + path(u"out"_s),
                u"other-private="_s + path(u"out/private"_s),
                u"to-remove="_s + path(u"home/remove"_s),
                u"to-rename="_s + path(u"home/rename"_s),
                u"to-move="_s + path(u"home/move"_s)};
    }

private:
    QTemporaryDir m_folder;
};

} // namespace

class SandboxTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void imageToolIsConfined_data();
    void imageToolIsConfined();
    void everyAttemptIsListed();
    void readersAreConfined_data();
    void readersAreConfined();
    void pdfReaderIsConfined();
    void signalsAreRefusedWithoutLandlock();
    void programOfTheUserSeesItsLibrariesAlone();
    void processLeftBehindIsEnded();
    void missingSandboxIsLogged();

private:
    QStringList knowledge(const UserFiles &files) const;
    Fates fatesOutside() const;
    Fates fatesInImageTool(const QStringList &moreKnowledge = {},
                           const QStringList &wrapper = {}) const;

    QTcpServer m_tcp;
    QUdpSocket m_udp;
    QLocalServer m_unix, m_abstract;
    QProcess m_victim;
    QTemporaryFile m_secret;
    Fates m_outside, m_inImageTool;
};

void SandboxTest::initTestCase()
{
    const QString name = u"tessaro-test-"_s + QString::number(QCoreApplication::applicationPid());
    QVERIFY(m_tcp.listen(QHostAddress::LocalHost));
    QVERIFY(m_udp.bind(QHostAddress::LocalHost));
    QVERIFY(m_unix.listen(name));
    m_abstract.setSocketOptions(QLocalServer::AbstractNamespaceOption);
    QVERIFY(m_abstract.listen(name));
    m_victim.start(u"sleep"_s, {u"600"_s});
    QVERIFY(m_victim.waitForStarted());
    QVERIFY(m_secret.open());
    QCOMPARE(m_secret.write("secret"), 6);
    QVERIFY(m_secret.flush());
    // Inherited, as from a program that forgets to close a file.
    QCOMPARE(fcntl(m_secret.handle(), F_SETFD, 0), 0);
    qputenv("TESSARO_TEST_SECRET", "secret");
    m_outside = fatesOutside();
    m_inImageTool = fatesInImageTool();
}

void SandboxTest::cleanupTestCase()
{
    m_victim.kill();
    m_victim.waitForFinished();
}

QStringList SandboxTest::knowledge(const UserFiles &files) const
{
    return files.described() + QStringList{u"victim="_s + QString::number(m_victim.processId()),
                                           u"tcp="_s + QString::number(m_tcp.serverPort()),
                                           u"udp="_s + QString::number(m_udp.localPort()),
                                           u"unix="_s + m_unix.fullServerName(),
                                           u"abstract=@"_s + m_abstract.serverName(),
                                           u"descriptor="_s + QString::number(m_secret.handle())};
}

Fates SandboxTest::fatesOutside() const
{
    const UserFiles files;
    const QTemporaryDir folder;
    lseek(m_secret.handle(), 0, SEEK_SET);
    const RunResult result = runProgram(
        QStringLiteral(TESSARO_HOSTILETOOL),
        QStringList{u"input"_s} + knowledge(files) + QStringList{u"input"_s}, folder.path());
    return fatesIn(result.errors);
}

// As the tool of the first of two images that are merged.
Fates SandboxTest::fatesInImageTool(const QStringList &moreKnowledge,
                                    const QStringList &wrapper) const
{
    const UserFiles files;
    lseek(m_secret.handle(), 0, SEEK_SET);
    const ToolBundle bundle(QStringList{QStringLiteral(TESSARO_HOSTILETOOL), u"input-1.bmp"_s} +
                            knowledge(files) + moreKnowledge);
    QStringList command =
        wrapper + QStringList{bundle.tool(u"convert"_s), files.path(u"in/own.bmp"_s),
                              files.path(u"in/other.bmp"_s), files.path(u"out/o.pdf"_s)};
    const QString program = command.takeFirst();
    return fatesIn(runProgram(program, command, files.path(u"out"_s)).errors);
}

void SandboxTest::imageToolIsConfined_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("succeedsOutside");
    for (const Attempt &attempt : attempts) {
        QTest::newRow(attempt.name) << QString::fromLatin1(attempt.name) << attempt.succeedsOutside;
    }
}

void SandboxTest::imageToolIsConfined()
{
    QFETCH(QString, name);
    QFETCH(bool, succeedsOutside);
    QVERIFY2(m_inImageTool.value(name).startsWith(u"refused"_s),
             qPrintable(m_inImageTool.value(name)));
    if (succeedsOutside)
        QCOMPARE(m_outside.value(name), u"succeeded"_s);
}

void SandboxTest::everyAttemptIsListed()
{
    QCOMPARE(m_outside.size(), static_cast<qsizetype>(attempts.size()));
}

void SandboxTest::readersAreConfined_data()
{
    QTest::addColumn<QByteArray>("signature");
    QTest::newRow("JPEG") << QByteArray("\xFF\xD8\xFF");
    QTest::newRow("PNG") << QByteArray("\x89PNG\r\n\x1A\n");
    QTest::newRow("TIFF") << QByteArray("II*\0", 4);
}

// They start the image tool, and so may start processes; but no other program.
void SandboxTest::readersAreConfined()
{
    QFETCH(QByteArray, signature);
    const UserFiles files;
    lseek(m_secret.handle(), 0, SEEK_SET);
    const ToolBundle bundle({u"/bin/false"_s});
    QVERIFY(QFile::remove(bundle.tool(u"convert"_s)));
    QVERIFY(QFile::copy(QStringLiteral(TESSARO_HOSTILECONVERT), bundle.tool(u"convert"_s)));
    writeContent(files.path(u"in/own.bmp"_s),
                 signature + '\n' + knowledge(files).join(u'\n').toUtf8() + '\n');
    const RunResult result =
        runProgram(bundle.tool(u"convert"_s),
                   {files.path(u"in/own.bmp"_s), files.path(u"out/o.pdf"_s)}, files.path(u"out"_s));
    const Fates fates = fatesIn(result.errors);
    QCOMPARE(fates.size(), static_cast<qsizetype>(attempts.size()));
    QCOMPARE(fates.keys(u"succeeded"_s).join(u", "_s), u"start a process"_s);
    QCOMPARE(namesIn(files.path(u"out"_s)), QStringList({u"o.pdf"_s, u"private"_s}));
}

// It starts no process at all.
void SandboxTest::pdfReaderIsConfined()
{
    const UserFiles files;
    lseek(m_secret.handle(), 0, SEEK_SET);
    const QString input = files.path(u"in/own.pdf"_s);
    writeContent(input, knowledge(files).join(u'\n').toUtf8() + '\n');
    const RunResult result =
        runProgram(QStringLiteral(TESSARO_HOSTILEPDFTK),
                   {input, u"output"_s, files.path(u"out/o.pdf"_s), u"user_pw"_s, u"use"_s},
                   files.path(u"out"_s));
    const Fates fates = fatesIn(result.errors);
    QCOMPARE(fates.size(), static_cast<qsizetype>(attempts.size()));
    QCOMPARE(fates.keys(u"succeeded"_s).join(u", "_s), QString());
    QCOMPARE(namesIn(files.path(u"out"_s)), QStringList({u"o.pdf"_s, u"private"_s}));
}

// As before Linux 6.12.
void SandboxTest::signalsAreRefusedWithoutLandlock()
{
    const Fates fates =
        fatesInImageTool({u"only=signal"_s}, {QStringLiteral(TESSARO_WITHOUTCALLS), u"landlock"_s});
    for (const QString &name : {u"signal another process"_s, u"signal the caller's processes"_s,
                                u"signal a thread of another process"_s})
        QVERIFY2(fates.value(name).startsWith(u"refused"_s), qPrintable(name));
}

// One below ~/.local would have the user's data beside it.
void SandboxTest::programOfTheUserSeesItsLibrariesAlone()
{
    const QTemporaryDir prefix;
    for (const QString &folder : {u"bin"_s, u"lib"_s, u"share"_s, u"own-libraries"_s})
        QDir(prefix.path()).mkdir(folder);
    const QString program = prefix.filePath(u"bin/tool"_s);
    QVERIFY(QFile::copy(QStringLiteral(TESSARO_HOSTILETOOL), program));
    const QString link = prefix.filePath(u"link"_s);
    QVERIFY(QFile::link(program, link));
    const auto fateOf = [&](const QString &tool, const QString &key) {
        const UserFiles files;
        writeContent(prefix.filePath(key), "secret");
        const ToolBundle bundle(QStringList{tool, u"input-1.bmp"_s} + knowledge(files) +
                                QStringList{u"key="_s + prefix.filePath(key)});
        const RunResult result = runProgram(
            bundle.tool(u"convert"_s), {files.path(u"in/own.bmp"_s), files.path(u"out/o.pdf"_s)},
            files.path(u"out"_s), {{u"LD_LIBRARY_PATH"_s, prefix.filePath(u"own-libraries"_s)}});
        return fatesIn(result.errors).value(u"read the user's key"_s);
    };
    QCOMPARE(fateOf(program, u"lib/x"_s), u"succeeded"_s);
    QCOMPARE(fateOf(link, u"lib/x"_s), u"succeeded"_s);
    QCOMPARE(fateOf(program, u"own-libraries/x"_s), u"succeeded"_s);
    QVERIFY(fateOf(program, u"share/x"_s).startsWith(u"refused"_s));
}

// Without a sandbox a tool can start what outlives it, in a session of its own, and writes without
// end into what the call reads.
void SandboxTest::processLeftBehindIsEnded()
{
    const QString word = u"left-behind-"_s + QString::number(QCoreApplication::applicationPid());
    const ToolBundle bundle(
        shellTool(u"setsid /bin/sh -c 'while :; do echo x >&2; done' "_s + word + u" & exit 1"_s));
    const UserFiles files;
    const RunResult result =
        runProgram(bundle.tool(u"convert"_s),
                   {files.path(u"in/own.bmp"_s), files.path(u"out/o.pdf"_s)}, files.path(u"out"_s));
    QCOMPARE(result.status, 1);
    QCOMPARE(processesWith(word.toUtf8()), QList<pid_t>());
}

void SandboxTest::missingSandboxIsLogged()
{
    const QTemporaryDir folder;
    makeImage(folder.filePath(u"x.bmp"_s));
    const auto loggedBy = [&folder](const QString &program, const QStringList &words) {
        const QString log = folder.filePath(u"log"_s);
        QFile::remove(log);
        const RunResult result = runProgram(program, words + QStringList{u"x.bmp"_s, u"o.pdf"_s},
                                            folder.path(), {{u"TESSARO_TOOL_LOG"_s, log}});
        return QByteArray::number(result.status) + contentOf(log);
    };
    const QString convert = bundledTool(u"convert"_s);
    const QByteArray inside = loggedBy(convert, {});
    QVERIFY2(inside.startsWith('0') && !inside.contains("sandbox"), inside.constData());
    const QByteArray outside =
        loggedBy(QStringLiteral(TESSARO_WITHOUTCALLS), {u"sandbox"_s, convert});
    QVERIFY2(outside.startsWith('0') && outside.contains("  sandbox: none (Landlock: Operation not "
                                                         "permitted; seccomp: Operation not "
                                                         "permitted)\n"),
             outside.constData());
}

QTEST_GUILESS_MAIN(SandboxTest)
#include "sandbox_test.moc"

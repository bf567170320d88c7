// Passwords and permissions: that they arrive, and that nobody else sees the passwords.

#include "pdffacts.h"
#include "toolbench.h"

#include <QDir>
#include <QDirIterator>
#include <QTest>

class PdftkSecurity : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void eachPermissionAlone_data();
    void eachPermissionAlone();
    void passwordsOpenTheResult_data();
    void passwordsOpenTheResult();
    void refusedPasswordsFailAsTheToolFails_data();
    void refusedPasswordsFailAsTheToolFails();
    void passwordsWithLineBreaksAreRefused();
    void otherCallsWithPasswordsAreRefused();
    void anyResultNameTakesPasswords_data();
    void anyResultNameTakesPasswords();
    void permissionsWithoutPasswordEncryptNothing();
    void passwordsAreNowhereDuringTheCall();
    void passwordsAreNowhereAfterTheCall();

private:
    RunResult finish(const QStringList &tail, const Variables &variables = {}) const;

    QTemporaryDir m_folder;
};

namespace {

QByteArray encryptionOf(const QString &path, const QString &password)
{
    return runProgram("/usr/bin/qpdf", {"--show-encryption", "--password=" + password, path},
                      QDir::tempPath())
        .output;
}

// qpdf's lines of what is allowed, of those that pdftk's four words decide.
QStringList allowedIn(const QByteArray &report)
{
    QStringList allowed;
    for (const char *line : {"print high resolution", "extract for any purpose", "modify other",
                             "modify annotations"}) {
        if (report.contains(QByteArray(line) + ": allowed"))
            allowed.append(line);
    }
    return allowed;
}

// Every process's arguments and environment, as far as this user may read them.
QByteArray everythingInProc(const QString &own)
{
    QByteArray all;
    for (const QString &process : QDir("/proc").entryList(QDir::Dirs)) {
        if (process.toInt() > 0 && process != own)
            all += contentOf("/proc/" + process + "/cmdline") +
                   contentOf("/proc/" + process + "/environ");
    }
    return all;
}

} // namespace

void PdftkSecurity::initTestCase()
{
    makeImage(m_folder.filePath("x.png"));
    QCOMPARE(runBundled("convert", {"x.png", "in.pdf"}, m_folder.path()).status, 0);
}

RunResult PdftkSecurity::finish(const QStringList &tail, const Variables &variables) const
{
    return runBundled("pdftk", QStringList{"in.pdf", "output", "out.pdf"} + tail, m_folder.path(),
                      variables);
}

void PdftkSecurity::eachPermissionAlone_data()
{
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<QStringList>("allowed");
    QTest::newRow("none") << QStringList{} << QStringList{};
    QTest::newRow("printing") << QStringList{"printing"} << QStringList{"print high resolution"};
    QTest::newRow("copying") << QStringList{"copycontents"}
                             << QStringList{"extract for any purpose"};
    QTest::newRow("modifying") << QStringList{"modifycontents"} << QStringList{"modify other"};
    QTest::newRow("commenting") << QStringList{"modifyannotations"}
                                << QStringList{"modify annotations"};
    QTest::newRow("all four") << QStringList{"printing", "modifycontents", "copycontents",
                                             "modifyannotations"}
                              << QStringList{"print high resolution", "extract for any purpose",
                                             "modify other", "modify annotations"};
}

void PdftkSecurity::eachPermissionAlone()
{
    QFETCH(QStringList, words);
    QFETCH(QStringList, allowed);
    QStringList tail = {"owner_pw", "own", "user_pw", "use"};
    for (const QString &word : words)
        tail << "allow" << word;
    const RunResult result = finish(tail);
    QCOMPARE(result.errors + result.output, QByteArray());
    QCOMPARE(allowedIn(encryptionOf(m_folder.filePath("out.pdf"), "use")), allowed);
    const PdfFacts facts = readPdf(m_folder.filePath("out.pdf"), "use");
    QCOMPARE(facts.mayPrint, words.contains("printing"));
    QCOMPARE(facts.mayCopy, words.contains("copycontents"));
}

void PdftkSecurity::passwordsOpenTheResult_data()
{
    QTest::addColumn<QString>("owner");
    QTest::addColumn<QString>("user");
    QTest::newRow("both") << "own"
                          << "use";
    QTest::newRow("an owner's alone") << "own"
                                      << "";
    QTest::newRow("a user's alone") << ""
                                    << "use";
    QTest::newRow("signs of all kinds") << "a\"b'c$(d)\\e;f"
                                        << "-x=1&%s";
    QTest::newRow("words of the tool") << "output"
                                       << "allow";
    QTest::newRow("the word for a question") << "PROMPT"
                                             << "user_pw";
    QTest::newRow("32 characters") << QString(32, 'o') << QString(32, 'u');
    QTest::newRow("Latin-1 letters")
        << QString::fromUtf8("\xC3\xBC\xC3\x9F") << QString::fromUtf8("\xC3\xA9");
}

void PdftkSecurity::passwordsOpenTheResult()
{
    QFETCH(QString, owner);
    QFETCH(QString, user);
    for (const char *locale : {"C", "C.UTF-8"}) {
        QStringList tail;
        if (!owner.isEmpty())
            tail << "owner_pw" << owner;
        if (!user.isEmpty())
            tail << "user_pw" << user;
        const RunResult result = finish(tail, {{"LC_ALL", locale}});
        QCOMPARE(result.errors + result.output, QByteArray());
        const QString path = m_folder.filePath("out.pdf");
        QCOMPARE(readPdf(path).needsPassword, !user.isEmpty());
        QVERIFY(readPdf(path).encrypted);
        // The standard security handler takes passwords in Latin-1.
        QVERIFY(!readPdf(path, user.toLatin1()).needsPassword);
        QVERIFY(!readPdf(path, owner.isEmpty() ? user.toLatin1() : owner.toLatin1()).needsPassword);
        QVERIFY(user.isEmpty() || readPdf(path, "wrong").needsPassword);
    }
}

void PdftkSecurity::refusedPasswordsFailAsTheToolFails_data()
{
    QTest::addColumn<QStringList>("tail");
    QTest::newRow("a blank splits it") << QStringList{"owner_pw", "two", "words"};
    QTest::newRow("letters beyond Latin-1")
        << QStringList{"user_pw", QString::fromUtf8("\xE6\x97\xA5")};
    QTest::newRow("a tabulator") << QStringList{"user_pw", "a\tb"};
    QTest::newRow("the same one twice") << QStringList{"owner_pw", "gleich", "user_pw", "gleich"};
    QTest::newRow("two owner's passwords") << QStringList{"owner_pw", "a1", "owner_pw", "a2"};
}

void PdftkSecurity::refusedPasswordsFailAsTheToolFails()
{
    QFETCH(QStringList, tail);
    const RunResult plain =
        runProgram("/usr/bin/pdftk", QStringList{"in.pdf", "output", "plain.pdf"} + tail,
                   m_folder.path(), {{"LC_ALL", "C.UTF-8"}});
    writeContent(m_folder.filePath("out.pdf"), "older");
    const RunResult result = finish(tail);
    QCOMPARE(result.status, plain.status);
    QVERIFY(result.status > 0);
    QCOMPARE(contentOf(m_folder.filePath("out.pdf")), QByteArray("older"));
    for (int i = 1; i < tail.size(); i += 2)
        QVERIFY(!result.errors.contains(tail[i].toUtf8()));
}

void PdftkSecurity::passwordsWithLineBreaksAreRefused()
{
    writeContent(m_folder.filePath("out.pdf"), "older");
    const RunResult result = finish({"user_pw", "Geheim\nrest"});
    QCOMPARE(result.status, 1);
    QCOMPARE(result.errors, QByteArray("pdftk: a password must not hold a line break\n"));
    QCOMPARE(contentOf(m_folder.filePath("out.pdf")), QByteArray("older"));
}

// A real tool that would show what it is given.
void PdftkSecurity::otherCallsWithPasswordsAreRefused()
{
    const QStringList tool = shellTool("echo \"$@\"");
    const ToolBundle bundle(tool, tool);
    const QStringList call = {"in.pdf", "cat", "1", "output", "x.pdf", "owner_pw", "Geheim"};
    const RunResult result = runProgram(bundle.tool("pdftk"), call, m_folder.path());
    QCOMPARE(result.status, 1);
    QCOMPARE(result.output, QByteArray());
    QVERIFY2(result.errors.startsWith("pdftk: passwords are taken only behind"),
             result.errors.constData());
    const RunResult without = runProgram(bundle.tool("pdftk"), call.mid(0, 5), m_folder.path());
    QCOMPARE(without.output, QByteArray("in.pdf cat 1 output x.pdf\n"));
}

void PdftkSecurity::anyResultNameTakesPasswords_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"x.PDF", ".pdf", "-1.pdf", "x", "PROMPT", "x%d.pdf"})
        QTest::newRow(name) << QString(name);
}

void PdftkSecurity::anyResultNameTakesPasswords()
{
    QFETCH(QString, name);
    const RunResult result = runBundled(
        "pdftk", {"in.pdf", "output", name, "owner_pw", "own", "user_pw", "use"}, m_folder.path());
    QCOMPARE(result.errors + result.output, QByteArray());
    QVERIFY(!readPdf(m_folder.filePath(name), "use").needsPassword);
    const RunResult again = runBundled("pdftk", {name, "output", name}, m_folder.path());
    QVERIFY2(again.errors.contains("PASSWORD REQUIRED"), again.errors.constData());
}

void PdftkSecurity::permissionsWithoutPasswordEncryptNothing()
{
    QCOMPARE(finish({"allow", "printing", "allow", "copycontents"}).status, 0);
    QVERIFY(!readPdf(m_folder.filePath("out.pdf")).encrypted);
}

// The process list as `ps` reads it, over and over while the JVM starts and works.
void PdftkSecurity::passwordsAreNowhereDuringTheCall()
{
    const std::unique_ptr<QProcess> call = startProgram(
        bundledTool("pdftk"),
        {"in.pdf", "output", "out.pdf", "owner_pw", "Geheim-Owner", "user_pw", "Geheim-User"},
        m_folder.path());
    QVERIFY(call->waitForStarted());
    const QString own = QString::number(QCoreApplication::applicationPid());
    // Ours needs a moment from its start to its first instruction, as any program does.
    QTRY_VERIFY(
        !contentOf("/proc/" + QString::number(call->processId()) + "/cmdline").contains("Geheim"));
    int samples = 0, withRealTool = 0;
    while (!call->waitForFinished(1)) {
        const QByteArray all = everythingInProc(own);
        QVERIFY(!all.contains("Geheim"));
        withRealTool += all.contains("PROMPT") ? 1 : 0;
        ++samples;
    }
    qInfo() << samples << "samples," << withRealTool << "with the real tool at work";
    QVERIFY(withRealTool > 0);
    QVERIFY(!readPdf(m_folder.filePath("out.pdf"), "Geheim-User").needsPassword);
}

void PdftkSecurity::passwordsAreNowhereAfterTheCall()
{
    const QTemporaryDir logs, temporary;
    const Variables variables = {{"TESSARO_TOOL_LOG", logs.filePath("log")},
                                 {"TMPDIR", temporary.path()}};
    QCOMPARE(finish({"owner_pw", "Geheim-Owner", "user_pw", "Geheim-User"}, variables).status, 0);
    QVERIFY(finish({"owner_pw", "Geheim-Owner", "Geheim-Rest"}, variables).status > 0);
    QVERIFY(finish({"user_pw", QString(32, 'x') + "Geheim-Rest", "oops"}, variables).status > 0);
    QVERIFY(runBundled("pdftk",
                       {"in.pdf", "input_pw", "Geheim-Input", "cat", "output", "no/x.pdf",
                        "owner_pw", "Geheim-Owner", "Geheim-Rest"},
                       m_folder.path(), variables)
                .status > 0);
    QVERIFY(contentOf(logs.filePath("log")).contains("********"));
    for (const QString &folder : {m_folder.path(), logs.path(), temporary.path()}) {
        QDirIterator files(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString path = files.next();
            QVERIFY2(!contentOf(path).contains("Geheim"), qPrintable(path));
        }
    }
}

QTEST_GUILESS_MAIN(PdftkSecurity)
#include "pdftksecurity_test.moc"

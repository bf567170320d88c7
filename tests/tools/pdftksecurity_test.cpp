// Passwords and permissions: that they arrive, and that nobody else sees the passwords.

#include "pdffacts.h"
#include "toolbench.h"

#include <QDir>
#include <QDirIterator>
#include <QTest>

using namespace Qt::StringLiterals;

class PdftkSecurityTest : public QObject
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
    return runProgram(u"/usr/bin/qpdf"_s,
                      {u"--show-encryption"_s, u"--password="_s + password, path}, QDir::tempPath())
        .output;
}

// qpdf's lines of what is allowed, of those that pdftk's four words decide.
QStringList allowedIn(const QByteArray &report)
{
    QStringList allowed;
    for (const char *line : {"print high resolution", "extract for any purpose", "modify other",
                             "modify annotations"}) {
        if (report.contains(QByteArray(line) + ": allowed"))
            allowed.append(QString::fromUtf8(line));
    }
    return allowed;
}

// Every process's arguments and environment, as far as this user may read them.
QByteArray everythingInProc(const QString &own)
{
    QByteArray all;
    for (const QString &process : QDir(u"/proc"_s).entryList(QDir::Dirs)) {
        if (process.toInt() > 0 && process != own)
            all += contentOf(u"/proc/"_s + process + u"/cmdline"_s) +
                   contentOf(u"/proc/"_s + process + u"/environ"_s);
    }
    return all;
}

} // namespace

void PdftkSecurityTest::initTestCase()
{
    makeImage(m_folder.filePath(u"x.png"_s));
    QCOMPARE(runBundled(u"convert"_s, {u"x.png"_s, u"in.pdf"_s}, m_folder.path()).status, 0);
}

RunResult PdftkSecurityTest::finish(const QStringList &tail, const Variables &variables) const
{
    return runBundled(u"pdftk"_s, QStringList{u"in.pdf"_s, u"output"_s, u"out.pdf"_s} + tail,
                      m_folder.path(), variables);
}

void PdftkSecurityTest::eachPermissionAlone_data()
{
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<QStringList>("allowed");
    QTest::newRow("none") << QStringList{} << QStringList{};
    QTest::newRow("printing") << QStringList{u"printing"_s}
                              << QStringList{u"print high resolution"_s};
    QTest::newRow("copying") << QStringList{u"copycontents"_s}
                             << QStringList{u"extract for any purpose"_s};
    QTest::newRow("modifying") << QStringList{u"modifycontents"_s}
                               << QStringList{u"modify other"_s};
    QTest::newRow("commenting") << QStringList{u"modifyannotations"_s}
                                << QStringList{u"modify annotations"_s};
    QTest::newRow("all four") << QStringList{u"printing"_s, u"modifycontents"_s, u"copycontents"_s,
                                             u"modifyannotations"_s}
                              << QStringList{u"print high resolution"_s,
                                             u"extract for any purpose"_s, u"modify other"_s,
                                             u"modify annotations"_s};
}

void PdftkSecurityTest::eachPermissionAlone()
{
    QFETCH(QStringList, words);
    QFETCH(QStringList, allowed);
    QStringList tail = {u"owner_pw"_s, u"own"_s, u"user_pw"_s, u"use"_s};
    for (const QString &word : words)
        tail << u"allow"_s << word;
    const RunResult result = finish(tail);
    QCOMPARE(result.errors + result.output, QByteArray());
    QCOMPARE(allowedIn(encryptionOf(m_folder.filePath(u"out.pdf"_s), u"use"_s)), allowed);
    const PdfFacts facts = readPdf(m_folder.filePath(u"out.pdf"_s), "use");
    QCOMPARE(facts.mayPrint, words.contains(u"printing"_s));
    QCOMPARE(facts.mayCopy, words.contains(u"copycontents"_s));
}

void PdftkSecurityTest::passwordsOpenTheResult_data()
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
    QTest::newRow("32 characters") << QString(32, u'o') << QString(32, u'u');
    QTest::newRow("Latin-1 letters")
        << QString::fromUtf8("\xC3\xBC\xC3\x9F") << QString::fromUtf8("\xC3\xA9");
}

void PdftkSecurityTest::passwordsOpenTheResult()
{
    QFETCH(QString, owner);
    QFETCH(QString, user);
    for (const QString &locale : {u"C"_s, u"C.UTF-8"_s}) {
        QStringList tail;
        if (!owner.isEmpty())
            tail << u"owner_pw"_s << owner;
        if (!user.isEmpty())
            tail << u"user_pw"_s << user;
        const RunResult result = finish(tail, {{u"LC_ALL"_s, locale}});
        QCOMPARE(result.errors + result.output, QByteArray());
        const QString path = m_folder.filePath(u"out.pdf"_s);
        QCOMPARE(readPdf(path).needsPassword, !user.isEmpty());
        QVERIFY(readPdf(path).encrypted);
        // The standard security handler takes passwords in Latin-1.
        QVERIFY(!readPdf(path, user.toLatin1()).needsPassword);
        QVERIFY(!readPdf(path, owner.isEmpty() ? user.toLatin1() : owner.toLatin1()).needsPassword);
        QVERIFY(user.isEmpty() || readPdf(path, "wrong").needsPassword);
    }
}

void PdftkSecurityTest::refusedPasswordsFailAsTheToolFails_data()
{
    QTest::addColumn<QStringList>("tail");
    QTest::newRow("a blank splits it") << QStringList{u"owner_pw"_s, u"two"_s, u"words"_s};
    QTest::newRow("letters beyond Latin-1")
        << QStringList{u"user_pw"_s, QString::fromUtf8("\xE6\x97\xA5")};
    QTest::newRow("a tabulator") << QStringList{u"user_pw"_s, u"a\tb"_s};
    QTest::newRow("the same one twice")
        << QStringList{u"owner_pw"_s, u"gleich"_s, u"user_pw"_s, u"gleich"_s};
    QTest::newRow("two owner's passwords")
        << QStringList{u"owner_pw"_s, u"a1"_s, u"owner_pw"_s, u"a2"_s};
}

void PdftkSecurityTest::refusedPasswordsFailAsTheToolFails()
{
    QFETCH(QStringList, tail);
    const RunResult plain = runProgram(u"/usr/bin/pdftk"_s,
                                       QStringList{u"in.pdf"_s, u"output"_s, u"plain.pdf"_s} + tail,
                                       m_folder.path(), {{u"LC_ALL"_s, u"C.UTF-8"_s}});
    writeContent(m_folder.filePath(u"out.pdf"_s), "older");
    const RunResult result = finish(tail);
    QCOMPARE(result.status, plain.status);
    QVERIFY(result.status > 0);
    QCOMPARE(contentOf(m_folder.filePath(u"out.pdf"_s)), QByteArray("older"));
    for (int i = 1; i < tail.size(); i += 2)
        QVERIFY(!result.errors.contains(tail[i].toUtf8()));
}

void PdftkSecurityTest::passwordsWithLineBreaksAreRefused()
{
    writeContent(m_folder.filePath(u"out.pdf"_s), "older");
    const RunResult result = finish({u"user_pw"_s, u"Geheim\nrest"_s});
    QCOMPARE(result.status, 1);
    QCOMPARE(result.errors, QByteArray("pdftk: a password must not hold a line break\n"));
    QCOMPARE(contentOf(m_folder.filePath(u"out.pdf"_s)), QByteArray("older"));
}

// A real tool that would show what it is given.
void PdftkSecurityTest::otherCallsWithPasswordsAreRefused()
{
    const QStringList tool = shellTool(u"echo \"$@\""_s);
    const ToolBundle bundle(tool, tool);
    const QStringList call = {u"in.pdf"_s, u"cat"_s,      u"1"_s,     u"output"_s,
                              u"x.pdf"_s,  u"owner_pw"_s, u"Geheim"_s};
    const RunResult result = runProgram(bundle.tool(u"pdftk"_s), call, m_folder.path());
    QCOMPARE(result.status, 1);
    QCOMPARE(result.output, QByteArray());
    QVERIFY2(result.errors.startsWith("pdftk: passwords are taken only behind"),
             result.errors.constData());
    const RunResult without = runProgram(bundle.tool(u"pdftk"_s), call.mid(0, 5), m_folder.path());
    QCOMPARE(without.output, QByteArray("in.pdf cat 1 output x.pdf\n"));
}

void PdftkSecurityTest::anyResultNameTakesPasswords_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"x.PDF", ".pdf", "-1.pdf", "x", "PROMPT", "x%d.pdf"})
        QTest::newRow(name) << name;
}

void PdftkSecurityTest::anyResultNameTakesPasswords()
{
    QFETCH(QString, name);
    const RunResult result = runBundled(
        u"pdftk"_s,
        {u"in.pdf"_s, u"output"_s, name, u"owner_pw"_s, u"own"_s, u"user_pw"_s, u"use"_s},
        m_folder.path());
    QCOMPARE(result.errors + result.output, QByteArray());
    QVERIFY(!readPdf(m_folder.filePath(name), "use").needsPassword);
    const RunResult again = runBundled(u"pdftk"_s, {name, u"output"_s, name}, m_folder.path());
    QVERIFY2(again.errors.contains("PASSWORD REQUIRED"), again.errors.constData());
}

void PdftkSecurityTest::permissionsWithoutPasswordEncryptNothing()
{
    QCOMPARE(finish({u"allow"_s, u"printing"_s, u"allow"_s, u"copycontents"_s}).status, 0);
    QVERIFY(!readPdf(m_folder.filePath(u"out.pdf"_s)).encrypted);
}

// The process list as `ps` reads it, over and over while the JVM starts and works.
void PdftkSecurityTest::passwordsAreNowhereDuringTheCall()
{
    const std::unique_ptr<QProcess> call =
        startProgram(bundledTool(u"pdftk"_s),
                     {u"in.pdf"_s, u"output"_s, u"out.pdf"_s, u"owner_pw"_s, u"Geheim-Owner"_s,
                      u"user_pw"_s, u"Geheim-User"_s},
                     m_folder.path());
    QVERIFY(call->waitForStarted());
    const QString own = QString::number(QCoreApplication::applicationPid());
    // Ours needs a moment from its start to its first instruction, as any program does.
    QTRY_VERIFY(!contentOf(u"/proc/"_s + QString::number(call->processId()) + u"/cmdline"_s)
                     .contains("Geheim"));
    int samples = 0, withRealTool = 0;
    while (!call->waitForFinished(1)) {
        const QByteArray all = everythingInProc(own);
        QVERIFY(!all.contains("Geheim"));
        withRealTool += all.contains("PROMPT") ? 1 : 0;
        ++samples;
    }
    qInfo() << samples << "samples," << withRealTool << "with the real tool at work";
    QVERIFY(withRealTool > 0);
    QVERIFY(!readPdf(m_folder.filePath(u"out.pdf"_s), "Geheim-User").needsPassword);
}

void PdftkSecurityTest::passwordsAreNowhereAfterTheCall()
{
    const QTemporaryDir logs, temporary;
    const Variables variables = {{u"TESSARO_TOOL_LOG"_s, logs.filePath(u"log"_s)},
                                 {u"TMPDIR"_s, temporary.path()}};
    QCOMPARE(finish({u"owner_pw"_s, u"Geheim-Owner"_s, u"user_pw"_s, u"Geheim-User"_s}, variables)
                 .status,
             0);
    QVERIFY(finish({u"owner_pw"_s, u"Geheim-Owner"_s, u"Geheim-Rest"_s}, variables).status > 0);
    QVERIFY(
        finish({u"user_pw"_s, QString(32, u'x') + u"Geheim-Rest"_s, u"oops"_s}, variables).status >
        0);
    QVERIFY(runBundled(u"pdftk"_s,
                       {u"in.pdf"_s, u"input_pw"_s, u"Geheim-Input"_s, u"cat"_s, u"output"_s,
                        u"no/x.pdf"_s, u"owner_pw"_s, u"Geheim-Owner"_s, u"Geheim-Rest"_s},
                       m_folder.path(), variables)
                .status > 0);
    QVERIFY(contentOf(logs.filePath(u"log"_s)).contains("********"));
    for (const QString &folder : {m_folder.path(), logs.path(), temporary.path()}) {
        QDirIterator files(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString path = files.next();
            QVERIFY2(!contentOf(path).contains("Geheim"), qPrintable(path));
        }
    }
}

QTEST_GUILESS_MAIN(PdftkSecurityTest)
#include "pdftksecurity_test.moc"

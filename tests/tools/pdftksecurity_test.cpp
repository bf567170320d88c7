// Passwords and permissions: they arrive, and other users cannot see the passwords.

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
    void passwordsOpenTheResult_data();
    void passwordsOpenTheResult();
    void passwordsWithLineBreaksAreRefused();
    void permissionsWithoutPasswordEncryptNothing();
    void passwordsAreNowhereDuringTheCall();
    void passwordsAreNowhereAfterTheCall();

private:
    RunResult finish(const QStringList &tail, const Variables &variables = {}) const;

    QTemporaryDir m_folder;
};

namespace {

bool opens(const QString &reader, const QStringList &arguments)
{
    return runProgram(u"/usr/bin/"_s + reader, arguments, QDir::tempPath(),
                      {{u"LC_ALL"_s, u"C.UTF-8"_s}})
               .status == 0;
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

void PdftkSecurityTest::passwordsOpenTheResult_data()
{
    QTest::addColumn<QString>("password");
    const auto row = [](const char *name, const QString &password) {
        QTest::newRow(name) << password;
    };
    row("signs of all kinds", u"a\"b'c$(d)\\e;f -x=1&%s"_s);
    row("a word of the tool", u"allow"_s);
    row("the word for a question", u"PROMPT"_s);
    row("Latin", u"\u00fc\u00df\u00e9"_s);
    row("Greek and Cyrillic", u"\u03bb\u044f\u0416"_s);
    row("Arabic", u"\u0643\u0644\u0645\u0629"_s);
    row("Hebrew", u"\u05e1\u05d9\u05e1\u05de\u05d4"_s);
    row("Hebrew among Latin", u"a\u05d0b"_s);
    row("Devanagari", u"\u0939\u093f\u0928\u094d\u0926\u0940"_s);
    row("Thai", u"\u0e23\u0e2b\u0e31\u0e2a"_s);
    row("Chinese", u"\u5bc6\u7801"_s);
    row("Japanese", u"\u30d1\u30b9\u30ef\u30fc\u30c9"_s);
    row("Korean", u"\ube44\ubc00"_s);
    row("emoji", u"\U0001F511\U0001F512"_s);
    row("as long as passwords get", QString(127, u'x'));
    row("longer than passwords get", QString(200, u'x'));
    row("a letter across the longest length", QString(64, u'\u00fc'));
}

// What three readers' password boxes hand over opens it, as the user's and as the owner's password;
// another one does not.
void PdftkSecurityTest::passwordsOpenTheResult()
{
    QFETCH(QString, password);
    for (const QStringList &tail : {QStringList{u"user_pw"_s, password},
                                    QStringList{u"owner_pw"_s, u"o"_s, u"user_pw"_s, password},
                                    QStringList{u"owner_pw"_s, password, u"user_pw"_s, u"u"_s}}) {
        const RunResult result = finish(tail, {{u"LC_ALL"_s, u"C"_s}});
        QCOMPARE(result.errors + result.output, QByteArray());
        const QString path = m_folder.filePath(u"out.pdf"_s);
        QVERIFY(readPdf(path).needsPassword);
        for (const QString &typed : {password, u"wrong"_s}) {
            const bool right = typed == password;
            // poppler 22.12 crashes at a longer one.
            QCOMPARE(!readPdf(path, typed.toUtf8().left(127)).needsPassword, right);
            QCOMPARE(opens(u"qpdf"_s, {u"--check"_s, u"--password="_s + typed, path}), right);
            QCOMPARE(opens(u"mutool"_s, {u"draw"_s, u"-q"_s, u"-F"_s, u"png"_s, u"-o"_s,
                                         u"/dev/null"_s, u"-p"_s, typed, path}),
                     right);
        }
    }
}

void PdftkSecurityTest::passwordsWithLineBreaksAreRefused()
{
    writeContent(m_folder.filePath(u"out.pdf"_s), "older");
    const RunResult result = finish({u"user_pw"_s, u"Geheim\nrest"_s});
    QCOMPARE(result.status, 1);
    QCOMPARE(result.errors, QByteArray("pdftk: a password must not hold a line break\n"));
    QCOMPARE(contentOf(m_folder.filePath(u"out.pdf"_s)), QByteArray("older"));
}

void PdftkSecurityTest::permissionsWithoutPasswordEncryptNothing()
{
    QCOMPARE(finish({u"allow"_s, u"printing"_s, u"allow"_s, u"copycontents"_s}).status, 0);
    QVERIFY(!readPdf(m_folder.filePath(u"out.pdf"_s)).encrypted);
}

// As `ps` reads it, while a large PDF is finished.
void PdftkSecurityTest::passwordsAreNowhereDuringTheCall()
{
    const QTemporaryDir folder;
    makeLargePdf(folder.filePath(u"in.pdf"_s));
    const std::unique_ptr<QProcess> call =
        startProgram(bundledTool(u"pdftk"_s),
                     {u"in.pdf"_s, u"output"_s, u"out.pdf"_s, u"owner_pw"_s, u"Geheim-Owner"_s,
                      u"user_pw"_s, u"Geheim-User"_s},
                     folder.path());
    QTRY_VERIFY(isWriting(folder.path()));
    const QString process = u"/proc/"_s + QString::number(call->processId());
    const QByteArray arguments = contentOf(process + u"/cmdline"_s);
    QVERIFY(arguments.contains("owner_pw"));
    QVERIFY(!arguments.contains("Geheim"));
    QVERIFY(!contentOf(process + u"/environ"_s).contains("Geheim"));
    call->terminate();
    QVERIFY(call->waitForFinished());
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

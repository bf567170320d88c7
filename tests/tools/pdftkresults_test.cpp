// The PDFs of our pdftk: the same as those of the real one, and everything else kept.

#include "pdffacts.h"
#include "sampledocument.h"
#include "toolbench.h"

#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;

class PdftkResultsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void securityIsThatOfTheRealTool_data();
    void securityIsThatOfTheRealTool();
    void descriptionIsThatOfTheRealTool_data();
    void descriptionIsThatOfTheRealTool();
    void everyCharacterArrives();
    void everythingElseIsKept_data();
    void everythingElseIsKept();
    void encryptionIsAes256();

private:
    QString file(const QString &name) const { return m_folder.filePath(name); }
    RunResult ours(const QStringList &tail, const QString &input = u"in.pdf"_s) const;
    RunResult real(const QStringList &tail) const;
    QByteArray printed(const QString &program, const QStringList &arguments) const;

    QTemporaryDir m_folder;
};

namespace {

const QStringList permissionWords = {u"printing"_s, u"modifycontents"_s, u"copycontents"_s,
                                     u"modifyannotations"_s};

QStringList passwordWords(const QString &owner, const QString &user)
{
    QStringList words;
    if (!owner.isEmpty())
        words << u"owner_pw"_s << owner;
    if (!user.isEmpty())
        words << u"user_pw"_s << user;
    return words;
}

// What is allowed, and what the password is. Revision 6 lets screen readers in always.
QStringList securityLines(const QByteArray &report)
{
    return QString::fromUtf8(report).split(u'\n').filter(
        QRegularExpression(u"^(Supplied|print|modify|extract for any)"_s));
}

QByteArray infoFile(const QByteArrayList &values, const QByteArray &beginning)
{
    const QByteArrayList keys = {"Title", "Subject", "Keywords", "Author"};
    const QByteArray blank = beginning.isEmpty() ? "" : " ";
    QByteArray content;
    for (qsizetype i = 0; i < keys.size(); ++i)
        content +=
            beginning + "InfoKey:" + blank + keys[i] + "\nInfoValue:" + blank + values[i] + "\n";
    return content;
}

} // namespace

RunResult PdftkResultsTest::ours(const QStringList &tail, const QString &input) const
{
    return runBundled(u"pdftk"_s, QStringList{input} + tail, m_folder.path());
}

RunResult PdftkResultsTest::real(const QStringList &tail) const
{
    return runProgram(u"/usr/bin/pdftk"_s, QStringList{u"in.pdf"_s} + tail, m_folder.path(),
                      {{u"LC_ALL"_s, u"C.UTF-8"_s}});
}

QByteArray PdftkResultsTest::printed(const QString &program, const QStringList &arguments) const
{
    return runProgram(u"/usr/bin/"_s + program, arguments, m_folder.path()).output;
}

void PdftkResultsTest::initTestCase()
{
    makeSampleDocument(file(u"in.pdf"_s));
    QCOMPARE(printed(u"qpdf"_s, {u"--show-npages"_s, u"in.pdf"_s}), QByteArray("2\n"));
    qInfo().noquote() << real({u"--version"_s}).output.trimmed().split('\n').first();
}

void PdftkResultsTest::securityIsThatOfTheRealTool_data()
{
    QTest::addColumn<QStringList>("tail");
    QTest::addColumn<QStringList>("passwords");
    const QList<std::pair<QString, QString>> passwords = {
        {u"own"_s, u""_s}, {u""_s, u"use"_s}, {u"own"_s, u"use"_s}, {u"one"_s, u"one"_s}, {}};
    for (const auto &[owner, user] : passwords) {
        for (unsigned allowed = 0; allowed < 16; ++allowed) {
            QStringList tail = passwordWords(owner, user);
            for (qsizetype i = 0; i < permissionWords.size(); ++i) {
                if (allowed >> i & 1)
                    tail << u"allow"_s << permissionWords[i];
            }
            const QString name = tail.join(u' ');
            QTest::addRow("%s", name.isEmpty() ? "nothing" : qPrintable(name))
                << tail << QStringList{u""_s, owner, user, u"other"_s};
        }
    }
}

void PdftkResultsTest::securityIsThatOfTheRealTool()
{
    QFETCH(QStringList, tail);
    QFETCH(QStringList, passwords);
    for (const QString &name : {u"ours.pdf"_s, u"real.pdf"_s})
        QFile::remove(file(name));
    const RunResult result = ours(QStringList{u"output"_s, u"ours.pdf"_s} + tail);
    QCOMPARE(result.status, real(QStringList{u"output"_s, u"real.pdf"_s} + tail).status);
    QCOMPARE(QFile::exists(file(u"ours.pdf"_s)), QFile::exists(file(u"real.pdf"_s)));
    for (const QString &password : passwords) {
        const QStringList show = {u"--show-encryption"_s, u"--password="_s + password};
        const QByteArray by = printed(u"qpdf"_s, show + QStringList{u"ours.pdf"_s});
        const QByteArray against = printed(u"qpdf"_s, show + QStringList{u"real.pdf"_s});
        QCOMPARE(securityLines(by), securityLines(against));
        QCOMPARE(by.isEmpty(), against.isEmpty());
        QCOMPARE(by.contains("not encrypted"), against.contains("not encrypted"));
    }
}

void PdftkResultsTest::descriptionIsThatOfTheRealTool_data()
{
    QTest::addColumn<QByteArrayList>("values");
    QTest::newRow("all four") << QByteArrayList{"title", "subject", "key, words", "author"};
    QTest::newRow("all empty") << QByteArrayList{"", "", "", ""};
    QTest::newRow("one of four") << QByteArrayList{"", "subject", "", ""};
    QTest::newRow("blanks") << QByteArrayList{"  two  ", " ", "\t", "a  b"};
}

// Custom fields, dates, producer and XMP included.
void PdftkResultsTest::descriptionIsThatOfTheRealTool()
{
    QFETCH(QByteArrayList, values);
    writeContent(file(u"info"_s), infoFile(values, ""));
    writeContent(file(u"info-real"_s), infoFile(values, "InfoBegin\n"));
    QCOMPARE(ours({u"update_info"_s, u"info"_s, u"output"_s, u"ours.pdf"_s}).errors, QByteArray());
    QCOMPARE(real({u"update_info"_s, u"info-real"_s, u"output"_s, u"real.pdf"_s}).status, 0);
    for (const QString &part : {u"-custom"_s, u"-meta"_s, u"-box"_s}) {
        const auto facts = [&](const QString &pdf) {
            return QString::fromUtf8(printed(u"pdfinfo"_s, {part, pdf}))
                .split(u'\n')
                .filter(QRegularExpression(u"^(?!File size)"_s));
        };
        QCOMPARE(facts(u"ours.pdf"_s), facts(u"real.pdf"_s));
    }
}

void PdftkResultsTest::everyCharacterArrives()
{
    QList<char32_t> characters;
    for (char32_t code = 0x20; code < 0x110000; code += code < 0x3000 ? 1 : 97) {
        if (code < 0xD800 || code > 0xDFFF)
            characters.append(code);
    }
    const QString title = QString::fromUcs4(characters.constData(), characters.size());
    for (const QString &text : {title, u"\u00fe\u00ffab"_s, u"\u00ef\u00bb\u00bfab"_s}) {
        writeContent(file(u"info"_s), infoFile({text.toUtf8(), "", "", ""}, ""));
        const RunResult result = ours({u"update_info"_s, u"info"_s, u"output"_s, u"o.pdf"_s});
        QCOMPARE(result.errors, QByteArray());
        QCOMPARE(readPdf(file(u"o.pdf"_s)).title, text);
    }
}

void PdftkResultsTest::everythingElseIsKept_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("outlines") << "mutool" << QStringList{u"show"_s, u"FILE"_s, u"outline"_s};
    QTest::newRow("attachments") << "qpdf" << QStringList{u"--show-attachment=a.txt"_s, u"FILE"_s};
    QTest::newRow("form fields") << "mutool" << QStringList{u"show"_s, u"FILE"_s, u"form"_s};
    QTest::newRow("what the pages show") << "pdftoppm" << QStringList{u"-r"_s, u"30"_s, u"FILE"_s};
    QTest::newRow("boxes and rotation")
        << "pdfinfo" << QStringList{u"-box"_s, u"-l"_s, u"2"_s, u"FILE"_s};
}

void PdftkResultsTest::everythingElseIsKept()
{
    QFETCH(QString, program);
    QFETCH(QStringList, arguments);
    const auto report = [&](const QString &pdf) {
        QByteArrayList lines =
            printed(program, QStringList(arguments).replaceInStrings(u"FILE"_s, pdf)).split('\n');
        lines.removeIf([](const QByteArray &line) { return line.startsWith("File size"); });
        return lines;
    };
    QVERIFY(report(u"in.pdf"_s).size() > 0);
    QVERIFY(!report(u"in.pdf"_s).first().isEmpty());
    QCOMPARE(ours({u"output"_s, u"o.pdf"_s}).errors, QByteArray());
    QCOMPARE(report(u"o.pdf"_s), report(u"in.pdf"_s));
}

void PdftkResultsTest::encryptionIsAes256()
{
    printed(u"qpdf"_s, {u"--object-streams=generate"_s, u"in.pdf"_s, u"compact.pdf"_s});
    for (const QString &input : {u"in.pdf"_s, u"compact.pdf"_s}) {
        const bool compact = contentOf(file(input)).contains("/ObjStm");
        QCOMPARE(compact, input == u"compact.pdf"_s);
        QCOMPARE(ours({u"output"_s, u"o.pdf"_s, u"user_pw"_s, u"use"_s}, input).errors,
                 QByteArray());
        const QByteArray content = contentOf(file(u"o.pdf"_s));
        QCOMPARE(content.left(9), QByteArray("%PDF-1.7\n"));
        QCOMPARE(content.contains("/ObjStm"), compact);
        const QByteArray report =
            printed(u"qpdf"_s, {u"--show-encryption"_s, u"--password=use"_s, u"o.pdf"_s});
        QVERIFY2(report.startsWith("R = 6\n"), report.constData());
        QCOMPARE(report.count("AESv3"), 3);
        QVERIFY(!content.contains("chapter") && !content.contains("hello"));
    }
}

QTEST_GUILESS_MAIN(PdftkResultsTest)
#include "pdftkresults_test.moc"

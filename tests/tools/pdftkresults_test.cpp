// The PDFs of our pdftk: the same as those of the real one, everything else kept, and none from an
// input that is damaged or protected.

#include "pdffacts.h"
#include "toolbench.h"

#include <QRegularExpression>
#include <QTest>

#include <sys/resource.h>
#include <sys/wait.h>

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
    void protectedInputsAreRefused_data();
    void protectedInputsAreRefused();
    void damagedInputsAreRefused_data();
    void damagedInputsAreRefused();
    void deepNestingIsASentence();

private:
    QString file(const QString &name) const { return m_folder.filePath(name); }
    RunResult ours(const QStringList &tail, const QString &input = u"in.pdf"_s) const;
    RunResult real(const QStringList &tail) const;
    QByteArray printed(const QString &program, const QStringList &arguments) const;

    QTemporaryDir m_folder;
};

namespace {

// A document with everything that a finished PDF has to keep. qpdf writes its cross-references.
const QByteArray document = R"(%PDF-1.4
1 0 obj
<< /Type /Catalog /Pages 2 0 R /Metadata 5 0 R /Outlines 8 0 R
   /Names << /EmbeddedFiles << /Names [(a.txt) 6 0 R] >> >>
   /AcroForm << /Fields [12 0 R] >> >>
endobj
2 0 obj
<< /Type /Pages /Kids [3 0 R 11 0 R] /Count 2 /MediaBox [0 0 200 300] >>
endobj
3 0 obj
<< /Type /Page /Parent 2 0 R /Contents 4 0 R /CropBox [1 2 100 200] /Annots [12 0 R] >>
endobj
4 0 obj
<< /Length 22 >>
stream
1 0 0 rg 9 9 70 90 re f
endstream
endobj
5 0 obj
<< /Type /Metadata /Subtype /XML /Length 41 >>
stream
<x:xmpmeta xmlns:x="adobe:ns:meta/"/>    
endstream
endobj
6 0 obj
<< /Type /Filespec /F (a.txt) /EF << /F 7 0 R >> >>
endobj
7 0 obj
<< /Type /EmbeddedFile /Length 5 >>
stream
hello
endstream
endobj
8 0 obj
<< /Type /Outlines /First 9 0 R /Last 9 0 R /Count 1 >>
endobj
9 0 obj
<< /Title (chapter) /Parent 8 0 R /Dest [3 0 R /Fit] >>
endobj
10 0 obj
<< /Title (Older) /Author (Writer) /Producer (Maker) /Creator (Program) /Custom (own)
   /CreationDate (D:20200101000000Z) /ModDate (D:20200102000000Z) >>
endobj
11 0 obj
<< /Type /Page /Parent 2 0 R /Rotate 90 >>
endobj
12 0 obj
<< /Type /Annot /Subtype /Widget /FT /Tx /T (field) /V (value) /Rect [10 10 60 20] /P 3 0 R >>
endobj
trailer
<< /Root 1 0 R /Info 10 0 R /Size 13 >>
)";

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
    writeContent(file(u"text"_s), document);
    const QStringList rebuilding = {u"--warning-exit-0"_s, u"--no-warn"_s,
                                    u"--stream-data=preserve"_s};
    QCOMPARE(runProgram(u"/usr/bin/qpdf"_s, rebuilding + QStringList{u"text"_s, u"in.pdf"_s},
                        m_folder.path())
                 .status,
             0);
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

void PdftkResultsTest::protectedInputsAreRefused_data()
{
    QTest::addColumn<QStringList>("encryption");
    QTest::addColumn<bool>("accepted");
    QTest::newRow("a password to open it") << QStringList{u"use"_s, u"own"_s, u"256"_s} << false;
    QTest::newRow("an owner password, and not all is allowed")
        << QStringList{u""_s, u"own"_s, u"256"_s, u"--print=none"_s} << false;
    QTest::newRow("an owner password, and assembling is not allowed")
        << QStringList{u""_s, u"own"_s, u"256"_s, u"--assemble=n"_s} << false;
    QTest::newRow("an owner password, and all is allowed")
        << QStringList{u""_s, u"own"_s, u"256"_s} << true;
    QTest::newRow("no password at all, and not all is allowed")
        << QStringList{u""_s, u""_s, u"256"_s, u"--print=none"_s, u"--allow-insecure"_s} << true;
}

void PdftkResultsTest::protectedInputsAreRefused()
{
    QFETCH(QStringList, encryption);
    QFETCH(bool, accepted);
    QFile::remove(file(u"o.pdf"_s));
    QCOMPARE(runProgram(u"/usr/bin/qpdf"_s,
                        QStringList{u"--encrypt"_s} + encryption +
                            QStringList{u"--"_s, u"in.pdf"_s, u"locked.pdf"_s},
                        m_folder.path())
                 .status,
             0);
    const RunResult result = ours({u"output"_s, u"o.pdf"_s}, u"locked.pdf"_s);
    QCOMPARE(result.status, accepted ? 0 : 1);
    QCOMPARE(result.errors.count('\n'), accepted ? 0 : 1);
    QVERIFY2(accepted || result.errors.contains("locked.pdf"), result.errors.constData());
    QCOMPARE(readPdf(file(u"o.pdf"_s)).pages, accepted ? 2 : -1);
    QVERIFY(!readPdf(file(u"o.pdf"_s)).encrypted);
}

void PdftkResultsTest::damagedInputsAreRefused_data()
{
    QTest::addColumn<QByteArray>("content");
    const QByteArray whole = contentOf(file(u"in.pdf"_s));
    const auto changed = [&whole](const QByteArray &from, const QByteArray &to) {
        if (from.size() != to.size() || whole.count(from) != 1)
            qFatal("cannot damage %s", from.constData());
        return QByteArray(whole).replace(from, to);
    };
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("no PDF") << QByteArray(5000, 'x');
    QTest::newRow("cut in the middle") << whole.left(whole.size() / 2);
    QTest::newRow("cut before the end") << whole.left(whole.size() - 60);
    QTest::newRow("without cross-references") << changed("\nxref\n", "\nxxxx\n");
    QTest::newRow("another number of pages") << changed("/Count 2", "/Count 3");
    QTest::newRow("a stream without an end") << changed("re f\nendstream", "re f\nendstre  ");
    QTest::newRow("a page that is no object")
        << changed("/Rotate 90 /Type /Page >>", "/Rotate 90 /Type /Page   ");
}

void PdftkResultsTest::damagedInputsAreRefused()
{
    QFETCH(QByteArray, content);
    writeContent(file(u"damaged.pdf"_s), content);
    writeContent(file(u"o.pdf"_s), "older");
    const RunResult result = ours({u"output"_s, u"o.pdf"_s}, u"damaged.pdf"_s);
    QCOMPARE(result.status, 1);
    QCOMPARE(result.errors.count('\n'), 1);
    QVERIFY2(result.errors.startsWith("pdftk: cannot read 'damaged.pdf': "),
             result.errors.constData());
    QCOMPARE(contentOf(file(u"o.pdf"_s)), QByteArray("older"));
}

// The length of each stream is another stream: more calls within calls than a stack holds.
void PdftkResultsTest::deepNestingIsASentence()
{
    constexpr int count = 50'000;
    QByteArray content = "%PDF-1.4\n";
    QByteArray table = "xref\n0 " + QByteArray::number(count + 1) + "\n0000000000 65535 f \n";
    int number = 0;
    const auto add = [&](const QByteArray &object) {
        table += QByteArray::number(content.size()).rightJustified(10, '0') + " 00000 n \n";
        content += QByteArray::number(++number) + " 0 obj\n" + object + "\nendobj\n";
    };
    add("<< /Type /Catalog /Pages 2 0 R >>");
    add("<< /Type /Pages /Count 1 /Kids [3 0 R] >>");
    add("<< /Type /Page /Parent 2 0 R /MediaBox [0 0 9 9] /Contents 4 0 R >>");
    while (number < count)
        add("<< /Length " + QByteArray::number(number + 2) + " 0 R >>\nstream\n\nendstream");
    const QByteArray end = "trailer\n<< /Root 1 0 R /Size " + QByteArray::number(count + 1) +
                           " >>\nstartxref\n" + QByteArray::number(content.size()) + "\n%%EOF\n";
    writeContent(file(u"deep.pdf"_s), content + table + end);
    writeContent(file(u"o.pdf"_s), "older");
    const RunResult result = ours({u"output"_s, u"o.pdf"_s}, u"deep.pdf"_s);
    QCOMPARE(result.status, 1);
    QCOMPARE(result.errors.count('\n'), 1);
    QVERIFY2(result.errors.startsWith("pdftk: cannot read 'deep.pdf': "),
             result.errors.constData());
    QCOMPARE(contentOf(file(u"o.pdf"_s)), QByteArray("older"));
}

QTEST_GUILESS_MAIN(PdftkResultsTest)
#include "pdftkresults_test.moc"

// Inputs of our pdftk: the damaged and the protected ones are refused, the merely careless are not.

#include "pdffacts.h"
#include "sampledocument.h"
#include "toolbench.h"

#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;

class PdftkInputsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { makeSampleDocument(file(u"in.pdf"_s)); }
    void protectedInputsAreRefused_data();
    void protectedInputsAreRefused();
    void damagedInputsAreRefused_data();
    void damagedInputsAreRefused();
    void carelessInputsAreFinished_data();
    void carelessInputsAreFinished();
    void deepNestingIsASentence();

private:
    QString file(const QString &name) const { return m_folder.filePath(name); }
    RunResult finish(const QString &input) const
    {
        return runBundled(u"pdftk"_s, {input, u"output"_s, u"o.pdf"_s}, m_folder.path());
    }

    QTemporaryDir m_folder;
};

void PdftkInputsTest::protectedInputsAreRefused_data()
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

void PdftkInputsTest::protectedInputsAreRefused()
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
    const RunResult result = finish(u"locked.pdf"_s);
    QCOMPARE(result.status, accepted ? 0 : 1);
    QCOMPARE(result.errors.count('\n'), accepted ? 0 : 1);
    QVERIFY2(accepted || result.errors.contains("locked.pdf"), result.errors.constData());
    QCOMPARE(readPdf(file(u"o.pdf"_s)).pages, accepted ? 2 : -1);
    QVERIFY(!readPdf(file(u"o.pdf"_s)).encrypted);
}

void PdftkInputsTest::damagedInputsAreRefused_data()
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

void PdftkInputsTest::damagedInputsAreRefused()
{
    QFETCH(QByteArray, content);
    writeContent(file(u"damaged.pdf"_s), content);
    writeContent(file(u"o.pdf"_s), "older");
    const RunResult result = finish(u"damaged.pdf"_s);
    QCOMPARE(result.status, 1);
    QCOMPARE(result.errors.count('\n'), 1);
    QVERIFY2(result.errors.startsWith("pdftk: cannot read 'damaged.pdf': "),
             result.errors.constData());
    QCOMPARE(contentOf(file(u"o.pdf"_s)), QByteArray("older"));
}

void PdftkInputsTest::carelessInputsAreFinished_data()
{
    QTest::addColumn<QByteArray>("content");
    const QByteArray whole = contentOf(file(u"in.pdf"_s));
    const auto changed = [&whole](const QByteArray &from, const QByteArray &to) {
        if (!whole.contains(from))
            qFatal("cannot change %s", from.constData());
        return QByteArray(whole).replace(from, to);
    };
    QTest::newRow("bytes before the header") << "From: a@b\r\n\r\n" + whole;
    QTest::newRow("bytes after the end") << whole + QByteArray(900, '\0');
    QTest::newRow("a blank line before the cross-references") << changed("\nxref\n", "\n\nxref\n");
    QTest::newRow("a page without a type") << changed("/Type /Page >>", "/Kind /Page >>");
    QTest::newRow("a page tree without a type") << changed("/Type /Pages", "/Kind /Pages");
    const QRegularExpressionMatch kids =
        QRegularExpression(u"/Kids \\[ (\\d+ 0 R) .*?\\]"_s).match(QString::fromLatin1(whole));
    const QByteArray first = kids.captured(1).toLatin1();
    const qsizetype length = kids.capturedLength() - 1;
    QTest::newRow("a page twice") << QByteArray(whole).replace(
        kids.capturedStart(), length, ("/Kids [ " + first + ' ' + first).leftJustified(length));
}

// Nothing of them is lost.
void PdftkInputsTest::carelessInputsAreFinished()
{
    QFETCH(QByteArray, content);
    writeContent(file(u"careless.pdf"_s), content);
    const RunResult result = finish(u"careless.pdf"_s);
    QCOMPARE(result.errors, QByteArray());
    QCOMPARE(readPdf(file(u"o.pdf"_s)).pages, 2);
    const QStringList attachments = {u"-list"_s, u"o.pdf"_s};
    QCOMPARE(runProgram(u"/usr/bin/pdfdetach"_s, attachments, m_folder.path()).output,
             QByteArray("1 embedded files\n1: a.txt\n"));
}

// The length of each stream is another stream: more calls within calls than a stack holds.
void PdftkInputsTest::deepNestingIsASentence()
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
    const RunResult result = finish(u"deep.pdf"_s);
    QCOMPARE(result.status, 1);
    QCOMPARE(result.errors.count('\n'), 1);
    QVERIFY2(result.errors.startsWith("pdftk: cannot read 'deep.pdf': "),
             result.errors.constData());
    QCOMPARE(contentOf(file(u"o.pdf"_s)), QByteArray("older"));
}

QTEST_GUILESS_MAIN(PdftkInputsTest)
#include "pdftkinputs_test.moc"

// The four fields, from the info file as the application writes it to the finished PDF.

#include "pdffacts.h"
#include "privatelocales.h"
#include "toolbench.h"

#include <QDir>
#include <QTest>

class PdftkDescription : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void namesTheVersionThatRan();
    void fieldsArriveAsTyped_data();
    void fieldsArriveAsTyped();
    void fieldsArriveInTheLocalesCharset();
    void newerFormIsLeftToTheTool();
    void fileNamesPassInEveryLocale_data();
    void fileNamesPassInEveryLocale();
    void missingInfoFileFails();
    void missingInputFails();
    void otherCallsAreHandedOn();

private:
    RunResult finish(const QStringList &tail, const Variables &variables = {}) const;

    QTemporaryDir m_folder;
    PrivateLocales m_locales;
};

namespace {

QByteArray infoFile(const QByteArrayList &values)
{
    return "InfoKey:Title\nInfoValue:" + values[0] + "\nInfoKey:Subject\nInfoValue:" + values[1] +
           "\nInfoKey:Keywords\nInfoValue:" + values[2] +
           "\nInfoKey:Author\nInfoValue:" + values[3] + "\n";
}

QStringList fieldsOf(const QString &path)
{
    const PdfFacts facts = readPdf(path);
    return {facts.title, facts.subject, facts.keywords, facts.author};
}

const QString umlauts = QString::fromUtf8("M\xC3\xBCller");
const QString emoji = QString::fromUtf8("M\xC3\xBCller \xE2\x82\xAC\xF0\x9F\x98\x80");

} // namespace

void PdftkDescription::initTestCase()
{
    QVERIFY(m_locales.add("en_US", "ISO-8859-1"));
    m_locales.use("C");
    makeImage(m_folder.filePath("x.png"));
    QCOMPARE(runBundled("convert", {"x.png", "in.pdf"}, m_folder.path()).status, 0);
}

RunResult PdftkDescription::finish(const QStringList &tail, const Variables &variables) const
{
    return runBundled("pdftk", QStringList{"in.pdf"} + tail, m_folder.path(), variables);
}

void PdftkDescription::namesTheVersionThatRan()
{
    const RunResult result = runBundled("pdftk", {"--version"}, m_folder.path());
    qInfo().noquote() << result.output.trimmed().split('\n').first();
    QCOMPARE(result.status, 0);
    QVERIFY(result.output.contains("pdftk"));
}

void PdftkDescription::fieldsArriveAsTyped_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QStringList>("fields");
    const QList<std::pair<const char *, QStringList>> texts = {
        {"plain words", {"a title", "a subject", "some, keywords", "an author"}},
        {"beyond ASCII", {emoji, umlauts, emoji, QString::fromUtf8("\xE6\x97\xA5\xE6\x9C\xAC")}},
        {"blanks around", {"  two before", "two after  ", " ", "\ttab\tin\tit"}},
        {"what looks like markup", {"a &amp; b", "<b> \"q\" 'a'", "&#252;", "InfoKey:Title"}},
        {"labels as lines of a value", {"a\nInfoBegin\nInfoKey:x", "b", "c\n", "d\nInfoValue:"}},
        {"empty but one", {"", "", "", "author"}},
        {"a title alone", {"only", "", "", ""}},
        {"backslashes and brackets", {"a\\b", "(open", "closed)", "\\303\\274"}},
    };
    for (const char *locale : {"C", "POSIX", "C.UTF-8", "none_such.UTF-8"}) {
        for (const auto &[name, fields] : texts)
            QTest::addRow("%s under %s", name, locale) << QString(locale) << fields;
    }
}

void PdftkDescription::fieldsArriveAsTyped()
{
    QFETCH(QString, locale);
    QFETCH(QStringList, fields);
    QByteArrayList values;
    for (const QString &field : fields)
        values.append(field.toUtf8());
    writeContent(m_folder.filePath("info"), infoFile(values));
    const RunResult result =
        finish({"update_info", "info", "output", "out.pdf"}, {{"LC_ALL", locale}});
    QCOMPARE(result.errors + result.output, QByteArray());
    QCOMPARE(fieldsOf(m_folder.filePath("out.pdf")), fields);
}

void PdftkDescription::fieldsArriveInTheLocalesCharset()
{
    writeContent(m_folder.filePath("info"),
                 infoFile({umlauts.toLatin1(), "\xA4", " \xE9 ", "plain"}));
    const RunResult result =
        finish({"update_info", "info", "output", "out.pdf"}, {{"LC_ALL", "en_US.ISO-8859-1"}});
    QCOMPARE(result.errors + result.output, QByteArray());
    QCOMPARE(fieldsOf(m_folder.filePath("out.pdf")),
             QStringList(
                 {umlauts, QString::fromLatin1("\xA4"), QString::fromLatin1(" \xE9 "), "plain"}));
}

void PdftkDescription::newerFormIsLeftToTheTool()
{
    writeContent(m_folder.filePath("info"), "InfoBegin\nInfoKey: Title\nInfoValue: M&#252;ller\n"
                                            "InfoBegin\nInfoKey: Author\nInfoValue: a &amp; b\n");
    const RunResult result = finish({"update_info", "info", "output", "out.pdf"});
    QCOMPARE(result.errors + result.output, QByteArray());
    const PdfFacts facts = readPdf(m_folder.filePath("out.pdf"));
    QCOMPARE(facts.title, umlauts);
    QCOMPARE(facts.author, QString("a & b"));
}

void PdftkDescription::fileNamesPassInEveryLocale_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("name");
    for (const char *locale : {"C", "C.UTF-8", "en_US.ISO-8859-1"}) {
        for (const QString &name :
             {emoji, QString("-dash"), QString("50%d [x]"), QString("a:b*c"), QString(" blanks "),
              QString("output"), QString("PROMPT"), QString(umlauts[1]).repeated(100)})
            QTest::addRow("%s under %s", qPrintable(name.left(20)), locale)
                << QString(locale) << name;
    }
}

void PdftkDescription::fileNamesPassInEveryLocale()
{
    QFETCH(QString, locale);
    QFETCH(QString, name);
    const QTemporaryDir folder;
    const QString input = name + ".pdf", output = name + "-1.pdf", info = name + ".txt";
    QVERIFY(QFile::copy(m_folder.filePath("in.pdf"), folder.filePath(input)));
    writeContent(folder.filePath(info), infoFile({"t", "", "", ""}));
    const RunResult result = runBundled("pdftk", {input, "update_info", info, "output", output},
                                        folder.path(), {{"LC_ALL", locale}});
    QCOMPARE(result.errors + result.output, QByteArray());
    QCOMPARE(readPdf(folder.filePath(output)).title, QString("t"));
    QCOMPARE(namesIn(folder.path()).size(), 3);
}

void PdftkDescription::missingInfoFileFails()
{
    const QTemporaryDir folder;
    QVERIFY(QFile::copy(m_folder.filePath("in.pdf"), folder.filePath("in.pdf")));
    writeContent(folder.filePath("out.pdf"), "older");
    const RunResult result = runBundled(
        "pdftk", {"in.pdf", "update_info", "no.txt", "output", "out.pdf"}, folder.path());
    QVERIFY(result.status > 0);
    QVERIFY2(result.errors.contains("no.txt"), result.errors.constData());
    QCOMPARE(contentOf(folder.filePath("out.pdf")), QByteArray("older"));
    QCOMPARE(namesIn(folder.path()), QStringList({"in.pdf", "out.pdf"}));
}

// What the application calls when it cannot write its info file.
void PdftkDescription::missingInputFails()
{
    const QTemporaryDir folder;
    QVERIFY(QFile::copy(m_folder.filePath("in.pdf"), folder.filePath("in.pdf")));
    const RunResult result = runBundled("pdftk", {"in.pdf111", "output", "out.pdf"}, folder.path());
    QCOMPARE(result.status, 1);
    QVERIFY2(result.errors.contains("in.pdf111"), result.errors.constData());
    QCOMPARE(namesIn(folder.path()), QStringList{"in.pdf"});
}

void PdftkDescription::otherCallsAreHandedOn()
{
    QCOMPARE(finish({"cat", "1", "1", "output", "twice.pdf"}).status, 0);
    QCOMPARE(readPdf(m_folder.filePath("twice.pdf")).pages, 2);
    const RunResult dump = finish({"dump_data"});
    QVERIFY2(dump.output.contains("NumberOfPages: 1"), dump.output.constData());
    QVERIFY(finish({"no_such_operation"}).status > 0);
}

QTEST_GUILESS_MAIN(PdftkDescription)
#include "pdftkdescription_test.moc"

// The four fields, from the info file as the application writes it to the finished PDF.

#include "pdffacts.h"
#include "privatelocales.h"
#include "toolbench.h"

#include <QDir>
#include <QTest>

using namespace Qt::StringLiterals;

class PdftkDescriptionTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void fieldsArriveAsTyped_data();
    void fieldsArriveAsTyped();
    void fieldsArriveInTheLocalesCharset();
    void fileNamesPassInEveryLocale_data();
    void fileNamesPassInEveryLocale();
    void missingInfoFileFails();
    void unreadableInfoFileIsNamed();
    void missingInputFails();
    void otherCallsAreRefused_data();
    void otherCallsAreRefused();

private:
    RunResult finish(const QStringList &tail, const Variables &variables = {}) const;
    int refused(const QStringList &call) const;

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

void PdftkDescriptionTest::initTestCase()
{
    QVERIFY(m_locales.add(u"en_US"_s, u"ISO-8859-1"_s));
    m_locales.use("C");
    makeImage(m_folder.filePath(u"x.png"_s));
    QCOMPARE(runBundled(u"convert"_s, {u"x.png"_s, u"in.pdf"_s}, m_folder.path()).status, 0);
}

RunResult PdftkDescriptionTest::finish(const QStringList &tail, const Variables &variables) const
{
    return runBundled(u"pdftk"_s, QStringList{u"in.pdf"_s} + tail, m_folder.path(), variables);
}

// The status of a call that fails with one sentence and leaves everything as it was.
int PdftkDescriptionTest::refused(const QStringList &call) const
{
    writeContent(m_folder.filePath(u"out.pdf"_s), "older");
    const QStringList before = namesIn(m_folder.path());
    const RunResult result = runBundled(u"pdftk"_s, call, m_folder.path());
    const bool unchanged =
        namesIn(m_folder.path()) == before && contentOf(m_folder.filePath(u"out.pdf"_s)) == "older";
    const bool sentence = result.output.isEmpty() && result.errors.count('\n') == 1;
    return unchanged && sentence ? result.status : -1;
}

void PdftkDescriptionTest::fieldsArriveAsTyped_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QStringList>("fields");
    const QList<std::pair<const char *, QStringList>> texts = {
        {"plain words", {u"a title"_s, u"a subject"_s, u"some, keywords"_s, u"an author"_s}},
        {"beyond ASCII", {emoji, umlauts, emoji, QString::fromUtf8("\xE6\x97\xA5\xE6\x9C\xAC")}},
        {"blanks around", {u"  two before"_s, u"two after  "_s, u" "_s, u"\ttab\tin\tit"_s}},
        {"what looks like markup",
         {u"a &amp; b"_s, u"<b> \"q\" 'a'"_s, u"&#252;"_s, u"InfoKey:Title"_s}},
        {"labels as lines of a value",
         {u"a\nInfoBegin\nInfoKey:x"_s, u"b"_s, u"c\n"_s, u"d\nInfoValue:"_s}},
        {"empty but one", {u""_s, u""_s, u""_s, u"author"_s}},
        {"a title alone", {u"only"_s, u""_s, u""_s, u""_s}},
        {"backslashes and brackets", {u"a\\b"_s, u"(open"_s, u"closed)"_s, u"\\303\\274"_s}},
    };
    for (const char *locale : {"C", "POSIX", "C.UTF-8", "none_such.UTF-8"}) {
        for (const auto &[name, fields] : texts)
            QTest::addRow("%s under %s", name, locale) << locale << fields;
    }
}

void PdftkDescriptionTest::fieldsArriveAsTyped()
{
    QFETCH(QString, locale);
    QFETCH(QStringList, fields);
    QByteArrayList values;
    for (const QString &field : fields)
        values.append(field.toUtf8());
    writeContent(m_folder.filePath(u"info"_s), infoFile(values));
    const RunResult result =
        finish({u"update_info"_s, u"info"_s, u"output"_s, u"out.pdf"_s}, {{u"LC_ALL"_s, locale}});
    QCOMPARE(result.errors + result.output, QByteArray());
    QCOMPARE(fieldsOf(m_folder.filePath(u"out.pdf"_s)), fields);
}

void PdftkDescriptionTest::fieldsArriveInTheLocalesCharset()
{
    writeContent(m_folder.filePath(u"info"_s),
                 infoFile({umlauts.toLatin1(), "\xA4", " \xE9 ", "plain"}));
    const RunResult result = finish({u"update_info"_s, u"info"_s, u"output"_s, u"out.pdf"_s},
                                    {{u"LC_ALL"_s, u"en_US.ISO-8859-1"_s}});
    QCOMPARE(result.errors + result.output, QByteArray());
    QCOMPARE(fieldsOf(m_folder.filePath(u"out.pdf"_s)),
             QStringList({umlauts, QString::fromLatin1("\xA4"), QString::fromLatin1(" \xE9 "),
                          u"plain"_s}));
}

void PdftkDescriptionTest::fileNamesPassInEveryLocale_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("name");
    for (const char *locale : {"C", "C.UTF-8", "en_US.ISO-8859-1"}) {
        for (const QString &name : {emoji, u"-dash"_s, u"50%d [x]"_s, u"a:b*c"_s, u" blanks "_s,
                                    u"output"_s, u"PROMPT"_s, QString(umlauts[1]).repeated(100)})
            QTest::addRow("%s under %s", qPrintable(name.left(20)), locale) << locale << name;
    }
}

void PdftkDescriptionTest::fileNamesPassInEveryLocale()
{
    QFETCH(QString, locale);
    QFETCH(QString, name);
    const QTemporaryDir folder;
    const QString input = name + u".pdf"_s, output = name + u"-1.pdf"_s, info = name + u".txt"_s;
    QVERIFY(QFile::copy(m_folder.filePath(u"in.pdf"_s), folder.filePath(input)));
    writeContent(folder.filePath(info), infoFile({"t", "", "", ""}));
    const RunResult result =
        runBundled(u"pdftk"_s, {input, u"update_info"_s, info, u"output"_s, output}, folder.path(),
                   {{u"LC_ALL"_s, locale}});
    QCOMPARE(result.errors + result.output, QByteArray());
    QCOMPARE(readPdf(folder.filePath(output)).title, u"t"_s);
    QCOMPARE(namesIn(folder.path()).size(), 3);
}

void PdftkDescriptionTest::missingInfoFileFails()
{
    const QTemporaryDir folder;
    QVERIFY(QFile::copy(m_folder.filePath(u"in.pdf"_s), folder.filePath(u"in.pdf"_s)));
    writeContent(folder.filePath(u"out.pdf"_s), "older");
    const RunResult result = runBundled(
        u"pdftk"_s, {u"in.pdf"_s, u"update_info"_s, u"no.txt"_s, u"output"_s, u"out.pdf"_s},
        folder.path());
    QVERIFY(result.status > 0);
    QVERIFY2(result.errors.contains("no.txt"), result.errors.constData());
    QCOMPARE(contentOf(folder.filePath(u"out.pdf"_s)), QByteArray("older"));
    QCOMPARE(namesIn(folder.path()), QStringList({u"in.pdf"_s, u"out.pdf"_s}));
}

// The file opens, and its first read fails.
void PdftkDescriptionTest::unreadableInfoFileIsNamed()
{
    const QTemporaryDir folder;
    QVERIFY(QFile::copy(m_folder.filePath(u"in.pdf"_s), folder.filePath(u"in.pdf"_s)));
    const RunResult result = runBundled(
        u"pdftk"_s, {u"in.pdf"_s, u"update_info"_s, u"/proc/self/mem"_s, u"output"_s, u"out.pdf"_s},
        folder.path());
    QCOMPARE(result.status, 1);
    QVERIFY2(result.errors.startsWith("pdftk: cannot read '/proc/self/mem': "),
             result.errors.constData());
    QCOMPARE(namesIn(folder.path()), QStringList{u"in.pdf"_s});
}

void PdftkDescriptionTest::missingInputFails()
{
    QCOMPARE(refused({u"no.pdf"_s, u"output"_s, u"out.pdf"_s}), 1);
}

void PdftkDescriptionTest::otherCallsAreRefused_data()
{
    QTest::addColumn<QStringList>("call");
    QTest::newRow("the application cannot write its info file")
        << QStringList{u"in.pdf111"_s, u"output"_s, u"out.pdf"_s};
    QTest::newRow("another operation")
        << QStringList{u"in.pdf"_s, u"cat"_s, u"1"_s, u"output"_s, u"out.pdf"_s};
    QTest::newRow("a report") << QStringList{u"in.pdf"_s, u"dump_data"_s};
    QTest::newRow("a password with a blank in it")
        << QStringList{u"in.pdf"_s, u"output"_s, u"out.pdf"_s, u"owner_pw"_s, u"two"_s, u"words"_s};
    QTest::newRow("nothing") << QStringList{};
}

void PdftkDescriptionTest::otherCallsAreRefused()
{
    QFETCH(QStringList, call);
    QCOMPARE(refused(call), 2);
}

QTEST_GUILESS_MAIN(PdftkDescriptionTest)
#include "pdftkdescription_test.moc"

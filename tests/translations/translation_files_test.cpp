// The Qt Linguist files as translators leave them: complete, up to date, and true to what the
// program does with a text besides showing it.

#include "translation.h"

#include <QDir>
#include <QLocale>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>
#include <QXmlStreamReader>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

struct Message
{
    QString context;
    QString source;
    QString translation;
    QString state; // "" for a finished one
};

struct TranslationFile
{
    QString language;
    QList<Message> messages;
};

QString languageOf(const QString &fileName)
{
    return fileName.section(u'_', 1).section(u'.', 0, 0);
}

TranslationFile readFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(path));
    TranslationFile result;
    QString context;
    QXmlStreamReader xml(&file);
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == u"TS") {
            result.language = xml.attributes().value(u"language"_s).toString();
        } else if (xml.name() == u"name") {
            context = xml.readElementText();
        } else if (xml.name() == u"source") {
            result.messages.append({context, xml.readElementText(), {}, {}});
        } else if (xml.name() == u"translation") {
            result.messages.last().state = xml.attributes().value(u"type"_s).toString();
            result.messages.last().translation = xml.readElementText();
        }
    }
    if (xml.hasError())
        qFatal("%s: %s", qPrintable(path), qPrintable(xml.errorString()));
    return result;
}

QDir translations()
{
    return QDir(SOURCE_FOLDER u"/translations"_s);
}

QStringList fileNames()
{
    return translations().entryList({u"tessaro_*.ts"_s});
}

QStringList found(const QString &text, const QString &pattern)
{
    QStringList parts;
    auto matches = QRegularExpression(pattern).globalMatch(text);
    while (matches.hasNext())
        parts << matches.next().captured();
    return parts;
}

QStringList sorted(QStringList texts)
{
    texts.sort();
    return texts;
}

/// Blanks at both ends of `text`, with a mark between them.
QString blanksAround(const QString &text)
{
    return found(text, u"^\\s*"_s).join(u""_s) + u'|' + found(text, u"\\s*$"_s).join(u""_s);
}

QStringList accelerators(const QString &text)
{
    return found(text, u"&(?=[^& ])"_s);
}

} // namespace

class TranslationFilesTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void everyFileIsBuiltIn();
    void fileIsNamedAfterItsLanguage_data() { addFiles(); }
    void fileIsNamedAfterItsLanguage();
    void everyTextIsTranslated_data() { addFiles(); }
    void everyTextIsTranslated();
    void textsAreThoseOfTheSources_data() { addFiles(); }
    void textsAreThoseOfTheSources();
    void marksAndBlanksAreKept_data() { addFiles(); }
    void marksAndBlanksAreKept();
    void whatTheToolsOrDialogsReadIsKept_data() { addFiles(); }
    void whatTheToolsOrDialogsReadIsKept();
    void noTwoLanguagesAreTheSame();

private:
    static void addFiles();
    QTemporaryDir updated;
};

void TranslationFilesTest::addFiles()
{
    QTest::addColumn<QString>("name");
    const QStringList names = fileNames();
    for (const QString &name : names)
        QTest::newRow(qPrintable(languageOf(name))) << name;
}

/// Lets lupdate bring copies of the files up to date, old texts kept, so that both show.
void TranslationFilesTest::initTestCase()
{
    QStringList arguments{u"-silent"_s, u"-locations"_s, u"none"_s, u"app"_s,
                          u"core"_s,    u"widgets"_s,    u"-ts"_s};
    const QStringList names = fileNames();
    QVERIFY(names.size() > 1);
    for (const QString &name : names) {
        QVERIFY(QFile::copy(translations().filePath(name), updated.filePath(name)));
        arguments << updated.filePath(name);
    }
    QProcess lupdate;
    lupdate.setWorkingDirectory(QStringLiteral(SOURCE_FOLDER));
    lupdate.start(QStringLiteral(LUPDATE), arguments);
    QVERIFY(lupdate.waitForFinished(120000));
    QCOMPARE(lupdate.exitCode(), 0);
}

void TranslationFilesTest::everyFileIsBuiltIn()
{
    QStringList languages;
    const QStringList names = fileNames();
    for (const QString &name : names)
        languages << languageOf(name);
    QCOMPARE(sorted(translatedLanguages()), sorted(languages));
}

void TranslationFilesTest::fileIsNamedAfterItsLanguage()
{
    QFETCH(QString, name);
    const QString language = languageOf(name);
    QCOMPARE(readFile(translations().filePath(name)).language, language);
    QVERIFY(QLocale(language).language() != QLocale::C);
    QVERIFY(QLocale(language).name().startsWith(language));
}

void TranslationFilesTest::everyTextIsTranslated()
{
    QFETCH(QString, name);
    const TranslationFile file = readFile(translations().filePath(name));
    QVERIFY(file.messages.size() > 100);
    for (const Message &message : file.messages) {
        QVERIFY2(message.state.isEmpty(), qPrintable(message.source + u" is "_s + message.state));
        QVERIFY2(!message.translation.isEmpty(), qPrintable(message.source));
    }
}

void TranslationFilesTest::textsAreThoseOfTheSources()
{
    QFETCH(QString, name);
    const auto textsIn = [](const QString &path) {
        QStringList texts;
        const TranslationFile file = readFile(path);
        for (const Message &message : file.messages)
            texts << message.context + u": "_s + message.source + u" ("_s + message.state + u')';
        return sorted(texts);
    };
    QCOMPARE(textsIn(translations().filePath(name)), textsIn(updated.filePath(name)));
}

void TranslationFilesTest::marksAndBlanksAreKept()
{
    QFETCH(QString, name);
    const TranslationFile file = readFile(translations().filePath(name));
    for (const auto &[context, source, translation, state] : file.messages) {
        const QString marks = u"%L?[0-9n]+"_s;
        const QByteArray where = source.toUtf8();
        QVERIFY2(sorted(found(translation, marks)) == sorted(found(source, marks)), where);
        QVERIFY2(accelerators(translation).size() == accelerators(source).size(), where);
        QVERIFY2(blanksAround(translation) == blanksAround(source), where);
    }
}

/// Angles go into the command line as shown, patterns choose files, sizes are a promise.
void TranslationFilesTest::whatTheToolsOrDialogsReadIsKept()
{
    QFETCH(QString, name);
    const TranslationFile file = readFile(translations().filePath(name));
    int seen = 0;
    for (const auto &[context, source, translation, state] : file.messages) {
        const bool isAngle = !found(source, u"^[0-9]+$"_s).isEmpty();
        if (isAngle)
            QCOMPARE(translation, source);
        const bool isFilter = source.contains(u";;"_s);
        if (isFilter) {
            QCOMPARE(found(translation, u"\\([^)]*\\)"_s), found(source, u"\\([^)]*\\)"_s));
            QCOMPARE(translation.count(u";;"_s), source.count(u";;"_s));
        }
        const bool isPageSize = source.endsWith(u"mm)"_s);
        if (isPageSize)
            QCOMPARE(found(translation, u"[0-9]"_s).join(u""_s),
                     found(source, u"[0-9]"_s).join(u""_s));
        seen += isAngle + isFilter + isPageSize;
    }
    QCOMPARE(seen, 4 + 1 + 19);
}

void TranslationFilesTest::noTwoLanguagesAreTheSame()
{
    QHash<QStringList, QString> languages;
    const QStringList names = fileNames();
    for (const QString &name : names) {
        QStringList english, texts;
        const TranslationFile file = readFile(translations().filePath(name));
        for (const Message &message : file.messages) {
            english << message.source;
            texts << message.translation;
        }
        languages.insert(english, u"English"_s);
        QVERIFY2(!languages.contains(texts), qPrintable(name + u" is "_s + languages.value(texts)));
        languages.insert(texts, name);
    }
}

QTEST_GUILESS_MAIN(TranslationFilesTest)
#include "translation_files_test.moc"

// What is typed arrives in the PDF in every charset of a locale: window and finishing tool agree on
// the bytes between them.

#include "charsets.h"
#include "files.h"
#include "pdffacts.h"
#include "privatelocales.h"
#include "startup.h"
#include "windowdriver.h"

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr int runTimeout = 120000; // ms

} // namespace

class CharsetE2eTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void typedTextArrives_data();
    void typedTextArrives();

private:
    PrivateLocales m_locales;
};

void CharsetE2eTest::initTestCase()
{
    const auto samples = charsetSamples();
    for (const CharsetSample &sample : samples)
        QVERIFY2(m_locales.add(u"en_US"_s, QLatin1String(sample.charset)), sample.charset);
}

void CharsetE2eTest::typedTextArrives_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("bytes");
    const auto samples = charsetSamples();
    for (const auto &[charset, text, bytes] : samples)
        QTest::newRow(charset) << text << bytes;
}

void CharsetE2eTest::typedTextArrives()
{
    QFETCH(QString, text);
    QFETCH(QByteArray, bytes);
    m_locales.use("en_US." + QByteArray(QTest::currentDataTag()));
    const QTemporaryDir folder;
    const QString image = makeImage(folder.filePath(u"a.png"_s));
    const auto password = u"caf\u00e9"_s; // Qt hands it over in UTF-8 in each locale

    WindowDriver driver;
    QVERIFY(driver.show());
    QVERIFY(driver.type("outputfolderEdit", folder.path()));
    QVERIFY(driver.click("pushButton_PDFSetting"));
    QVERIFY(driver.type("lineEdit_title", text));
    QVERIFY(driver.type("lineEdit_subject", u"  "_s + text + u" & "_s));
    QVERIFY(driver.click("pushButton_Security"));
    QVERIFY(driver.type("lineEdit_userpwd", password));
    QVERIFY(driver.click("pushButton_Inout"));
    QVERIFY(driver.openFiles({image}));
    QVERIFY(driver.convert(runTimeout));

    QVERIFY(contentOf(u"pdfa.txt"_s).startsWith("InfoKey:Title\nInfoValue:" + bytes + "\n"));
    const PdfFacts facts = readPdf(folder.filePath(u"a.pdf"_s), password.toUtf8());
    QCOMPARE(facts.title, text);
    QCOMPARE(facts.subject, u"  "_s + text + u" & "_s);
}

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    setUpApplication(application);
    CharsetE2eTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "charset_e2e_test.moc"

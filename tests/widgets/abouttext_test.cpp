#include "deployment.h"
#include "ui_aboutdialog.h"

#include <QTest>
#include <QTextBlock>
#include <QTextDocument>
#include <QUrl>

namespace {

QString linkInLine(const QTextDocument &document, int line)
{
    return document.findBlockByNumber(line).begin().fragment().charFormat().anchorHref();
}

} // namespace

class TestAboutText : public QObject
{
    Q_OBJECT

private slots:
    void keepsWhiteSpaceAsTyped();
    void escapesItsAddresses();
    void linksAnAddressWithoutASchemeToTheWeb();
};

void TestAboutText::keepsWhiteSpaceAsTyped()
{
    QTextDocument document;

    document.setHtml(aboutText(QStringLiteral("a  b"), QString()));

    QCOMPARE(document.findBlockByNumber(2).text(), "a  b");
}

void TestAboutText::escapesItsAddresses()
{
    const QString web = QString::fromUtf8(deployment::webAddress);
    const QString support = QString::fromUtf8(deployment::supportAddress);
    QCOMPARE(web, R"(https://example.org/?a="b"&c=<d>;e=\n%1${f})");
    QCOMPARE(support, R"("A; B" <help\me@example.org>)");
    QTextDocument document;

    document.setHtml(aboutText(web, support));

    QCOMPARE(document.toPlainText().split('\n'), QStringList({"Tessaro Image to PDF Converter v2.0",
                                                              "", web, "", "mailto:" + support}));
    QCOMPARE(QUrl(linkInLine(document, 2)), QUrl(web));
    QCOMPARE(linkInLine(document, 4), "mailto:" + support);
}

void TestAboutText::linksAnAddressWithoutASchemeToTheWeb()
{
    QTextDocument document;

    document.setHtml(aboutText(QStringLiteral("www.example.org"), QString()));

    QCOMPARE(document.findBlockByNumber(2).text(), "www.example.org");
    QCOMPARE(linkInLine(document, 2), "http://www.example.org");
}

QTEST_MAIN(TestAboutText)
#include "abouttext_test.moc"

// The about box's rich text stays valid with any characters in the two configured addresses.

#include "deployment.h"
#include "ui_aboutdialog.h"

#include <QTest>
#include <QTextBlock>
#include <QTextDocument>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

QString linkInLine(const QTextDocument &document, int line)
{
    return document.findBlockByNumber(line).begin().fragment().charFormat().anchorHref();
}

} // namespace

class AboutTextTest : public QObject
{
    Q_OBJECT

private slots:
    void keepsWhiteSpaceAsTyped();
    void escapesItsAddresses();
    void linksAnAddressWithoutASchemeToTheWeb();
};

void AboutTextTest::keepsWhiteSpaceAsTyped()
{
    QTextDocument document;

    document.setHtml(aboutText(u"a  b"_s, QString()));

    QCOMPARE(document.findBlockByNumber(2).text(), u"a  b"_s);
}

void AboutTextTest::escapesItsAddresses()
{
    const QString web = QString::fromUtf8(deployment::webAddress);
    const QString support = QString::fromUtf8(deployment::supportAddress);
    QCOMPARE(web, uR"(https://example.org/?a="b"&c=<d>;e=\n%1${f})"_s);
    QCOMPARE(support, uR"("A; B" <help\me@example.org>)"_s);
    QTextDocument document;

    document.setHtml(aboutText(web, support));

    QCOMPARE(document.toPlainText().split(QLatin1Char('\n')),
             QStringList({u"Tessaro Image to PDF Converter v2.0"_s, u""_s, web, u""_s,
                          u"mailto:"_s + support}));
    QCOMPARE(QUrl(linkInLine(document, 2)), QUrl(web));
    QCOMPARE(linkInLine(document, 4), u"mailto:"_s + support);
}

void AboutTextTest::linksAnAddressWithoutASchemeToTheWeb()
{
    QTextDocument document;

    document.setHtml(aboutText(u"www.example.org"_s, QString()));

    QCOMPARE(document.findBlockByNumber(2).text(), u"www.example.org"_s);
    QCOMPARE(linkInLine(document, 2), u"http://www.example.org"_s);
}

QTEST_MAIN(AboutTextTest)
#include "abouttext_test.moc"

#include "ui_aboutdialog.h"

#include "deployment.h"
#include "pictures.h"

#include <QCoreApplication>
#include <QDialog>
#include <QTextBrowser>
#include <QUrl>

namespace {

constexpr char textTemplate[] =
    R"(<html><head><style type="text/css">p { white-space: pre-wrap; }</style></head>)"
    R"(<body style="font-family:'Lucida Grande'; font-size:13pt;">%1</body></html>)";

constexpr char paragraphTemplate[] =
    R"(<p style="margin:0px; font-family:'MS Shell Dlg 2'; font-size:12pt;%1">%2</p>)";

constexpr char linkTemplate[] =
    R"(<a href="%1"><span style="text-decoration:underline; color:#0000ff;">%2</span></a>)";

QString paragraph(const QString &content)
{
    // Without this mark the rich text reader drops an empty paragraph.
    const QString emptyMark =
        content.isEmpty() ? QStringLiteral(" -qt-paragraph-type:empty;") : QString();
    return QString::fromLatin1(paragraphTemplate).arg(emptyMark, content);
}

QString link(const QString &target, const QString &visibleText)
{
    return QString::fromLatin1(linkTemplate)
        .arg(target.toHtmlEscaped(), visibleText.toHtmlEscaped());
}

} // namespace

QString aboutText(const QString &webAddress, const QString &supportAddress)
{
    // The product's edition; --version prints the release.
    const QString version =
        QCoreApplication::translate("AboutDialog", "Tessaro Image to PDF Converter v2.0");
    // The text browser would open a target without a scheme itself and blank the box.
    const QString webTarget = QUrl::fromUserInput(webAddress).toString(QUrl::FullyEncoded);
    const QString mailTarget = QStringLiteral("mailto:") + supportAddress;
    const QString paragraphs = paragraph(version.toHtmlEscaped()) + paragraph(QString()) +
                               paragraph(link(webTarget, webAddress)) + paragraph(QString()) +
                               paragraph(link(mailTarget, mailTarget));
    return QString::fromLatin1(textTemplate).arg(paragraphs);
}

void Ui_AboutDialog::setupUi(QDialog *AboutDialog)
{
    if (AboutDialog->objectName().isEmpty())
        AboutDialog->setObjectName(QStringLiteral("AboutDialog"));
    AboutDialog->resize(320, 109);
    AboutDialog->setWindowIcon(iconFromFile(QStringLiteral(":/iconoption/icons/picturelog.ico")));
    textBrowser = new QTextBrowser(AboutDialog);
    textBrowser->setObjectName(QStringLiteral("textBrowser"));
    textBrowser->setGeometry(QRect(10, 10, 301, 91));
    textBrowser->setOpenExternalLinks(true);

    retranslateUi(AboutDialog);

    QMetaObject::connectSlotsByName(AboutDialog);
}

void Ui_AboutDialog::retranslateUi(QDialog *AboutDialog)
{
    AboutDialog->setWindowTitle(QCoreApplication::translate("AboutDialog", "About"));
    textBrowser->setHtml(aboutText(QString::fromUtf8(deployment::webAddress),
                                   QString::fromUtf8(deployment::supportAddress)));
}

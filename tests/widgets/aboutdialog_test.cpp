// The about box: its place and text, its two links, and what opens them.

#include "aboutdialog.h"

#include "deployment.h"
#include "ui_aboutdialog.h"

#include <QDesktopServices>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextLayout>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

const QString webAddress = QString::fromUtf8(deployment::webAddress);
const QString mailTarget = u"mailto:"_s + QString::fromUtf8(deployment::supportAddress);

QTextBrowser *textOf(const AboutDialog &dialog)
{
    return dialog.findChild<QTextBrowser *>(u"textBrowser"_s);
}

QTextCharFormat formatOfLine(const QTextDocument &document, int line)
{
    return document.findBlockByNumber(line).begin().fragment().charFormat();
}

/// A point of the viewport on the link in `line`.
QPoint pointOnLine(QTextBrowser &browser, int line)
{
    QTextCursor cursor(browser.document()->findBlockByNumber(line));
    cursor.movePosition(QTextCursor::Right, QTextCursor::MoveAnchor, 5);
    return browser.cursorRect(cursor).center();
}

} // namespace

/// Stands in for the desktop: notes the addresses that are to be opened.
class Desktop : public QObject
{
    Q_OBJECT

public:
    explicit Desktop(const QStringList &schemes)
        : handled(schemes)
    {
        for (const QString &scheme : handled)
            QDesktopServices::setUrlHandler(scheme, this, "open");
    }
    ~Desktop() override
    {
        for (const QString &scheme : handled)
            QDesktopServices::unsetUrlHandler(scheme);
    }

    QList<QUrl> opened;

public slots:
    void open(const QUrl &url) { opened.append(url); }

private:
    const QStringList handled;
};

class AboutDialogTest : public QObject
{
    Q_OBJECT

private slots:
    void isAFixedWindow();
    void placesItsText();
    void saysVersionAndAddresses();
    void setsItsParagraphsInTheNamedFonts_data();
    void setsItsParagraphsInTheNamedFonts();
    void underlinesItsLinksInBlue_data();
    void underlinesItsLinksInBlue();
    void showsAllItsLinesAtOnce();
    void isDarkOnLightOnADarkDesktop();
    void opensALinkOutsideAndStaysOpen_data();
    void opensALinkOutsideAndStaysOpen();
    void keepsItsScrollPositionBetweenOpenings();
    void keepsANameItHas();
};

void AboutDialogTest::isAFixedWindow()
{
    const AboutDialog dialog;

    QCOMPARE(dialog.objectName(), u"AboutDialog"_s);
    QCOMPARE(dialog.windowTitle(), u"About"_s);
    QCOMPARE(dialog.size(), QSize(320, 109));
    QCOMPARE(dialog.minimumSize(), QSize(320, 109));
    QCOMPARE(dialog.maximumSize(), QSize(320, 109));
    const QIcon icon(u":/iconoption/icons/picturelog.ico"_s);
    QCOMPARE(dialog.windowIcon().pixmap(16).toImage(), icon.pixmap(16).toImage());
    QVERIFY(!icon.pixmap(16).isNull());
}

void AboutDialogTest::placesItsText()
{
    const AboutDialog dialog;

    QCOMPARE(textOf(dialog)->geometry(), QRect(10, 10, 301, 91));
    QVERIFY(textOf(dialog)->openExternalLinks());
    QVERIFY(textOf(dialog)->isReadOnly());
}

void AboutDialogTest::saysVersionAndAddresses()
{
    const AboutDialog dialog;

    QCOMPARE(textOf(dialog)->toPlainText().split(QLatin1Char('\n')),
             QStringList(
                 {u"Tessaro Image to PDF Converter v2.0"_s, u""_s, webAddress, u""_s, mailTarget}));
}

void AboutDialogTest::setsItsParagraphsInTheNamedFonts_data()
{
    QTest::addColumn<int>("line");
    QTest::newRow("the version") << 0;
    QTest::newRow("the web address") << 2;
    QTest::newRow("the support address") << 4;
}

void AboutDialogTest::setsItsParagraphsInTheNamedFonts()
{
    QFETCH(const int, line);
    const AboutDialog dialog;
    const QTextDocument &document = *textOf(dialog)->document();

    const QTextCharFormat format = formatOfLine(document, line);
    QCOMPARE(format.fontFamilies().toStringList(), QStringList(u"MS Shell Dlg 2"_s));
    QCOMPARE(format.fontPointSize(), 12.0);
    const QTextBlockFormat block = document.findBlockByNumber(line).blockFormat();
    QCOMPARE(
        QMarginsF(block.leftMargin(), block.topMargin(), block.rightMargin(), block.bottomMargin()),
        QMarginsF());
}

void AboutDialogTest::underlinesItsLinksInBlue_data()
{
    QTest::addColumn<int>("line");
    QTest::addColumn<QString>("target");
    QTest::newRow("the web address") << 2 << webAddress;
    QTest::newRow("the support address") << 4 << mailTarget;
}

void AboutDialogTest::underlinesItsLinksInBlue()
{
    QFETCH(const int, line);
    QFETCH(const QString, target);
    const AboutDialog dialog;

    const QTextCharFormat format = formatOfLine(*textOf(dialog)->document(), line);
    QCOMPARE(format.anchorHref(), target);
    QCOMPARE(format.foreground().color(), QColor(0x00, 0x00, 0xff));
    QVERIFY(format.fontUnderline());
}

void AboutDialogTest::showsAllItsLinesAtOnce()
{
    AboutDialog dialog;
    dialog.show();

    QCOMPARE(textOf(dialog)->verticalScrollBar()->maximum(), 0);
    QCOMPARE(textOf(dialog)->horizontalScrollBar()->maximum(), 0);
    for (int line = 0; line < 5; ++line)
        QVERIFY(textOf(dialog)->document()->findBlockByNumber(line).layout()->lineCount() <= 1);
}

void AboutDialogTest::isDarkOnLightOnADarkDesktop()
{
    const QPalette before = QGuiApplication::palette();
    QGuiApplication::setPalette(QPalette(QColor(40, 40, 40)));
    {
        AboutDialog dialog;
        dialog.show();
        const QImage text = textOf(dialog)->viewport()->grab().toImage();
        QCOMPARE(text.pixelColor(text.rect().bottomRight()), QColor(Qt::white));
        QCOMPARE(textOf(dialog)->palette().color(QPalette::Text), QColor(Qt::black));
    }
    QGuiApplication::setPalette(before);
}

void AboutDialogTest::opensALinkOutsideAndStaysOpen_data()
{
    underlinesItsLinksInBlue_data();
}

void AboutDialogTest::opensALinkOutsideAndStaysOpen()
{
    QFETCH(const int, line);
    QFETCH(const QString, target);
    const Desktop desktop({QUrl(target).scheme()});
    AboutDialog dialog;
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    const QString before = textOf(dialog)->toPlainText();

    QTest::mouseClick(textOf(dialog)->viewport(), Qt::LeftButton, {},
                      pointOnLine(*textOf(dialog), line));

    QCOMPARE(desktop.opened, QList<QUrl>({QUrl(target)}));
    QVERIFY(dialog.isVisible());
    QCOMPARE(textOf(dialog)->toPlainText(), before);
}

void AboutDialogTest::keepsItsScrollPositionBetweenOpenings()
{
    AboutDialog dialog;
    textOf(dialog)->append(u"more\n"_s.repeated(30));
    dialog.show();
    QScrollBar &bar = *textOf(dialog)->verticalScrollBar();
    bar.setValue(50);

    QTest::keyClick(&dialog, Qt::Key_Escape);
    QVERIFY(!dialog.isVisible());
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));

    QCOMPARE(bar.value(), 50);
}

void AboutDialogTest::keepsANameItHas()
{
    QDialog dialog;
    dialog.setObjectName("mine");

    Ui_AboutDialog().setupUi(&dialog);

    QCOMPARE(dialog.objectName(), u"mine"_s);
}

QTEST_MAIN(AboutDialogTest)
#include "aboutdialog_test.moc"

// Rows whose texts are cut off: what shows of them, and their tips.

#include "filetip.h"
#include "windowfixture.h"

#include <QHelpEvent>
#include <QTableWidget>
#include <QTextDocumentFragment>
#include <QToolTip>

using namespace Qt::StringLiterals;

class RowTipsTest : public QObject
{
    Q_OBJECT

private slots:
    void ofALongPathItsEndShows();
    void tipOfACutOffRowIsItsFile_data();
    void tipOfACutOffRowIsItsFile();
    void tipWritesTheSizeAsTheUserDoes();
};

void RowTipsTest::ofALongPathItsEndShows()
{
    WindowFixture fixture;
    const auto shown = [&fixture](const QString &path) {
        fixture.press("removeallButton");
        fixture.drop({QUrl::fromLocalFile(path)});
        auto *table = fixture.find<QTableWidget>("inputfiletableWidget");
        return table->viewport()->grab(table->visualItemRect(table->item(0, 0))).toImage();
    };
    const QString folders = QString(60, u'f');
    const QImage cell = shown(u"/a/"_s + folders + u"/1.jpg"_s);
    QCOMPARE(shown(u"/b/"_s + folders + u"/1.jpg"_s), cell);
    QVERIFY(shown(u"/a/"_s + folders + u"/2.jpg"_s) != cell);
}

void RowTipsTest::tipOfACutOffRowIsItsFile_data()
{
    QTest::addColumn<QString>("path"); // "" for a file of 16,500 bytes
    QTest::addColumn<QString>("tip");  // "" for that of the list
    const QString folders = u"/n/"_s + QString(60, u'f');
    QTest::newRow("a row that shows whole") << u"/n/a.png"_s << QString();
    QTest::newRow("a file that does not exist") << folders + u"/a.png"_s << folders + u"/a.png"_s;
    QTest::newRow("a name that looks like HTML")
        << folders + u"/<b>a</b>&amp;.png"_s << folders + u"/<b>a</b>&amp;.png"_s;
    QTest::newRow("a file and its size") << QString() << u"\n16.5 kB"_s;
}

void RowTipsTest::tipOfACutOffRowIsItsFile()
{
    QFETCH(QString, path);
    QFETCH(QString, tip);
    WindowFixture fixture;
    if (path.isEmpty()) {
        path = fixture.makeFile(QString(60, u'a'), QByteArray(16500, 'x'));
        tip = path + tip;
    }
    fixture.drop({QUrl::fromLocalFile(path)});
    auto *table = fixture.find<QTableWidget>("inputfiletableWidget");
    const QPoint place = table->visualItemRect(table->item(0, 0)).center();
    QHelpEvent event(QEvent::ToolTip, place, table->viewport()->mapToGlobal(place));
    QToolTip::hideText();
    QCoreApplication::sendEvent(table->viewport(), &event);
    const auto plain = [](const QString &html) {
        return QTextDocumentFragment::fromHtml(html).toPlainText().remove(QChar(0x200e));
    };
    if (tip.isEmpty())
        QCOMPARE(QToolTip::text(), table->toolTip());
    else
        QCOMPARE(plain(QToolTip::text()), tip);
    QToolTip::hideText();
}

void RowTipsTest::tipWritesTheSizeAsTheUserDoes()
{
    const WindowFixture fixture;
    const QString path = fixture.makeFile(u"a"_s, QByteArray(16500, 'x'));
    QVERIFY(fileTip(path, QLocale(QLocale::German)).contains(u"16,5 kB"_s));
}

QTEST_MAIN(RowTipsTest)
#include "rowtips_test.moc"

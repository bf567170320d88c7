// The window in a language that runs from right to left: every control stands where a mirror shows
// the English one.

#include "translation.h"
#include "windowfixture.h"

#include <QApplication>
#include <QFrame>
#include <QHeaderView>
#include <QImage>
#include <QLineEdit>
#include <QPainter>
#include <QStackedWidget>
#include <QStyledItemDelegate>
#include <QTableWidget>

using namespace Qt::StringLiterals;

namespace {

/// Places of the controls in the window, by name.
QMap<QString, QRect> placesOf(WindowFixture &fixture)
{
    QMap<QString, QRect> places;
    auto *pages = fixture.find<QStackedWidget>("stackedWidget_dialog");
    for (int page = 0; page < pages->count(); ++page) {
        pages->setCurrentIndex(page); // lays the page out
        const auto widgets = pages->widget(page)->findChildren<QWidget *>();
        for (const QWidget *widget : widgets) {
            if (widget->objectName().isEmpty() || widget->objectName().startsWith(u"qt_"_s))
                continue;
            const QPoint corner = widget->mapTo(pages->widget(page), QPoint());
            places.insert(widget->objectName(), QRect(corner, widget->size()));
        }
    }
    for (const char *name : {"frame_8", "progressBar", "stackedWidget_dialog"})
        places.insert(QString::fromLatin1(name), fixture.find<QWidget>(name)->geometry());
    return places;
}

/// Leaves out what has another size as its text has another length.
bool isLaidOut(const QString &name)
{
    return name == u"openfileButton"_s || name == u"removeButton"_s || name == u"removeallButton"_s;
}

QPixmap picture(QSize size)
{
    QPixmap result(size);
    result.fill(Qt::red);
    return result;
}

} // namespace

class RightToLeftTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { installTranslators(*qApp, {}); }
    void controlsAreMirrored();
    void optionDialogIsMirrored();
    void runButtonKeepsItsPlaceWhenSetAgain();
    void previewStaysAtItsLabelsEdge();
    void fileButtonsStandInReadingOrder();
    void pathsAndPasswordsRunFromLeftToRight();
    void pathInTheListIsPaintedFromLeftToRight();
};

void RightToLeftTest::controlsAreMirrored()
{
    installTranslators(*qApp, u"de"_s);
    WindowFixture german;
    const auto expected = placesOf(german);
    installTranslators(*qApp, u"he"_s);
    WindowFixture hebrew;
    const auto places = placesOf(hebrew);
    QCOMPARE(places.keys(), expected.keys());
    const int pageWidth = german.find<QWidget>("stackedWidget_dialog")->width();
    for (auto place = places.begin(); place != places.end(); ++place) {
        if (isLaidOut(place.key()))
            continue;
        const QRect original = expected.value(place.key());
        const bool isOnAPage = place.key() != u"frame_8"_s && place.key() != u"progressBar"_s &&
                               place.key() != u"stackedWidget_dialog"_s;
        const int room = isOnAPage ? pageWidth : german.window.width();
        QRect mirrored = original;
        mirrored.moveLeft(room - original.x() - original.width());
        QVERIFY2(place.value() == mirrored, qPrintable(place.key()));
    }
}

void RightToLeftTest::optionDialogIsMirrored()
{
    installTranslators(*qApp, u"ar"_s);
    WindowFixture fixture;
    const auto &dialog = ProcessProbe::optionDialog(fixture.window);
    QCOMPARE(dialog.findChild<QPushButton *>(u"okButton"_s)->geometry(), QRect(10, 310, 75, 23));
    QCOMPARE(dialog.findChild<QPushButton *>(u"resetallButton"_s)->x(), 164);
}

void RightToLeftTest::runButtonKeepsItsPlaceWhenSetAgain()
{
    installTranslators(*qApp, u"ar"_s);
    WindowFixture fixture;
    const auto *button = fixture.find<QPushButton>("runButton");
    QCOMPARE(button->geometry(), QRect(571 - 444 - 71, 280, 71, 72));
    fixture.window.setabout();
    QCOMPARE(button->geometry(), QRect(571 - 444 - 71, 280, 71, 72));
}

void RightToLeftTest::previewStaysAtItsLabelsEdge()
{
    installTranslators(*qApp, u"ar"_s);
    WindowFixture fixture;
    const auto *frame = fixture.find<QFrame>("previewframe");
    const int edge = frame->geometry().right();
    QCOMPARE(edge, fixture.find<QWidget>("label_2")->geometry().right());
    const QString path = fixture.inputPath(u"tall.png"_s);
    QVERIFY(picture({10, 100}).save(path));
    fixture.drop({QUrl::fromLocalFile(path)});
    fixture.find<QTableWidget>("inputfiletableWidget")->setCurrentCell(0, 0);
    fixture.window.dopreview();
    QCOMPARE(frame->width(), 18);
    QCOMPARE(frame->geometry().right(), edge);
    fixture.press("removeallButton");
    QCOMPARE(frame->width(), 151);
    QCOMPARE(frame->geometry().right(), edge);
}

void RightToLeftTest::fileButtonsStandInReadingOrder()
{
    installTranslators(*qApp, u"he"_s);
    WindowFixture fixture;
    QVERIFY(fixture.find<QWidget>("openfileButton")->x() >
            fixture.find<QWidget>("removeButton")->x());
    QVERIFY(fixture.find<QWidget>("removeButton")->x() >
            fixture.find<QWidget>("removeallButton")->x());
    const auto *header = fixture.find<QTableWidget>("inputfiletableWidget")->horizontalHeader();
    QVERIFY(header->sectionViewportPosition(0) > header->sectionViewportPosition(1));
}

void RightToLeftTest::pathsAndPasswordsRunFromLeftToRight()
{
    installTranslators(*qApp, u"ar"_s);
    WindowFixture fixture;
    for (const char *name : {"outputfolderEdit", "lineEdit_ownerpwd", "lineEdit_userpwd"})
        QVERIFY2(!fixture.find<QLineEdit>(name)->isRightToLeft(), name);
    QVERIFY(fixture.find<QLineEdit>("lineEdit_title")->isRightToLeft());
}

void RightToLeftTest::pathInTheListIsPaintedFromLeftToRight()
{
    // Hebrew around the slashes: the folders would change places, but for the marks.
    const QString path = u"/\u05d0\u05d0/\u05d1\u05d1/\u05d2\u05d2.png"_s;
    const auto drawn = [](WindowFixture &fixture, const QString &text, Qt::Alignment alignment) {
        auto *table = fixture.find<QTableWidget>("inputfiletableWidget");
        table->setRowCount(1);
        table->setItem(0, 0, new QTableWidgetItem(text));
        QImage image(165, 18, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        QStyleOptionViewItem option;
        option.rect = image.rect();
        option.direction = table->layoutDirection();
        option.displayAlignment = alignment | Qt::AlignVCenter;
        option.textElideMode = Qt::ElideLeft;
        const QModelIndex cell = table->model()->index(0, 0);
        table->itemDelegateForIndex(cell)->paint(&painter, option, cell);
        return image;
    };
    WindowFixture english;
    const QImage atTheRight =
        drawn(english, QString(path).replace(u'/', u"/\u200e"_s), Qt::AlignRight);
    installTranslators(*qApp, u"he"_s);
    WindowFixture hebrew;
    QCOMPARE(drawn(hebrew, path, Qt::AlignLeft), atTheRight);
    QCOMPARE(hebrew.find<QTableWidget>("inputfiletableWidget")->item(0, 0)->text(), path);
}

QTEST_MAIN(RightToLeftTest)
#include "right_to_left_test.moc"

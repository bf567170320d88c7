// The look of single controls: visible borders, captions beside their icons, a list that shows its
// current row and whether it has the keyboard.

#include "startup.h"
#include "windowfixture.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QRegularExpression>
#include <QStackedWidget>
#include <QStyleOptionComboBox>
#include <QTableWidget>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

/// WCAG 2.1, "relative luminance".
double luminance(QColor colour)
{
    const auto linear = [](double channel) {
        return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

double contrast(double one, double other)
{
    return (std::max(one, other) + 0.05) / (std::min(one, other) + 0.05);
}

QColor darkest(const QList<QColor> &colours)
{
    return *std::ranges::min_element(colours, {}, luminance);
}

/// The colours in the window from `from` to `to`, places of `widget` on one line.
QList<QColor> coloursAcross(const QWidget &widget, QPoint from, QPoint to)
{
    const QImage shown = widget.window()->grab().toImage();
    const qreal ratio = shown.devicePixelRatio();
    const QPoint first = (QPointF(widget.mapTo(widget.window(), from)) * ratio).toPoint();
    const QPoint last = (QPointF(widget.mapTo(widget.window(), to)) * ratio).toPoint();
    QList<QColor> colours;
    for (int x = first.x(); x <= last.x(); ++x)
        colours << shown.pixelColor(x, first.y());
    return colours;
}

/// The most frequent colour of a row of the list.
QColor groundOf(const QTableWidget &table, int row)
{
    const QRect cell = table.visualItemRect(table.item(row, 1));
    return coloursAcross(*table.viewport(), {cell.right() - 12, cell.center().y()},
                         {cell.right() - 10, cell.center().y()})
        .first();
}

void openPage(WindowFixture &fixture, int page)
{
    fixture.find<QStackedWidget>("stackedWidget_dialog")->setCurrentIndex(page);
}

/// The columns of `image` between which it has the colour.
std::pair<int, int> columnsOf(const QImage &image, const std::function<bool(QColor)> &matches)
{
    int first = image.width();
    int last = -1;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (!matches(image.pixelColor(x, y)))
                continue;
            first = std::min(first, x);
            last = std::max(last, x);
        }
    }
    return {first, last};
}

/// How many pixels thick the dark line is that begins at `edge`, a place of `widget`; 0 when the
/// pixels there are no line between two lighter sides.
int lineThickness(QWidget &widget, QPoint edge, QPoint inward)
{
    constexpr int reach = 4;
    constexpr int clearlyDarker = 40;
    const QImage shown = widget.window()->grab().toImage();
    const qreal ratio = shown.devicePixelRatio();
    const QPoint middle = (QPointF(widget.mapTo(widget.window(), edge)) * ratio).toPoint();
    QString tones; // across the line: "l" for light, "d" for dark
    const int ground = qGray(shown.pixel(middle + reach * inward));
    for (int step = -reach; step <= reach; ++step) {
        const int tone = qGray(shown.pixel(middle + step * inward));
        tones += QLatin1Char(ground - tone > clearlyDarker ? 'd' : 'l');
    }
    static const QRegularExpression line(u"^l+(d+)l+$"_s);
    return static_cast<int>(line.match(tones).capturedLength(1));
}

} // namespace

class ControlStyleTest : public QObject
{
    Q_OBJECT

private slots:
    void frameHasWholeLines_data();
    void frameHasWholeLines();
    void everyBorderStandsOut_data();
    void everyBorderStandsOut();
    void rotateHasALineBeforeItsArrow_data();
    void rotateHasALineBeforeItsArrow();
    void captionStandsBesideItsIcon_data();
    void captionStandsBesideItsIcon();
    void selectionShowsWhetherTheListHasTheKeyboard();
    void currentRowIsMarkedWithoutASelection();
    void disabledControlsArePale_data();
    void disabledControlsArePale();
};

void ControlStyleTest::everyBorderStandsOut_data()
{
    QTest::addColumn<int>("page");
    QTest::addColumn<QString>("name");
    const std::pair<int, QStringList> controls[] = {
        {0,
         {u"outputfolderEdit"_s, u"checkBox_joinpdf"_s, u"inputfiletableWidget"_s,
          u"progressBar"_s}},
        {1,
         {u"comboBox_rotate"_s, u"comboBox_pagesize"_s, u"comboBox_compresstype"_s,
          u"checkBox_monochrome"_s}},
        {2,
         {u"lineEdit_title"_s, u"lineEdit_subject"_s, u"lineEdit_keywords"_s,
          u"lineEdit_author"_s}},
        {3,
         {u"lineEdit_ownerpwd"_s, u"lineEdit_userpwd"_s, u"checkBox_allowprint"_s,
          u"checkBox_allowmodify"_s, u"checkBox_allowcopy"_s, u"checkBox_allowannotation"_s}},
    };
    for (const auto &[page, names] : controls) {
        for (const QString &name : names)
            QTest::newRow(qPrintable(name)) << page << name;
    }
}

void ControlStyleTest::everyBorderStandsOut()
{
    QFETCH(int, page);
    QFETCH(QString, name);
    WindowFixture fixture;
    openPage(fixture, page);
    const auto *control = fixture.find<QWidget>(qPrintable(name));
    const int middle = control->height() / 2;
    // From outside to inside: the border is the darkest in between.
    const QList<QColor> colours = coloursAcross(*control, {-3, middle}, {3, middle});
    const double border = luminance(darkest(colours));
    QVERIFY(contrast(border, luminance(colours.first())) >= 3);
    QVERIFY(contrast(border, luminance(colours.last())) >= 3);
}

void ControlStyleTest::rotateHasALineBeforeItsArrow_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::newRow("left to right") << Qt::LeftToRight;
    QTest::newRow("right to left") << Qt::RightToLeft;
}

void ControlStyleTest::rotateHasALineBeforeItsArrow()
{
    QFETCH(Qt::LayoutDirection, direction);
    WindowFixture fixture;
    openPage(fixture, 1);
    auto *box = fixture.find<QComboBox>("comboBox_rotate");
    box->setLayoutDirection(direction);
    QStyleOptionComboBox option;
    option.initFrom(box);
    option.editable = true;
    const QRect arrow =
        box->style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxArrow, box);
    const int edge = direction == Qt::LeftToRight ? arrow.left() : arrow.right();
    const int quarter = box->height() / 4; // above the arrow
    const QList<QColor> colours = coloursAcross(*box, {edge - 4, quarter}, {edge + 4, quarter});
    QVERIFY(contrast(luminance(darkest(colours)), 1) >= 3);
}

void ControlStyleTest::captionStandsBesideItsIcon_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<bool>("isFlat");
    for (const bool isFlat : {false, true}) {
        QTest::addRow("left to right, %s", isFlat ? "flat" : "raised") << Qt::LeftToRight << isFlat;
        QTest::addRow("right to left, %s", isFlat ? "flat" : "raised") << Qt::RightToLeft << isFlat;
    }
}

void ControlStyleTest::captionStandsBesideItsIcon()
{
    QFETCH(Qt::LayoutDirection, direction);
    QFETCH(bool, isFlat);
    QPixmap red(24, 24);
    red.fill(Qt::red);
    QPushButton button(QIcon(red), u"Text"_s);
    button.setLayoutDirection(direction);
    button.setFlat(isFlat);
    button.setIconSize(red.size());
    button.resize(200, 31);
    const QImage shown = button.grab().toImage();
    const qreal ratio = shown.devicePixelRatio();
    auto [iconFirst, iconLast] =
        columnsOf(shown, [](QColor colour) { return colour.red() > 200 && colour.green() < 60; });
    auto [textFirst, textLast] =
        columnsOf(shown.copy(shown.rect().adjusted(int(10 * ratio), int(5 * ratio),
                                                   int(-10 * ratio), int(-5 * ratio))),
                  [](QColor colour) { return colour.lightness() < 60; });
    textFirst += int(10 * ratio);
    textLast += int(10 * ratio);
    const bool isMirrored = direction == Qt::RightToLeft;
    const int gap = isMirrored ? iconFirst - textLast : textFirst - iconLast;
    QVERIFY2(gap > 0 && gap < 9 * ratio, qPrintable(QString::number(gap)));
    const int middle = (std::min(iconFirst, textFirst) + std::max(iconLast, textLast)) / 2;
    QVERIFY(std::abs(middle - shown.width() / 2) <= 4 * ratio);
}

void ControlStyleTest::selectionShowsWhetherTheListHasTheKeyboard()
{
    WindowFixture fixture;
    fixture.window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&fixture.window));
    fixture.addImages({u"a.jpg"_s, u"b.jpg"_s});
    auto *table = fixture.find<QTableWidget>("inputfiletableWidget");
    table->selectRow(0);
    table->setFocus();
    const QColor focused = groundOf(*table, 0);
    fixture.find<QPushButton>("openfileButton")->setFocus();
    const QColor unfocused = groundOf(*table, 0);
    const QColor usual = groundOf(*table, 1);
    QVERIFY(contrast(luminance(focused), luminance(unfocused)) >= 3);
    QVERIFY(contrast(luminance(unfocused), luminance(usual)) >= 1.3);
}

void ControlStyleTest::currentRowIsMarkedWithoutASelection()
{
    WindowFixture fixture;
    fixture.addImages({u"a.jpg"_s, u"b.jpg"_s, u"c.jpg"_s});
    auto *table = fixture.find<QTableWidget>("inputfiletableWidget");
    table->selectRow(1);
    fixture.press("removeButton");
    QCOMPARE(table->rowCount(), 2);
    QVERIFY(table->selectedItems().isEmpty());
    const int current = table->currentRow();
    QVERIFY(current >= 0);
    QVERIFY(contrast(luminance(groundOf(*table, current)),
                     luminance(groundOf(*table, 1 - current))) > 1.05);
}

void ControlStyleTest::disabledControlsArePale_data()
{
    QTest::addColumn<QPalette::ColorRole>("role");
    QTest::newRow("texts of the window") << QPalette::WindowText;
    QTest::newRow("texts of fields") << QPalette::Text;
    QTest::newRow("texts of buttons") << QPalette::ButtonText;
    QTest::newRow("selections") << QPalette::Highlight;
}

void ControlStyleTest::disabledControlsArePale()
{
    QFETCH(QPalette::ColorRole, role);
    const QPalette colours = QApplication::palette();
    QVERIFY(luminance(colours.color(QPalette::Disabled, role)) >
            luminance(colours.color(QPalette::Active, role)) + 0.2);
}

void ControlStyleTest::frameHasWholeLines_data()
{
    QTest::addColumn<int>("page");
    QTest::addColumn<QString>("frame");
    QTest::addColumn<QPoint>("edge");
    QTest::addColumn<QPoint>("inward");
    const QPoint left(-1, 0), right(1, 0), up(0, -1), down(0, 1);
    QTest::newRow("left of the preview") << 0 << u"previewframe"_s << QPoint(0, 20) << right;
    QTest::newRow("right of the preview") << 0 << u"previewframe"_s << QPoint(150, 20) << left;
    QTest::newRow("above the preview") << 0 << u"previewframe"_s << QPoint(20, 0) << down;
    QTest::newRow("below the preview") << 0 << u"previewframe"_s << QPoint(20, 150) << up;
    QTest::newRow("above the files") << 0 << u"frame_6"_s << QPoint(25, 0) << down;
    QTest::newRow("above the appearance") << 1 << u"frame_4"_s << QPoint(25, 0) << down;
    QTest::newRow("below the appearance") << 1 << u"frame_4"_s << QPoint(25, 300) << up;
    QTest::newRow("above the description") << 2 << u"frame_2"_s << QPoint(25, 0) << down;
    QTest::newRow("above the security") << 3 << u"frame_3"_s << QPoint(25, 0) << down;
    QTest::newRow("above the side buttons") << 0 << u"frame_8"_s << QPoint(25, 0) << down;
    QTest::newRow("below the side buttons") << 0 << u"frame_8"_s << QPoint(25, 80) << up;
}

void ControlStyleTest::frameHasWholeLines()
{
    QFETCH(int, page);
    QFETCH(QString, frame);
    QFETCH(QPoint, edge);
    QFETCH(QPoint, inward);
    WindowFixture fixture;
    fixture.find<QStackedWidget>("stackedWidget_dialog")->setCurrentIndex(page);
    auto *widget = fixture.find<QWidget>(qPrintable(frame));
    QCOMPARE(lineThickness(*widget, edge, inward), static_cast<int>(widget->devicePixelRatioF()));
}

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    setUpApplication(application);
    ControlStyleTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "controlstyle_test.moc"

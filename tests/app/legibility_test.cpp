// No text is cut off or overlaps another: in English in the fonts of a stock Debian desktop, at
// the usual size and at 125 percent, and in every language in the fonts that desktops start with.

#include "layouttable.h"
#include "translation.h"
#include "windowfixture.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFontInfo>
#include <QGlyphRun>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QStackedWidget>
#include <QStyle>
#include <QTableWidget>
#include <QTextLayout>

using namespace Qt::StringLiterals;

class LegibilityTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();
    void fontSetInPixelsFits();
    void textsFitTheirPlaces_data();
    void textsFitTheirPlaces();
    void textsDoNotRunIntoEachOther_data();
    void textsDoNotRunIntoEachOther();
    void textsStayLegible_data();
    void textsStayLegible();
    void everyLetterHasAPicture_data();
    void everyLetterHasAPicture();
    void translatedCaptionsGrowInWidthAlone();

private:
    static void addFonts();
    static void useFont();
    QFont usual;
};

namespace {

/// The rectangle, in the window, that the text of `label` really covers.
QRect inkOf(const QLabel &label)
{
    QRect text(QPoint(), label.sizeHint());
    const int slack = label.width() - text.width();
    const auto side = QStyle::visualAlignment(label.layoutDirection(), label.alignment());
    text.moveLeft(side & Qt::AlignRight ? slack : 0);
    text.moveTop((label.height() - text.height()) / 2);
    return text.translated(label.mapTo(label.window(), QPoint()));
}

int widestItem(const QComboBox &box)
{
    int width = 0;
    for (int item = 0; item < box.count(); ++item)
        width = std::max(width, box.fontMetrics().boundingRect(box.itemText(item)).width());
    return width;
}

int widestTitle(const QTableWidget &table)
{
    int width = 0;
    for (int column = 0; column < table.columnCount(); ++column) {
        const QString title = table.horizontalHeaderItem(column)->text();
        width = std::max(width, table.fontMetrics().boundingRect(title).width());
    }
    return width;
}

/// The parts of the window and of its option dialog.
QList<QWidget *> partsOf(WindowFixture &fixture)
{
    return fixture.window.findChildren<QWidget *>() +
           ProcessProbe::optionDialog(fixture.window).findChildren<QWidget *>();
}

bool isPartOfAnother(const QWidget &widget)
{
    return widget.objectName().startsWith(QLatin1String("qt_")) ||
           qobject_cast<const QComboBox *>(widget.parentWidget());
}

} // namespace

void LegibilityTest::initTestCase()
{
    usual = QApplication::font();
}

void LegibilityTest::cleanup()
{
    QApplication::setFont(usual);
    installTranslators(*qApp, {});
}

void LegibilityTest::addFonts()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("family");
    QTest::addColumn<qreal>("points");
    for (const char *family : {"DejaVu Sans", "Cantarell", "Liberation Sans", "Noto Sans"}) {
        for (const qreal points : {9.0, 10.0, 11.0, 1.25 * 9, 1.25 * 11})
            QTest::newRow(qPrintable(u"%1 at %2 points"_s.arg(QLatin1String(family)).arg(points)))
                << QString() << QString::fromUtf8(family) << points;
    }
    const QStringList languages = translatedLanguages();
    for (const QString &language : languages) {
        for (const auto &[family, points] :
             {std::pair(u"DejaVu Sans"_s, 10.0), std::pair(u"Noto Sans"_s, 10.0),
              std::pair(u"Cantarell"_s, 11.0)})
            QTest::newRow(qPrintable(u"%1 in %2 at %3 points"_s.arg(language, family).arg(points)))
                << language << family << points;
    }
}

void LegibilityTest::useFont()
{
    QFETCH(QString, family);
    QFETCH(qreal, points);
    QFont font(family);
    font.setPointSizeF(points);
    QCOMPARE(QFontInfo(font).family(), family);
    QApplication::setFont(font);
    QFETCH(QString, language);
    installTranslators(*qApp, language);
}

void LegibilityTest::fontSetInPixelsFits()
{
    QFont large = usual;
    large.setPixelSize(30);
    QApplication::setFont(large);
    WindowFixture fixture;
    const auto *label = fixture.find<QLabel>("label_12");
    QVERIFY(label->font().pointSizeF() >= 6.5);
    QVERIFY(label->sizeHint().width() <= label->width());
}

void LegibilityTest::textsFitTheirPlaces_data()
{
    addFonts();
}

void LegibilityTest::textsFitTheirPlaces()
{
    useFont();
    WindowFixture fixture;
    int seen = 0;
    const auto widgets = partsOf(fixture);
    for (QWidget *widget : widgets) {
        if (isPartOfAnother(*widget))
            continue;
        const QFontMetrics metrics = widget->fontMetrics();
        QSize needed(0, metrics.height());
        QSize room = widget->size();
        if (auto *label = qobject_cast<QLabel *>(widget)) {
            needed = label->sizeHint();
        } else if (auto *button = qobject_cast<QPushButton *>(widget)) {
            if (button->text().isEmpty())
                continue;
            needed.setWidth(metrics.boundingRect(button->text()).width() +
                            (button->icon().isNull() ? 0 : button->iconSize().width()));
        } else if (auto *check = qobject_cast<QCheckBox *>(widget)) {
            needed.setWidth(metrics.boundingRect(check->text()).width() +
                            check->style()->pixelMetric(QStyle::PM_IndicatorWidth));
        } else if (auto *box = qobject_cast<QComboBox *>(widget)) {
            needed.setWidth(widestItem(*box));
            room.rwidth() -= 22; // the arrow and the frame
        } else if (auto *table = qobject_cast<QTableWidget *>(widget)) {
            needed.setWidth(widestTitle(*table));
            room.setHeight(table->verticalHeader()->defaultSectionSize());
            room.setWidth(std::min(table->columnWidth(0), table->columnWidth(1)));
        } else if (!qobject_cast<QLineEdit *>(widget) && !qobject_cast<QProgressBar *>(widget)) {
            continue;
        }
        ++seen;
        QVERIFY2(needed.width() <= room.width() && needed.height() <= room.height(),
                 qPrintable(u"%1 needs %2x%3 of %4x%5"_s.arg(widget->objectName())
                                .arg(needed.width())
                                .arg(needed.height())
                                .arg(room.width())
                                .arg(room.height())));
    }
    QVERIFY(seen >= 40);
}

void LegibilityTest::textsDoNotRunIntoEachOther_data()
{
    addFonts();
}

void LegibilityTest::textsDoNotRunIntoEachOther()
{
    useFont();
    WindowFixture fixture;
    auto *pages = fixture.find<QStackedWidget>("stackedWidget_dialog");
    for (int page = 0; page < pages->count(); ++page) {
        pages->setCurrentIndex(page);
        const auto labels = pages->currentWidget()->findChildren<QLabel *>();
        const auto fields = pages->currentWidget()->findChildren<QWidget *>();
        for (const QLabel *label : labels) {
            if (label->text().isEmpty())
                continue;
            for (const QWidget *field : fields) {
                const bool isField = qobject_cast<const QLineEdit *>(field) ||
                                     qobject_cast<const QComboBox *>(field) ||
                                     qobject_cast<const QCheckBox *>(field);
                if (!isField || isPartOfAnother(*field))
                    continue;
                const QRect place(field->mapTo(&fixture.window, QPoint()), field->size());
                QVERIFY2(!inkOf(*label).intersects(place),
                         qPrintable(label->text() + u" on "_s + field->objectName()));
            }
        }
    }
}

void LegibilityTest::textsStayLegible_data()
{
    addFonts();
}

void LegibilityTest::textsStayLegible()
{
    useFont();
    WindowFixture fixture;
    const auto widgets = partsOf(fixture);
    for (const QWidget *widget : widgets) {
        if (qobject_cast<const QLabel *>(widget) || qobject_cast<const QComboBox *>(widget) ||
            qobject_cast<const QPushButton *>(widget)) {
            QVERIFY(widget->font().pointSizeF() >= 8);
            QVERIFY(QFontInfo(widget->font()).pixelSize() >= 10);
        }
    }
}

void LegibilityTest::everyLetterHasAPicture_data()
{
    QTest::addColumn<QString>("language");
    const QStringList languages = translatedLanguages();
    for (const QString &language : languages)
        QTest::newRow(qPrintable(language)) << language;
}

void LegibilityTest::everyLetterHasAPicture()
{
    QFETCH(QString, language);
    installTranslators(*qApp, language);
    WindowFixture fixture;
    const auto widgets = partsOf(fixture);
    for (const QWidget *widget : widgets) {
        QStringList texts{widget->property("text").toString(), widget->toolTip(),
                          widget->accessibleName()};
        if (const auto *box = qobject_cast<const QComboBox *>(widget)) {
            for (int item = 0; item < box->count(); ++item)
                texts << box->itemText(item);
        }
        for (const QString &text : std::as_const(texts)) {
            QTextLayout layout(QString(text).remove(u'\n'), widget->font());
            layout.beginLayout();
            layout.createLine();
            layout.endLayout();
            const QList<QGlyphRun> runs = layout.glyphRuns();
            for (const QGlyphRun &run : runs)
                QVERIFY2(!run.glyphIndexes().contains(0), qPrintable(text));
        }
    }
}

void LegibilityTest::translatedCaptionsGrowInWidthAlone()
{
    installTranslators(*qApp, u"de"_s);
    WindowFixture fixture;
    int captions = 0;
    for (const LayoutRow &row : layoutTable) {
        if (row.geometry.isEmpty() || !QByteArray(row.settings).contains("AlignRight"))
            continue;
        const QRect place = fixture.find<QWidget>(row.name)->geometry();
        QVERIFY2(place.contains(row.geometry), row.name);
        QCOMPARE(place.height(), row.geometry.height());
        ++captions;
    }
    QVERIFY(captions > 0);
}

QTEST_MAIN(LegibilityTest)
#include "legibility_test.moc"

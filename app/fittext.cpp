#include "fittext.h"

#include "ui_process.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFontInfo>
#include <QHeaderView>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QStackedWidget>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QTableWidget>

#include <algorithm>
#include <functional>

namespace {

constexpr qreal smallestPointSize = 6.5;
constexpr qreal pointSizeStep = 0.25;
constexpr int narrowestStretch = 80; // percent of the font's own width
constexpr int stretchStep = 2;
constexpr int lineEditFrame = 2; // pixels on each side
constexpr int iconGap = 4;       // pixels between a button's icon and its text

bool fitsIn(QSize needed, QSize room)
{
    return needed.width() <= room.width() && needed.height() <= room.height();
}

bool itemsFit(const QComboBox &box)
{
    QStyleOptionComboBox option;
    option.initFrom(&box);
    option.editable = box.isEditable();
    const QRect room = box.style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                   QStyle::SC_ComboBoxEditField, &box);
    int width = 0;
    for (int item = 0; item < box.count(); ++item)
        width = std::max(width, box.fontMetrics().horizontalAdvance(box.itemText(item)));
    return fitsIn({width + 2, box.fontMetrics().height()}, room.size());
}

bool captionFits(const QPushButton &button)
{
    const int icon = button.icon().isNull() ? 0 : button.iconSize().width() + iconGap;
    const int text = button.fontMetrics().horizontalAdvance(button.text());
    return fitsIn({icon + text, button.fontMetrics().height()}, button.size());
}

bool captionFits(const QCheckBox &box)
{
    const int indicator = box.style()->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, &box) +
                          box.style()->pixelMetric(QStyle::PM_CheckBoxLabelSpacing, nullptr, &box);
    const int text = box.fontMetrics().horizontalAdvance(box.text());
    return fitsIn({indicator + text, box.fontMetrics().height()}, box.size());
}

bool textFits(const QWidget &widget)
{
    const int lineHeight = widget.fontMetrics().height();
    if (const auto *label = qobject_cast<const QLabel *>(&widget))
        return fitsIn(label->sizeHint(), label->size());
    if (const auto *button = qobject_cast<const QPushButton *>(&widget))
        return captionFits(*button);
    if (const auto *box = qobject_cast<const QCheckBox *>(&widget))
        return captionFits(*box);
    if (const auto *box = qobject_cast<const QComboBox *>(&widget))
        return itemsFit(*box);
    if (const auto *table = qobject_cast<const QTableWidget *>(&widget))
        return lineHeight <= table->verticalHeader()->defaultSectionSize();
    if (qobject_cast<const QLineEdit *>(&widget))
        return lineHeight + 2 * lineEditFrame <= widget.height();
    return lineHeight <= widget.height();
}

/// The widgets below a window that show text in a place of fixed size.
struct TextWidgets
{
    QList<QWidget *> boxes;
    QList<QWidget *> others;
};

bool hasFixedText(const QWidget &widget)
{
    if (const auto *label = qobject_cast<const QLabel *>(&widget))
        return !label->text().isEmpty();
    return qobject_cast<const QPushButton *>(&widget) || qobject_cast<const QCheckBox *>(&widget) ||
           qobject_cast<const QLineEdit *>(&widget) ||
           qobject_cast<const QTableWidget *>(&widget) ||
           qobject_cast<const QProgressBar *>(&widget);
}

TextWidgets textWidgets(const QWidget &window)
{
    TextWidgets result;
    const auto widgets = window.findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        if (widget->objectName().startsWith(QLatin1String("qt_")))
            continue; // a part of another widget
        if (qobject_cast<QComboBox *>(widget))
            result.boxes << widget;
        else if (hasFixedText(*widget) && !qobject_cast<QComboBox *>(widget->parentWidget()))
            result.others << widget;
    }
    return result;
}

bool allFit(const QList<QWidget *> &widgets)
{
    return std::ranges::all_of(widgets, [](const QWidget *widget) { return textFits(*widget); });
}

/// A table's headers do not inherit its font.
void setFont(QWidget *widget, const QFont &font)
{
    widget->setFont(font);
    if (auto *table = qobject_cast<QTableWidget *>(widget)) {
        table->horizontalHeader()->setFont(font);
        table->verticalHeader()->setFont(font);
    }
}

void setFonts(const QList<QWidget *> &widgets, const QFont &font)
{
    for (QWidget *widget : widgets) {
        setFont(widget, font);
        if (QLayout *layout = widget->parentWidget()->layout())
            layout->activate();
    }
}

/// Calls `narrow` on `font` until the widgets' texts fit or it returns false.
void fit(const QList<QWidget *> &widgets, QFont font, const std::function<bool(QFont &)> &narrow)
{
    setFonts(widgets, font);
    while (!allFit(widgets) && narrow(font))
        setFonts(widgets, font);
}

bool makeSmaller(QFont &font)
{
    font.setPointSizeF(font.pointSizeF() - pointSizeStep);
    return font.pointSizeF() >= smallestPointSize;
}

bool makeNarrower(QFont &font)
{
    if (font.stretch() <= narrowestStretch && font.stretch() != QFont::AnyStretch)
        return makeSmaller(font);
    font.setStretch((font.stretch() == QFont::AnyStretch ? 100 : font.stretch()) - stretchStep);
    return true;
}

} // namespace

void widenCaptions(const Ui_process &ui)
{
    constexpr int pageMargin = 14; // pixels
    constexpr int previewWidth = 151;
    constexpr int fieldGap = 3;
    const auto labels = ui.stackedWidget_dialog->findChildren<QLabel *>();
    for (QLabel *label : labels) {
        const int left = pageMargin - label->parentWidget()->x();
        if (label->alignment() & Qt::AlignRight && label->x() > left)
            label->setGeometry(label->geometry().adjusted(left - label->x(), 0, 0, 0));
    }
    ui.outputfolderlabel->resize(ui.outputfolderEdit->x() - fieldGap - ui.outputfolderlabel->x(),
                                 ui.outputfolderlabel->height());
    ui.label_2->resize(previewWidth, ui.label_2->height());
    ui.label->resize(ui.inputfiletableWidget->width(), ui.label->height());
}

void fitText(QWidget &window)
{
    const TextWidgets widgets = textWidgets(window);
    QFont font = window.font();
    font.setPointSizeF(QFontInfo(font).pointSizeF()); // one set in pixels has no point size
    fit(widgets.others, font, makeSmaller);
    if (!widgets.others.isEmpty())
        fit(widgets.boxes, widgets.others.first()->font(), makeNarrower);
}

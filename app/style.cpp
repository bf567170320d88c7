#include "style.h"

#include <QApplication>
#include <QHelpEvent>
#include <QPainter>
#include <QPalette>
#include <QProxyStyle>
#include <QPushButton>
#include <QStyleOption>
#include <QTableView>
#include <QToolTip>

#include <algorithm>

namespace {

constexpr QRgb focusColour = 0xff0b7a6a;

// Fusion draws borders 140 % darker than the window's colour: from this one #5c5e5e.
constexpr QRgb borderBase = 0xff818484;
constexpr QRgb paleHighlight = 0xffa9d0c7; // of a selection without the keyboard focus
constexpr QRgb currentRowColour = 0xffdcede9;

/// `option` with a border that contrasts with any background.
template <class Option>
Option withBorder(const Option &option)
{
    Option result = option;
    result.palette.setColor(QPalette::Window, borderBase);
    return result;
}

/// Qt's own Fusion style, with a focus ring on push buttons: flat ones have none there,
/// and others show it only after a key press.
class Style : public QProxyStyle
{
public:
    Style()
        : QProxyStyle(QStringLiteral("Fusion"))
    {
    }

    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override
    {
        if (const auto *button = qstyleoption_cast<const QStyleOptionButton *>(option);
            button && element == CE_PushButtonLabel && button->direction == Qt::RightToLeft &&
            !button->icon.isNull() && !button->text.isEmpty())
            drawMirroredLabel(*button, *painter);
        else if (const auto *item = qstyleoption_cast<const QStyleOptionViewItem *>(option);
                 item && element == CE_ItemViewItem)
            drawItem(*item, *painter, widget);
        else if (const auto *bar = qstyleoption_cast<const QStyleOptionProgressBar *>(option);
                 bar && element == CE_ProgressBarGroove) {
            const auto bordered = withBorder(*bar);
            QProxyStyle::drawControl(element, &bordered, painter, widget);
        } else
            QProxyStyle::drawControl(element, option, painter, widget);
        if (element == CE_PushButton && (option->state & State_HasFocus))
            drawFocusRing(*painter, option->rect);
    }

    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                            QPainter *painter, const QWidget *widget) const override
    {
        const auto *box = qstyleoption_cast<const QStyleOptionComboBox *>(option);
        if (control == CC_ComboBox && box) {
            const auto bordered = withBorder(*box);
            QProxyStyle::drawComplexControl(control, &bordered, painter, widget);
        } else {
            QProxyStyle::drawComplexControl(control, option, painter, widget);
        }
    }

    /// The field of an editable combo box ends a pixel early: at 125 % it would cover the line
    /// before the arrow.
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex *option, SubControl part,
                         const QWidget *widget) const override
    {
        const QRect rect = QProxyStyle::subControlRect(control, option, part, widget);
        const auto *box = qstyleoption_cast<const QStyleOptionComboBox *>(option);
        if (part != SC_ComboBoxEditField || !box || !box->editable)
            return rect;
        return visualRect(box->direction, rect, rect.adjusted(0, 0, -1, 0));
    }

    // Buttons under a style sheet query their focus only here.
    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override
    {
        if (element == PE_FrameFocusRect && qobject_cast<const QPushButton *>(widget))
            drawFocusRing(*painter, widget->rect());
        else if (const auto *frame = qstyleoption_cast<const QStyleOptionFrame *>(option);
                 frame && element == PE_Frame &&
                 painter->deviceTransform().type() <= QTransform::TxScale)
            drawFrame(*frame, *painter, widget);
        else if (frame && element == PE_FrameLineEdit) {
            const auto bordered = withBorder(*frame);
            QProxyStyle::drawPrimitive(element, &bordered, painter, widget);
        } else if (const auto *button = qstyleoption_cast<const QStyleOptionButton *>(option);
                   button && element == PE_IndicatorCheckBox) {
            const auto bordered = withBorder(*button);
            QProxyStyle::drawPrimitive(element, &bordered, painter, widget);
        } else
            QProxyStyle::drawPrimitive(element, option, painter, widget);
    }

private:
    /// Qt draws a frame's line centred on the mathematical edge. Between two device pixels it is
    /// outside the clip, so lines are drawn inside, on whole device pixels.
    void drawFrame(QStyleOptionFrame option, QPainter &painter, const QWidget *widget) const
    {
        const QTransform toDevice = painter.deviceTransform();
        const int thickness = std::max(1, static_cast<int>(toDevice.m11()));
        const QRect place = onDevice(option.rect, toDevice);
        painter.save();
        painter.setWorldTransform(toDevice.inverted() * painter.worldTransform());
        for (int line = 0; line < thickness; ++line) {
            option.rect = place.adjusted(line, line, -line, -line);
            QProxyStyle::drawPrimitive(PE_Frame, &option, &painter, widget);
        }
        painter.restore();
    }

    /// Qt 6.4 puts the text of a button that runs from right to left at the far edge, away from its
    /// icon.
    void drawMirroredLabel(const QStyleOptionButton &button, QPainter &painter) const
    {
        constexpr int gap = 4; // as Fusion has it
        const int flags = Qt::AlignCenter | Qt::TextSingleLine | Qt::TextShowMnemonic;
        const QSize text =
            itemTextRect(button.fontMetrics, button.rect, flags, true, button.text).size();
        const int width = button.iconSize.width() + gap + text.width();
        QRect label({}, QSize(width, button.rect.height()));
        label.moveCenter(button.rect.center());
        const QRect icon(label.right() + 1 - button.iconSize.width(), label.y(),
                         button.iconSize.width(), label.height());
        const bool enabled = button.state & State_Enabled;
        button.icon.paint(&painter, icon, Qt::AlignCenter,
                          enabled ? QIcon::Normal : QIcon::Disabled);
        drawItemText(&painter, label.adjusted(0, 0, -button.iconSize.width() - gap, 0), flags,
                     button.palette, enabled, button.text, QPalette::ButtonText);
    }

    /// A list's selection is pale while the keyboard is elsewhere; the current row, whose image
    /// the preview shows, is marked also when it is not selected.
    void drawItem(QStyleOptionViewItem item, QPainter &painter, const QWidget *widget) const
    {
        if (const auto *list = qobject_cast<const QTableView *>(widget)) {
            if (!list->hasFocus())
                item.state &= ~State_Active;
            if (item.index.row() == list->currentIndex().row() && !(item.state & State_Selected))
                painter.fillRect(item.rect, QColor(currentRowColour));
        }
        QProxyStyle::drawControl(CE_ItemViewItem, &item, &painter, widget);
    }

    /// The device pixels of `rect`, each edge rounded by itself, as Qt rounds those of its clip.
    static QRect onDevice(const QRect &rect, const QTransform &toDevice)
    {
        const QPoint onePixel(1, 1);
        return {toDevice.map(rect.topLeft()),
                toDevice.map(rect.bottomRight() + onePixel) - onePixel};
    }

    static void drawFocusRing(QPainter &painter, const QRectF &rect)
    {
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(QColor(focusColour), 2));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(rect.adjusted(2, 2, -2, -2), 5, 5);
        painter.restore();
    }
};

/// Shows each tip for its window. Qt gives a tip the style sheets of the widget that it is shown
/// for, and some suit that widget only: the file list's transparent background is black in a
/// window.
class ToolTips : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *target, QEvent *event) override
    {
        auto *widget = qobject_cast<QWidget *>(target);
        if (event->type() != QEvent::ToolTip || !widget || widget->toolTip().isEmpty())
            return false;
        QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), widget->toolTip(),
                           widget->window(), {}, widget->toolTipDuration());
        return true;
    }
};

struct RoleColour
{
    QPalette::ColorRole role;
    QRgb colour;
    QRgb disabled;
};

// Every role is set, so the desktop's theme never shows through, even if it changes later.
constexpr RoleColour lightColours[] = {
    {QPalette::WindowText, 0xff000000, 0xff8c8c8c},
    {QPalette::Button, 0xfff0f2f1, 0xfff0f2f1},
    {QPalette::Light, 0xffffffff, 0xffffffff},
    {QPalette::Midlight, 0xffe3e8e6, 0xffe3e8e6},
    {QPalette::Dark, 0xff9aa5a1, 0xffb9c0bd},
    {QPalette::Mid, 0xffb8c0bd, 0xffc9cecc},
    {QPalette::Text, 0xff000000, 0xff8c8c8c},
    {QPalette::BrightText, 0xffffffff, 0xffffffff},
    {QPalette::ButtonText, 0xff000000, 0xff8c8c8c},
    {QPalette::Base, 0xffffffff, 0xfff5f7f6},
    {QPalette::Window, 0xfff3f6f5, 0xfff3f6f5},
    {QPalette::Shadow, 0xff717a77, 0xff9aa5a1},
    {QPalette::Highlight, 0xff0b7a6a, 0xff9fb5b0},
    {QPalette::HighlightedText, 0xffffffff, 0xffffffff},
    {QPalette::Link, 0xff0000ff, 0xff0000ff},
    {QPalette::LinkVisited, 0xff551a8b, 0xff551a8b},
    {QPalette::AlternateBase, 0xfff3f6f5, 0xfff3f6f5},
    {QPalette::ToolTipBase, 0xfffffbe6, 0xfffffbe6},
    {QPalette::ToolTipText, 0xff000000, 0xff000000},
    {QPalette::PlaceholderText, 0xff6c6c6c, 0xff9a9a9a},
#if QT_VERSION >= QT_VERSION_CHECK(6, 6, 0)
    {QPalette::Accent, 0xff0b7a6a, 0xff9fb5b0},
#endif
};

QPalette lightPalette()
{
    QPalette colours;
    for (const auto &[role, colour, disabled] : lightColours) {
        colours.setColor(role, colour);
        colours.setColor(QPalette::Disabled, role, disabled);
    }
    colours.setColor(QPalette::Inactive, QPalette::Highlight, paleHighlight);
    colours.setColor(QPalette::Inactive, QPalette::HighlightedText, Qt::black);
    return colours;
}

} // namespace

void applyStyle(QApplication &application)
{
    application.setStyle(new Style); // the application owns it
    application.setPalette(lightPalette());
    // The user's font for every kind of widget: clears the fonts that a theme sets for some.
    QApplication::setFont(QApplication::font());
    QToolTip::setPalette(lightPalette()); // a theme may set one for tips alone
    application.installEventFilter(new ToolTips(&application));
}

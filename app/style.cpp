#include "style.h"

#include <QApplication>
#include <QHelpEvent>
#include <QPainter>
#include <QPalette>
#include <QProxyStyle>
#include <QPushButton>
#include <QStyleOption>
#include <QToolTip>

#include <algorithm>

namespace {

constexpr QRgb focusColour = 0xff0b7a6a;

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
        QProxyStyle::drawControl(element, option, painter, widget);
        if (element == CE_PushButton && (option->state & State_HasFocus))
            drawFocusRing(*painter, option->rect);
    }

    // Buttons below a style sheet ask for their focus here alone.
    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override
    {
        if (element == PE_FrameFocusRect && qobject_cast<const QPushButton *>(widget))
            drawFocusRing(*painter, widget->rect());
        else if (const auto *frame = qstyleoption_cast<const QStyleOptionFrame *>(option);
                 frame && element == PE_Frame &&
                 painter->deviceTransform().type() <= QTransform::TxScale)
            drawFrame(*frame, *painter, widget);
        else
            QProxyStyle::drawPrimitive(element, option, painter, widget);
    }

private:
    /// Qt draws a frame's line about the mathematical edge. Where that lies between two device
    /// pixels, it is outside the clip, so lines are drawn inside, on whole device pixels.
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

/// Shows each tip for its window. Qt gives a tip the style sheets that hold for the widget it is
/// shown for, and some of those are for that widget alone: the file list's transparent ground is
/// black in a window of its own.
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

// Every role is named, so nothing of the desktop's theme, now or changed later, shows through.
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
    return colours;
}

} // namespace

void applyLook(QApplication &application)
{
    application.setStyle(new Style); // the application owns it
    application.setPalette(lightPalette());
    // The user's font for every kind of widget: it clears those that a theme has for some.
    QApplication::setFont(QApplication::font());
    QToolTip::setPalette(lightPalette()); // a theme may have brought one for tips alone
    application.installEventFilter(new ToolTips(&application));
}

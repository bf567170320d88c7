#include "mypushbutton.h"

#include <QEnterEvent>
#include <QFile>
#include <QImageReader>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>

namespace {

constexpr int pressedDarkness = 250; // per cent

/// The picture in the file at exactly `path`, detected by its content; null when there is none, as
/// for an empty path.
QPixmap pixmapFromFile(const QString &path)
{
    QFile file(path);
    // Qt warns of a file without a name.
    if (path.isEmpty() || !file.open(QIODevice::ReadOnly))
        return {};
    QImageReader reader(&file);
    reader.setDecideFormatFromContent(true);
    return QPixmap::fromImageReader(&reader);
}

} // namespace

mypushbutton::mypushbutton(QWidget *parent)
    : QPushButton(parent)
{
}

mypushbutton::mypushbutton(const QString &text, QWidget *parent)
    : QPushButton(text, parent)
{
}

mypushbutton::mypushbutton(const QIcon &icon, const QString &text, QWidget *parent)
    : QPushButton(icon, text, parent)
{
}

QRect mypushbutton::calculateIconPosition(QRect rect, QSize size)
{
    const int x = rect.width() / 2 - size.width() / 2;
    const int y = rect.height() / 2 - size.height() / 2;
    return {QPoint(x, y), size};
}

void mypushbutton::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    [[maybe_unused]] const QColor colour = stateColour();
    painter.setPen(QPen(Qt::red, 2.0, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));

    const QRect place = geometry();
    const int diameter = place.width() - 2;
    QPainterPath circle;
    circle.addEllipse(0, 0, diameter, diameter);
    painter.setClipPath(circle, Qt::ReplaceClip);

    painter.setOpacity(1.0);
    painter.drawPixmap(calculateIconPosition(place, iconSize()), currentPixmap());
}

/// The colour of the button's state. It becomes the same dark grey in every state, and the painting
/// does not use it: the button shows its picture alone.
QColor mypushbutton::stateColour() const
{
    const QColor dark(50, 50, 50, 255);
    QColor colour = dark;
    if (isEnabled()) {
        colour = m_hovered ? m_hoverColour : m_normalColour;
        if (m_pressed)
            colour = m_hoverColour.darker(pressedDarkness);
    }
    colour = dark;
    return colour;
}

QPixmap mypushbutton::currentPixmap() const
{
    if (!m_pressed && !icon().isNull())
        return icon().pixmap(iconSize(), QIcon::Normal, QIcon::Off);
    return pixmapFromFile(text());
}

void mypushbutton::mousePressEvent(QMouseEvent *event)
{
    m_pressed = true;
    repaint();
    QAbstractButton::mousePressEvent(event);
}

void mypushbutton::mouseReleaseEvent(QMouseEvent *event)
{
    m_pressed = false;
    repaint();
    QAbstractButton::mouseReleaseEvent(event);
}

void mypushbutton::enterEvent(QEnterEvent *event)
{
    m_hovered = true;
    repaint();
    QWidget::enterEvent(event);
}

void mypushbutton::leaveEvent(QEvent *event)
{
    m_hovered = false;
    repaint();
    QWidget::leaveEvent(event);
}

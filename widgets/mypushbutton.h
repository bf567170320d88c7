#pragma once

#include <QColor>
#include <QPushButton>

/// A push button that shows only a round picture: its icon, and while it is held down (or has no
/// icon) the image file that its text names. Draws nothing if that file cannot be read, and
/// never the text itself. No form of the program uses it: it is part of the widget set for others.
class mypushbutton : public QPushButton
{
    Q_OBJECT

public:
    explicit mypushbutton(QWidget *parent = nullptr);
    explicit mypushbutton(const QString &text, QWidget *parent = nullptr);
    mypushbutton(const QIcon &icon, const QString &text, QWidget *parent = nullptr);

    /// `size` centred in a rectangle as large as `rect` whose corner is at the origin: the place
    /// of `rect` does not count. Each half is truncated on its own.
    QRect calculateIconPosition(QRect rect, QSize size);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QColor stateColour() const;
    QPixmap currentPixmap() const;

    bool m_hovered = false;
    bool m_pressed = false;
    QColor m_normalColour = Qt::gray;
    QColor m_hoverColour = Qt::lightGray;
    // Part of the button's interface; the painting does not use them.
    [[maybe_unused]] QColor m_thirdColour = Qt::black;
    [[maybe_unused]] double m_realNumber = 1.0;
    [[maybe_unused]] qint32 m_integer = 0;
};

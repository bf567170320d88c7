#include "activation.h"

#include <QApplication>
#include <QEvent>
#include <QList>
#include <QPointer>
#include <QWidget>
#include <QWindow>

namespace {

class Activation : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Show || event->type() == QEvent::Hide)
            activate(qobject_cast<QWindow *>(watched), event->type() == QEvent::Show);
        return QObject::eventFilter(watched, event);
    }

private:
    void activate(QWindow *window, bool isShown)
    {
        // Menus, lists of combo boxes and tool tips take no keyboard of their own.
        if (!window || (window->type() != Qt::Window && window->type() != Qt::Dialog))
            return;
        m_shown.removeIf([window](const auto &other) { return !other || other == window; });
        if (isShown)
            m_shown.append(window);
        if (!m_shown.isEmpty())
            m_shown.last()->requestActivate();
    }

    QList<QPointer<QWindow>> m_shown; // the one that was shown last is the last
};

class PopupParents : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Show)
            attach(qobject_cast<QWidget *>(watched));
        return QObject::eventFilter(watched, event);
    }

private:
    static void attach(const QWidget *popup)
    {
        // A completer's list has no parent; it passes its keys on to the field.
        if (!popup || popup->windowType() != Qt::Popup || !popup->focusProxy())
            return;
        if (QWindow *window = popup->windowHandle(); !window->transientParent())
            window->setTransientParent(popup->focusProxy()->window()->windowHandle());
    }
};

class FixedSizes : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::WindowStateChange)
            restore(qobject_cast<QWidget *>(watched));
        return QObject::eventFilter(watched, event);
    }

private:
    static void restore(QWidget *window)
    {
        if (!window || !window->isMaximized() || window->minimumSize() != window->maximumSize())
            return;
        const bool staysOpen = !window->isModal();
        window->setWindowState(Qt::WindowNoState);
        window->hide();
        window->setVisible(staysOpen);
    }
};

} // namespace

void activateWindows(QApplication &application)
{
    if (QGuiApplication::platformName() == QStringLiteral("xcb"))
        application.installEventFilter(new Activation(&application));
}

void attachPopups(QApplication &application)
{
    application.installEventFilter(new PopupParents(&application));
}

void keepFixedSizes(QApplication &application)
{
    if (QGuiApplication::platformName().startsWith(QLatin1String("wayland")))
        application.installEventFilter(new FixedSizes(&application));
}

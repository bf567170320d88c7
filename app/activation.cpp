#include "activation.h"

#include <QApplication>
#include <QEvent>
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
    static void activate(QWindow *window, bool isShown)
    {
        // Menus, lists of combo boxes and tool tips are neither, and take no keyboard of their own.
        if (!window || (window->type() != Qt::Window && window->type() != Qt::Dialog))
            return;
        if (QWindow *next = isShown ? window : window->transientParent())
            next->requestActivate();
    }
};

} // namespace

void activateWindows(QApplication &application)
{
    if (QGuiApplication::platformName() == QStringLiteral("xcb"))
        application.installEventFilter(new Activation(&application));
}

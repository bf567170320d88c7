#include "folderdrops.h"

#include <QDir>
#include <QDropEvent>
#include <QFileInfo>
#include <QLineEdit>
#include <QMimeData>
#include <QUrl>

namespace {

class FolderDrops : public QObject
{
public:
    explicit FolderDrops(QLineEdit &field)
        : QObject(&field)
        , m_field(field)
    {
        field.installEventFilter(this);
    }

    bool eventFilter(QObject * /*field*/, QEvent *event) override
    {
        const QEvent::Type type = event->type();
        if (type != QEvent::DragEnter && type != QEvent::DragMove && type != QEvent::Drop)
            return false;
        auto *drag = static_cast<QDropEvent *>(event);
        if (!drag->mimeData()->hasFormat(QStringLiteral("text/uri-list")))
            return false;
        if (type == QEvent::Drop)
            drop(*drag);
        else
            drag->acceptProposedAction();
        return true;
    }

private:
    void drop(QDropEvent &event)
    {
        const QList<QUrl> urls = event.mimeData()->urls();
        const QString path = urls.size() == 1 ? urls.first().toLocalFile() : QString();
        if (QFileInfo(path).isDir()) {
            m_field.setText(QDir::cleanPath(path));
            event.acceptProposedAction();
        } else {
            // Not sent: Qt sends a drop to the widget that took the drag, which is the field.
            QObject *window = m_field.window();
            window->event(&event);
        }
    }

    QLineEdit &m_field;
};

} // namespace

void takeDroppedFolder(QLineEdit &field)
{
    new FolderDrops(field); // the field owns it
}

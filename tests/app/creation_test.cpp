// The order in which the form creates its widgets: later ones are above.

#include "layouttable.h"
#include "ui_process.h"

#include <QApplication>
#include <QChildEvent>
#include <QPointer>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// The named widgets in the order in which they joined their parents; the first time counts.
class ChildEventLog : public QObject
{
public:
    ChildEventLog() { qApp->installEventFilter(this); }

    QStringList names() const
    {
        QStringList names;
        for (const QPointer<QObject> &child : m_children) {
            const QString name = child ? child->objectName() : QString();
            if (!name.isEmpty() && !name.startsWith(u"qt_"_s) && !names.contains(name))
                names << name;
        }
        return names;
    }

    bool eventFilter(QObject * /*target*/, QEvent *event) override
    {
        if (event->type() == QEvent::ChildAdded) {
            QObject *child = static_cast<QChildEvent *>(event)->child();
            if (child->isWidgetType())
                m_children << child;
        }
        return false;
    }

private:
    QList<QPointer<QObject>> m_children;
};

} // namespace

class CreationTest : public QObject
{
    Q_OBJECT

private slots:
    void widgetsAreMadeInTheirOrder();
};

void CreationTest::widgetsAreMadeInTheirOrder()
{
    ChildEventLog log;
    QWidget window;
    Ui_process().setupUi(&window);
    QStringList expected;
    const QStringList sideButtons{u"frame_8"_s,
                                  u"pushButton_PDFSetting"_s,
                                  u"pushButton_ImageSetting"_s,
                                  u"pushButton_Security"_s,
                                  u"pushButton_Inout"_s,
                                  u"aboutpushButton"_s,
                                  u"progressBar"_s};
    for (const LayoutRow &row : layoutTable) {
        const QString name = QLatin1String(row.name);
        if (!sideButtons.contains(name))
            expected << name;
    }
    QCOMPARE(log.names(), expected + sideButtons);
}

QTEST_MAIN(CreationTest)
#include "creation_test.moc"

#include "windowdriver.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QScreen>
#include <QTableWidget>
#include <QTest>
#include <QTimer>
#include <QWindow>

namespace {

constexpr int dialogTimeout = 20000; // ms

/// Types any text, also beyond Latin-1, into what has the focus.
void typeText(QWidget *field, const QString &text)
{
    QTest::sendKeyEvent(QTest::Click, field, Qt::Key_unknown, text, Qt::NoModifier);
}

/// Replaces the name in a file dialog and presses Enter; says whether the dialog could be answered.
bool answer(QFileDialog *dialog, const QString &text)
{
    auto *name = dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
    if (!name)
        return false;
    name->setFocus();
    name->selectAll();
    typeText(name, text);
    QTest::keyClick(name, Qt::Key_Return);
    return true;
}

} // namespace

WindowDriver::WindowDriver()
{
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
}

bool WindowDriver::show()
{
    window.show();
    window.activateWindow();
    return QTest::qWaitForWindowExposed(&window);
}

bool WindowDriver::clickAt(QWidget *target, QPoint place)
{
    const QPoint position = target->mapTo(&window, place);
    const QWidget *hit = window.childAt(position);
    if (!hit || (hit != target && !target->isAncestorOf(hit)))
        return false;
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, position);
    return true;
}

bool WindowDriver::click(const char *name)
{
    auto *target = find<QWidget>(name);
    const bool leftEnd = qobject_cast<QCheckBox *>(target) != nullptr;
    return clickAt(target, {leftEnd ? 8 : target->width() / 2, target->height() / 2});
}

bool WindowDriver::clickRow(int row)
{
    auto *table = find<QTableWidget>("inputfiletableWidget");
    const QTableWidgetItem *item = table->item(row, 0);
    return item && clickAt(table->viewport(), table->visualItemRect(item).center());
}

bool WindowDriver::type(const char *name, const QString &text)
{
    auto *field = find<QLineEdit>(name);
    if (!click(name))
        return false;
    QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
    if (text.isEmpty())
        QTest::keyClick(field, Qt::Key_Delete);
    else
        typeText(field, text);
    return field->text() == text;
}

bool WindowDriver::choose(const char *name, int index)
{
    auto *box = find<QComboBox>(name);
    box->setFocus();
    while (box->currentIndex() != index) {
        const int before = box->currentIndex();
        QTest::keyClick(box, before < index ? Qt::Key_Down : Qt::Key_Up);
        if (box->currentIndex() == before)
            return false;
    }
    return true;
}

bool WindowDriver::tick(const char *name, bool on)
{
    const auto *box = find<QCheckBox>(name);
    return box->isChecked() == on || (click(name) && box->isChecked() == on);
}

bool WindowDriver::answerDialog(const char *button, const QString &text)
{
    bool answered = false;
    QTimer timer; // runs inside the dialog's own event loop
    QObject::connect(&timer, &QTimer::timeout, [&] {
        auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
        if (!dialog || !dialog->isVisible())
            return;
        timer.stop();
        answered = answer(dialog, text);
        if (dialog->isVisible()) { // refused: never leave the program waiting in it
            answered = false;
            dialog->reject();
        }
    });
    timer.start(20);
    return click(button) && QTest::qWaitFor([&answered] { return answered; }, dialogTimeout);
}

bool WindowDriver::openFiles(const QStringList &paths)
{
    return answerDialog("openfileButton",
                        QLatin1Char('"') + paths.join(QStringLiteral("\" \"")) + QLatin1Char('"'));
}

bool WindowDriver::chooseFolder(const QString &folder)
{
    return answerDialog("outputButton", folder);
}

bool WindowDriver::convert(int timeout)
{
    return click("runButton") && waitUntilQuiet(timeout);
}

bool WindowDriver::saveScreenshot(const QString &path)
{
    QTest::qWait(50); // lets the last click's repaint reach the screen
    const QPixmap shown = window.screen()->grabWindow(window.winId());
    return (shown.isNull() ? window.grab() : shown).save(path, "PNG");
}

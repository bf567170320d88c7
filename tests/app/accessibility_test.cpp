// What a screen reader reads, and a whole conversion by keyboard alone.

#include "windowfixture.h"

#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QTableWidget>

using namespace Qt::StringLiterals;

namespace {

QString accessibleName(QWidget *widget)
{
    QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(widget);
    return interface ? interface->text(QAccessible::Name) : QString();
}

/// Presses Tab until the control has the focus; false when it never gets it.
bool tabTo(WindowFixture &fixture, const char *name)
{
    for (int presses = 0; presses < 60; ++presses) {
        QWidget *focused = QApplication::focusWidget();
        if (focused && focused->objectName() == QLatin1String(name))
            return true;
        QTest::keyClick(focused ? focused : &fixture.window, Qt::Key_Tab);
    }
    return false;
}

void press(Qt::Key key)
{
    QTest::keyClick(QApplication::focusWidget(), key);
}

void typeHere(const QString &text)
{
    QTest::keyClicks(QApplication::focusWidget(), text);
}

} // namespace

class AccessibilityTest : public QObject
{
    Q_OBJECT

private slots:
    void everyControlHasANameAndAToolTip();
    void labelsAreBuddiesOfTheirFields_data();
    void labelsAreBuddiesOfTheirFields();
    void controlsSayWhatTheyDo_data();
    void controlsSayWhatTheyDo();
    void tabLeavesTheFileList();
    void editableBoxAndItsFieldHaveItsName();
    void emptyListTakesNoFocus();
    void wholeJobByKeyboard();
};

void AccessibilityTest::everyControlHasANameAndAToolTip()
{
    WindowFixture fixture;
    int controls = 0;
    const auto widgets = fixture.window.findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        const bool isPart =
            widget->objectName().isEmpty() || widget->objectName().startsWith(QLatin1String("qt_"));
        const bool isControl =
            qobject_cast<QAbstractButton *>(widget) || qobject_cast<QLineEdit *>(widget) ||
            qobject_cast<QComboBox *>(widget) || qobject_cast<QTableWidget *>(widget);
        if (isPart || !isControl)
            continue;
        ++controls;
        QVERIFY2(!accessibleName(widget).isEmpty(), qPrintable(widget->objectName()));
        const bool hasText = !widget->property("text").toString().isEmpty();
        QVERIFY2(hasText || !widget->toolTip().isEmpty(), qPrintable(widget->objectName()));
    }
    QCOMPARE(controls, 27);
}

void AccessibilityTest::labelsAreBuddiesOfTheirFields_data()
{
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("field");
    const std::pair<const char *, const char *> rows[] = {
        {"label", "inputfiletableWidget"},     {"outputfolderlabel", "outputfolderEdit"},
        {"label_15", "comboBox_rotate"},       {"label_14", "comboBox_pagesize"},
        {"label_16", "comboBox_compresstype"}, {"label_19", "lineEdit_title"},
        {"label_20", "lineEdit_subject"},      {"label_21", "lineEdit_keywords"},
        {"label_22", "lineEdit_author"},       {"label_27", "lineEdit_ownerpwd"},
        {"label_28", "lineEdit_userpwd"},
    };
    for (const auto &[label, field] : rows)
        QTest::addRow("%s", field) << QString::fromUtf8(label) << QString::fromUtf8(field);
}

void AccessibilityTest::labelsAreBuddiesOfTheirFields()
{
    QFETCH(QString, label);
    QFETCH(QString, field);
    WindowFixture fixture;
    QCOMPARE(fixture.find<QLabel>(qPrintable(label))->buddy(),
             fixture.find<QWidget>(qPrintable(field)));
}

void AccessibilityTest::controlsSayWhatTheyDo_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("tip");
    const auto row = [](const char *control, const char *name, const char *tip) {
        QTest::newRow(control) << QString::fromUtf8(name) << QString::fromUtf8(tip);
    };
    row("inputfiletableWidget", "File list",
        "The images to convert; drop files here to add some\nDrag rows or press Alt+Up and "
        "Alt+Down to change the order of the pages.");
    row("previewframe", "Preview", "The image of the current row");
    row("openfileButton", "Open", "Add images to the list");
    row("removeButton", "Remove", "Take the selected images off the list");
    row("removeallButton", "Remove all", "Empty the list");
    row("outputfolderEdit", "Output folder", "The folder that gets the PDF files");
    row("outputButton", "Browse for the output folder", "Browse for the output folder");
    row("checkBox_joinpdf", "Merge to single PDF",
        "Make one PDF of all images, named after the first");
    row("runButton", "Convert", "Convert the images to PDF");
    row("comboBox_rotate", "Rotate", "Degrees clockwise; type another angle and press Enter");
    row("comboBox_pagesize", "Page size", "Scale each image to fit this page");
    row("comboBox_compresstype", "Compression", "How the images are stored in the PDF");
    row("lineEdit_title", "Title", "Title of the PDF");
    row("lineEdit_subject", "Subject", "Subject of the PDF");
    row("lineEdit_keywords", "Keywords", "Keywords of the PDF");
    row("lineEdit_author", "Author", "Author of the PDF");
    row("lineEdit_ownerpwd", "Owner password", "Needed to change the permissions; no blanks");
    row("lineEdit_userpwd", "User password", "Needed to open the PDF; no blanks");
    row("pushButton_Inout", "Files and output folder", "Files and output folder");
    row("pushButton_ImageSetting", "Appearance", "Appearance of the pages");
    row("pushButton_PDFSetting", "Description", "Description of the PDF");
    row("pushButton_Security", "Security", "Passwords and permissions");
    row("aboutpushButton", "About", "About this program");
    row("progressBar", "Progress", "Images started so far");
}

void AccessibilityTest::controlsSayWhatTheyDo()
{
    WindowFixture fixture;
    auto *control = fixture.find<QWidget>(QTest::currentDataTag());
    QTEST(accessibleName(control), "name");
    QTEST(control->toolTip(), "tip");
}

void AccessibilityTest::tabLeavesTheFileList()
{
    WindowFixture fixture;
    fixture.window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&fixture.window));
    fixture.addImages({u"a.jpg"_s, u"b.jpg"_s});
    fixture.find<QTableWidget>("inputfiletableWidget")->setFocus();
    press(Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget()->objectName(), u"openfileButton"_s);
}

void AccessibilityTest::editableBoxAndItsFieldHaveItsName()
{
    WindowFixture fixture;
    auto *box = fixture.find<QComboBox>("comboBox_rotate");
    QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(box);
    QCOMPARE(interface->role(), QAccessible::ComboBox);
    QCOMPARE(interface->text(QAccessible::Name), u"Rotate"_s);
    QCOMPARE(accessibleName(box->lineEdit()), u"Rotate"_s);
    box->setCurrentIndex(1);
    QCOMPARE(interface->text(QAccessible::Value), u"90"_s);
    QCOMPARE(interface->childCount(), 1);
    QCOMPARE(interface->child(0)->object(), box->lineEdit());
    QVERIFY(interface->state().editable && interface->state().expandable);
    QVERIFY(!interface->state().expanded);

    fixture.press("pushButton_ImageSetting");
    QAccessibleActionInterface *actions = interface->actionInterface();
    QVERIFY(actions->actionNames().contains(QAccessibleActionInterface::showMenuAction()));
    actions->doAction(QAccessibleActionInterface::showMenuAction());
    QVERIFY(interface->state().expanded);
    actions->doAction(QAccessibleActionInterface::pressAction());
    QTRY_VERIFY(!interface->state().expanded);
}

void AccessibilityTest::emptyListTakesNoFocus()
{
    WindowFixture fixture;
    auto *table = fixture.find<QTableWidget>("inputfiletableWidget");
    QCOMPARE(table->focusPolicy(), Qt::NoFocus);
    fixture.addImages({u"a.jpg"_s});
    QCOMPARE(table->focusPolicy(), Qt::StrongFocus);
    fixture.press("removeallButton");
    QCOMPARE(table->focusPolicy(), Qt::NoFocus);
}

void AccessibilityTest::wholeJobByKeyboard()
{
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    WindowFixture fixture;
    fixture.window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&fixture.window));
    const QString image = fixture.makeFile(u"a.jpg"_s);

    QVERIFY(tabTo(fixture, "openfileButton"));
    ModalAnswer choose([&image](QWidget *dialog) {
        auto *name = dialog->findChild<QLineEdit *>(u"fileNameEdit"_s);
        QTest::sendKeyEvent(QTest::Click, name, Qt::Key_unknown, image, Qt::NoModifier);
        QTest::keyClick(name, Qt::Key_Return);
    });
    press(Qt::Key_Space);
    QVERIFY(choose.happened());
    fixture.window.activateWindow(); // a window manager would, after the dialog
    QVERIFY(QTest::qWaitForWindowActive(&fixture.window));
    QCOMPARE(fixture.find<QTableWidget>("inputfiletableWidget")->rowCount(), 1);

    QVERIFY(tabTo(fixture, "outputfolderEdit"));
    typeHere(fixture.outputPath());
    QVERIFY(tabTo(fixture, "pushButton_ImageSetting"));
    press(Qt::Key_Space);
    QVERIFY(tabTo(fixture, "comboBox_rotate"));
    press(Qt::Key_Down);
    QVERIFY(tabTo(fixture, "comboBox_pagesize"));
    press(Qt::Key_Down);
    QVERIFY(tabTo(fixture, "checkBox_monochrome"));
    press(Qt::Key_Space);
    QVERIFY(tabTo(fixture, "pushButton_PDFSetting"));
    press(Qt::Key_Space);
    QVERIFY(tabTo(fixture, "lineEdit_title"));
    typeHere(u"Holiday"_s);
    QVERIFY(tabTo(fixture, "pushButton_Security"));
    press(Qt::Key_Space);
    QVERIFY(tabTo(fixture, "lineEdit_ownerpwd"));
    typeHere(u"abc"_s);
    QVERIFY(tabTo(fixture, "checkBox_allowprint"));
    press(Qt::Key_Space);
    QVERIFY(tabTo(fixture, "pushButton_Inout"));
    press(Qt::Key_Space);
    QVERIFY(tabTo(fixture, "runButton"));
    press(Qt::Key_Space);

    QVERIFY(fixture.waitUntilQuiet());
    const auto calls = fixture.calls();
    QCOMPARE(calls.size(), 2);
    QCOMPARE(calls[0].arguments,
             QStringList({u"-resize"_s, u"2380x3368"_s, u"-rotate"_s, u"90"_s, u"-monochrome"_s,
                          image, fixture.outputPath(u"a.pdf"_s)}));
    QCOMPARE(calls[1].arguments.mid(3),
             QStringList({u"output"_s, fixture.outputPath(u"a-1.pdf"_s), u"owner_pw"_s, u"abc"_s,
                          u"allow"_s, u"printing"_s}));
}

QTEST_MAIN(AccessibilityTest)
#include "accessibility_test.moc"

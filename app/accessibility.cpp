#include "accessibility.h"

#include "ui_process.h"

#include <QAbstractItemView>
#include <QAccessibleWidget>
#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QFrame>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTableWidget>

namespace {

/// Names an editable combo box by its own name. On Unix, Qt 6.4 names it by the text in it.
class EditableBox : public QAccessibleWidget
{
public:
    explicit EditableBox(QComboBox &box)
        : QAccessibleWidget(&box, QAccessible::ComboBox)
        , m_box(box)
    {
    }

    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Value ? m_box.currentText() : QAccessibleWidget::text(kind);
    }

    QAccessible::State state() const override
    {
        QAccessible::State result = QAccessibleWidget::state();
        result.editable = true;
        result.expandable = true;
        result.expanded = m_box.view()->isVisible();
        return result;
    }

    QStringList actionNames() const override { return {showMenuAction(), pressAction()}; }

    void doAction(const QString & /*action*/) override
    {
        if (m_box.view()->isVisible())
            m_box.hidePopup();
        else
            m_box.showPopup();
    }

private:
    QComboBox &m_box;
};

QAccessibleInterface *editableBoxInterface(const QString & /*className*/, QObject *object)
{
    auto *box = qobject_cast<QComboBox *>(object);
    return box && box->isEditable() ? new EditableBox(*box) : nullptr; // Qt owns it
}

struct ControlText
{
    QWidget *control;
    const char *name;
    const char *toolTip;
};

struct Buddy
{
    QLabel *label;
    QWidget *field;
};

QString translated(const char *text)
{
    return QCoreApplication::translate("process", text);
}

void setTexts(const ControlText &texts)
{
    texts.control->setAccessibleName(translated(texts.name));
    texts.control->setToolTip(translated(texts.toolTip));
}

} // namespace

void describeControls(const Ui_process &ui)
{
    QAccessible::installFactory(editableBoxInterface);
    const Buddy buddies[] = {
        {ui.label, ui.inputfiletableWidget},
        {ui.label_2, ui.previewframe},
        {ui.outputfolderlabel, ui.outputfolderEdit},
        {ui.label_15, ui.comboBox_rotate},
        {ui.label_14, ui.comboBox_pagesize},
        {ui.label_16, ui.comboBox_compresstype},
        {ui.label_19, ui.lineEdit_title},
        {ui.label_20, ui.lineEdit_subject},
        {ui.label_21, ui.lineEdit_keywords},
        {ui.label_22, ui.lineEdit_author},
        {ui.label_27, ui.lineEdit_ownerpwd},
        {ui.label_28, ui.lineEdit_userpwd},
    };
    for (const auto &[label, field] : buddies)
        label->setBuddy(field);

    const ControlText texts[] = {
        {ui.inputfiletableWidget, QT_TRANSLATE_NOOP("process", "File list"),
         QT_TRANSLATE_NOOP("process", "The images to convert; drop files here to add some")},
        {ui.previewframe, QT_TRANSLATE_NOOP("process", "Preview"),
         QT_TRANSLATE_NOOP("process", "The image of the current row")},
        {ui.openfileButton, QT_TRANSLATE_NOOP("process", "Open"),
         QT_TRANSLATE_NOOP("process", "Add images to the list")},
        {ui.removeButton, QT_TRANSLATE_NOOP("process", "Remove"),
         QT_TRANSLATE_NOOP("process", "Take the selected images off the list")},
        {ui.removeallButton, QT_TRANSLATE_NOOP("process", "Remove all"),
         QT_TRANSLATE_NOOP("process", "Empty the list")},
        {ui.outputfolderEdit, QT_TRANSLATE_NOOP("process", "Output folder"),
         QT_TRANSLATE_NOOP("process", "The folder that gets the PDF files")},
        {ui.outputButton, QT_TRANSLATE_NOOP("process", "Browse for the output folder"),
         QT_TRANSLATE_NOOP("process", "Browse for the output folder")},
        {ui.checkBox_joinpdf, QT_TRANSLATE_NOOP("process", "Merge to single PDF"),
         QT_TRANSLATE_NOOP("process", "Make one PDF of all images, named after the first")},
        {ui.runButton, QT_TRANSLATE_NOOP("process", "Convert"),
         QT_TRANSLATE_NOOP("process", "Convert the images to PDF")},
        {ui.comboBox_rotate, QT_TRANSLATE_NOOP("process", "Rotate"),
         QT_TRANSLATE_NOOP("process", "Degrees clockwise; type another angle and press Enter")},
        {ui.comboBox_pagesize, QT_TRANSLATE_NOOP("process", "Page size"),
         QT_TRANSLATE_NOOP("process", "Scale each image to fit this page")},
        {ui.comboBox_compresstype, QT_TRANSLATE_NOOP("process", "Compression"),
         QT_TRANSLATE_NOOP("process", "How the images are stored in the PDF")},
        {ui.lineEdit_title, QT_TRANSLATE_NOOP("process", "Title"),
         QT_TRANSLATE_NOOP("process", "Title of the PDF")},
        {ui.lineEdit_subject, QT_TRANSLATE_NOOP("process", "Subject"),
         QT_TRANSLATE_NOOP("process", "Subject of the PDF")},
        {ui.lineEdit_keywords, QT_TRANSLATE_NOOP("process", "Keywords"),
         QT_TRANSLATE_NOOP("process", "Keywords of the PDF")},
        {ui.lineEdit_author, QT_TRANSLATE_NOOP("process", "Author"),
         QT_TRANSLATE_NOOP("process", "Author of the PDF")},
        {ui.lineEdit_ownerpwd, QT_TRANSLATE_NOOP("process", "Owner password"),
         QT_TRANSLATE_NOOP("process", "Needed to change the permissions; no blanks")},
        {ui.lineEdit_userpwd, QT_TRANSLATE_NOOP("process", "User password"),
         QT_TRANSLATE_NOOP("process", "Needed to open the PDF; no blanks")},
        {ui.pushButton_Inout, QT_TRANSLATE_NOOP("process", "Files and output folder"),
         QT_TRANSLATE_NOOP("process", "Files and output folder")},
        {ui.pushButton_ImageSetting, QT_TRANSLATE_NOOP("process", "Appearance"),
         QT_TRANSLATE_NOOP("process", "Appearance of the pages")},
        {ui.pushButton_PDFSetting, QT_TRANSLATE_NOOP("process", "Description"),
         QT_TRANSLATE_NOOP("process", "Description of the PDF")},
        {ui.pushButton_Security, QT_TRANSLATE_NOOP("process", "Security"),
         QT_TRANSLATE_NOOP("process", "Passwords and permissions")},
        {ui.aboutpushButton, QT_TRANSLATE_NOOP("process", "About"),
         QT_TRANSLATE_NOOP("process", "About this program")},
        {ui.progressBar, QT_TRANSLATE_NOOP("process", "Progress"),
         QT_TRANSLATE_NOOP("process", "Images started so far")},
    };
    for (const ControlText &row : texts)
        setTexts(row);
    const auto keyName = [](Qt::Key key) {
        return QKeySequence(Qt::ALT | key).toString(QKeySequence::NativeText);
    };
    ui.inputfiletableWidget->setToolTip(
        ui.inputfiletableWidget->toolTip() + QLatin1Char('\n') +
        translated(QT_TRANSLATE_NOOP(
                       "process", "Drag rows or press %1 and %2 to change the order of the pages."))
            .arg(keyName(Qt::Key_Up), keyName(Qt::Key_Down)));
    ui.comboBox_rotate->lineEdit()->setAccessibleName(ui.comboBox_rotate->accessibleName());
}

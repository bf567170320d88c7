#include "accessibility.h"

#include "ui_process.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTableWidget>

namespace {

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

/// An empty list has nothing to show the focus on, nor anything to do there by keyboard.
void takeFocusWithRowsOnly(QTableWidget *table)
{
    const auto update = [table] {
        table->setFocusPolicy(table->rowCount() > 0 ? Qt::StrongFocus : Qt::NoFocus);
    };
    QObject::connect(table->model(), &QAbstractItemModel::rowsInserted, table, update);
    QObject::connect(table->model(), &QAbstractItemModel::rowsRemoved, table, update);
    update();
}

} // namespace

void describeControls(const Ui_process &ui)
{
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
        {ui.inputfiletableWidget, "File list",
         "The images to convert; drop files here to add some"},
        {ui.previewframe, "Preview", "The image of the current row"},
        {ui.openfileButton, "Open", "Add images to the list"},
        {ui.removeButton, "Remove", "Take the selected images off the list"},
        {ui.removeallButton, "Remove all", "Empty the list"},
        {ui.outputfolderEdit, "Output folder", "The folder that gets the PDF files"},
        {ui.outputButton, "Browse for the output folder", "Browse for the output folder"},
        {ui.checkBox_joinpdf, "Merge to single PDF",
         "Make one PDF of all images, named after the first"},
        {ui.runButton, "Convert", "Convert the images to PDF"},
        {ui.comboBox_rotate, "Rotate", "Degrees clockwise; type another angle and press Enter"},
        {ui.comboBox_pagesize, "Page size", "Scale each image to fit this page"},
        {ui.comboBox_compresstype, "Compression", "How the images are stored in the PDF"},
        {ui.lineEdit_title, "Title", "Title of the PDF"},
        {ui.lineEdit_subject, "Subject", "Subject of the PDF"},
        {ui.lineEdit_keywords, "Keywords", "Keywords of the PDF"},
        {ui.lineEdit_author, "Author", "Author of the PDF"},
        {ui.lineEdit_ownerpwd, "Owner password", "Needed to change the permissions; no blanks"},
        {ui.lineEdit_userpwd, "User password", "Needed to open the PDF; no blanks"},
        {ui.pushButton_Inout, "Files and output folder", "Files and output folder"},
        {ui.pushButton_ImageSetting, "Appearance", "Appearance of the pages"},
        {ui.pushButton_PDFSetting, "Description", "Description of the PDF"},
        {ui.pushButton_Security, "Security", "Passwords and permissions"},
        {ui.aboutpushButton, "About", "About this program"},
        {ui.progressBar, "Progress", "Images started so far"},
    };
    for (const ControlText &row : texts)
        setTexts(row);

    // The arrow keys go from row to row; Tab goes on to the next control.
    ui.inputfiletableWidget->setTabKeyNavigation(false);
    takeFocusWithRowsOnly(ui.inputfiletableWidget);
}

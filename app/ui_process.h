#pragma once

#include "filetable.h"

#include <QtCore/qglobal.h>

QT_BEGIN_NAMESPACE
class QCheckBox;
class QComboBox;
class QFrame;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;
class QStackedWidget;
class QWidget;
QT_END_NAMESPACE

/// The main window's layout: creates every widget at its fixed place (pixels, relative to the
/// parent) and holds the pointers; the widgets belong to the window. The members have the object
/// names.
class Ui_process
{
public:
    QStackedWidget *stackedWidget_dialog = nullptr;

    QWidget *page = nullptr; // input files and output folder
    QFrame *frame_6 = nullptr;
    QLabel *label = nullptr;
    FileTable *inputfiletableWidget = nullptr;
    QWidget *layoutWidget = nullptr;
    QHBoxLayout *horizontalLayout = nullptr;
    QPushButton *openfileButton = nullptr;
    QPushButton *removeButton = nullptr;
    QPushButton *removeallButton = nullptr;
    QLabel *label_2 = nullptr;
    QFrame *previewframe = nullptr;
    QPushButton *runButton = nullptr;
    QLabel *outputfolderlabel = nullptr;
    QCheckBox *checkBox_joinpdf = nullptr;
    QLineEdit *outputfolderEdit = nullptr;
    QPushButton *outputButton = nullptr;

    QWidget *page_2 = nullptr; // image appearance
    QLabel *label_12 = nullptr;
    QFrame *frame_4 = nullptr;
    QLabel *label_15 = nullptr;
    QComboBox *comboBox_rotate = nullptr;
    QLabel *label_14 = nullptr;
    QComboBox *comboBox_pagesize = nullptr;
    QLabel *label_16 = nullptr;
    QComboBox *comboBox_compresstype = nullptr;
    QCheckBox *checkBox_monochrome = nullptr;
    QLabel *label_3 = nullptr;

    QWidget *page_3 = nullptr; // document description
    QLabel *label_6 = nullptr;
    QFrame *frame_2 = nullptr;
    QLabel *label_19 = nullptr;
    QLineEdit *lineEdit_title = nullptr;
    QLabel *label_20 = nullptr;
    QLineEdit *lineEdit_subject = nullptr;
    QLabel *label_21 = nullptr;
    QLineEdit *lineEdit_keywords = nullptr;
    QLabel *label_22 = nullptr;
    QLineEdit *lineEdit_author = nullptr;
    QLabel *label_4 = nullptr;

    QWidget *page_4 = nullptr; // security
    QLabel *label_10 = nullptr;
    QFrame *frame_3 = nullptr;
    QLabel *label_27 = nullptr;
    QLineEdit *lineEdit_ownerpwd = nullptr;
    QLabel *label_28 = nullptr;
    QLineEdit *lineEdit_userpwd = nullptr;
    QCheckBox *checkBox_allowprint = nullptr;
    QCheckBox *checkBox_allowmodify = nullptr;
    QCheckBox *checkBox_allowcopy = nullptr;
    QCheckBox *checkBox_allowannotation = nullptr;
    QLabel *label_5 = nullptr;

    QFrame *frame_8 = nullptr; // the side buttons
    QPushButton *pushButton_PDFSetting = nullptr;
    QPushButton *pushButton_ImageSetting = nullptr;
    QPushButton *pushButton_Security = nullptr;
    QPushButton *pushButton_Inout = nullptr;
    QPushButton *aboutpushButton = nullptr;
    QProgressBar *progressBar = nullptr;

    /// Builds the whole layout into `process`, shows page 0 and connects the slots of `process`
    /// that are named after an object and its signal.
    void setupUi(QWidget *process);

    /// Sets every visible text. The combo boxes are emptied and filled again, which selects their
    /// first items.
    void retranslateUi(QWidget *process);

private:
    void setupInputPage();
    void setupFileButtons();
    void setupAppearancePage();
    void setupDescriptionPage();
    void setupSecurityPage();
    void setupSideButtons(QWidget *process);
    void setupProgressBar(QWidget *process);
    void setupTabOrder();
};

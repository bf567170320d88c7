#include "ui_process.h"

#include "compressions.h"
#include "filetable.h"
#include "pagesizes.h"
#include "pictures.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QFrame>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QStackedWidget>
#include <QTableWidget>

#include <initializer_list>

namespace {

QString translated(const char *text)
{
    return QCoreApplication::translate("process", text);
}

QString iconPath(const char *name)
{
    return QStringLiteral(":/iconoption/icons/") + QLatin1String(name);
}

template <class Widget>
Widget *add(QWidget *parent, const char *name)
{
    auto *widget = new Widget(parent);
    widget->setObjectName(QLatin1String(name));
    return widget;
}

template <class Widget>
Widget *place(QWidget *parent, const char *name, const QRect &geometry)
{
    auto *widget = add<Widget>(parent, name);
    widget->setGeometry(geometry);
    return widget;
}

QWidget *addPage(QStackedWidget *pages, const char *name)
{
    return add<QWidget>(pages, name);
}

QFrame *placeFrame(QWidget *parent, const char *name, const QRect &geometry, QFrame::Shadow shadow)
{
    auto *frame = place<QFrame>(parent, name, geometry);
    frame->setFrameShape(QFrame::StyledPanel);
    frame->setFrameShadow(shadow);
    return frame;
}

QLabel *placeRightLabel(QWidget *parent, const char *name, const QRect &geometry)
{
    auto *label = place<QLabel>(parent, name, geometry);
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    return label;
}

QLabel *placePicture(QWidget *parent, const char *name, const QRect &geometry, const char *picture)
{
    auto *label = place<QLabel>(parent, name, geometry);
    label->setPixmap(
        iconFromFile(iconPath(picture)).pixmap(QSize(32, 32), parent->devicePixelRatioF()));
    return label;
}

void setFlatIcon(QPushButton *button, const QIcon &icon, QSize iconSize)
{
    button->setIcon(icon);
    button->setIconSize(iconSize);
    button->setFlat(true);
}

void refill(QComboBox *box, const QStringList &items)
{
    box->clear();
    box->insertItems(0, items);
}

template <class Table>
QStringList textsOf(const Table &table)
{
    QStringList texts;
    for (const auto &row : table)
        texts << (*row.text ? translated(row.text) : QString());
    return texts;
}

} // namespace

void Ui_process::setupUi(QWidget *process)
{
    if (process->objectName().isEmpty())
        process->setObjectName(QStringLiteral("process"));
    process->setEnabled(true);
    process->resize(552, 484);
    process->setWindowIcon(iconFromFile(iconPath("picturelog.ico")));

    stackedWidget_dialog =
        place<QStackedWidget>(process, "stackedWidget_dialog", {0, 30, 551, 351});
    stackedWidget_dialog->setFrameShape(QFrame::NoFrame);
    stackedWidget_dialog->setLineWidth(1);
    setupInputPage();
    setupAppearancePage();
    setupDescriptionPage();
    setupSecurityPage();
    setupSideButtons(process);
    setupProgressBar(process);
    setupTabOrder();

    retranslateUi(process);
    stackedWidget_dialog->setCurrentIndex(0);
    QMetaObject::connectSlotsByName(process);
}

void Ui_process::setupInputPage()
{
    page = addPage(stackedWidget_dialog, "page");
    frame_6 = placeFrame(page, "frame_6", {-10, 0, 571, 281}, QFrame::Sunken);
    frame_6->setStyleSheet(QStringLiteral(".QWidget\n{background-color:#F8F8F8}"));
    label = place<QLabel>(frame_6, "label", {36, 2, 91, 21});
    inputfiletableWidget = placeFileTable(frame_6);
    setupFileButtons();
    label_2 = place<QLabel>(frame_6, "label_2", {400, 4, 51, 21});
    previewframe = placeFrame(frame_6, "previewframe", {400, 42, 151, 187}, QFrame::Raised);
    runButton = place<QPushButton>(frame_6, "runButton", {409, 280, 71, 72});
    runButton->setLayoutDirection(Qt::LeftToRight);
    QIcon runIcon;
    addPng(runIcon, iconPath("convert3.png"));
    setFlatIcon(runButton, runIcon, {60, 64});
    outputfolderlabel = placeRightLabel(frame_6, "outputfolderlabel", {10, 296, 101, 16});
    checkBox_joinpdf = place<QCheckBox>(frame_6, "checkBox_joinpdf", {117, 327, 241, 16});
    outputfolderEdit = place<QLineEdit>(frame_6, "outputfolderEdit", {120, 292, 201, 20});
    outputButton = place<QPushButton>(frame_6, "outputButton", {320, 285, 41, 31});
    setFlatIcon(outputButton, iconFromFile(iconPath("folder.ico")), {28, 28});
    stackedWidget_dialog->addWidget(page);
}

void Ui_process::setupFileButtons()
{
    layoutWidget = place<QWidget>(frame_6, "layoutWidget", {34, 237, 341, 31});
    horizontalLayout = new QHBoxLayout(layoutWidget);
    horizontalLayout->setObjectName(QStringLiteral("horizontalLayout"));
    horizontalLayout->setSpacing(6);
    horizontalLayout->setContentsMargins(0, 0, 0, 0);

    openfileButton = add<QPushButton>(layoutWidget, "openfileButton");
    setFlatIcon(openfileButton, iconFromFile(iconPath("document_add.ico")), {24, 24});
    openfileButton->setDefault(false);
    removeButton = add<QPushButton>(layoutWidget, "removeButton");
    setFlatIcon(removeButton, iconFromFile(iconPath("document_delete.ico")), {24, 24});
    removeallButton = add<QPushButton>(layoutWidget, "removeallButton");
    setFlatIcon(removeallButton, iconFromFile(iconPath("trashcan_empty(1).ico")), {24, 24});
    for (QPushButton *button : {openfileButton, removeButton, removeallButton})
        horizontalLayout->addWidget(button);
}

void Ui_process::setupAppearancePage()
{
    page_2 = addPage(stackedWidget_dialog, "page_2");
    label_12 = place<QLabel>(page_2, "label_12", {117, 5, 371, 41});
    frame_4 = placeFrame(page_2, "frame_4", {-10, 50, 571, 301}, QFrame::Raised);
    label_15 = placeRightLabel(frame_4, "label_15", {120, 50, 81, 21});
    comboBox_rotate = place<QComboBox>(frame_4, "comboBox_rotate", {250, 50, 171, 26});
    comboBox_rotate->setEditable(true);
    comboBox_rotate->setCompleter(nullptr); // it would make 90 of a typed 9
    label_14 = placeRightLabel(frame_4, "label_14", {140, 110, 62, 21});
    comboBox_pagesize = place<QComboBox>(frame_4, "comboBox_pagesize", {250, 110, 171, 26});
    label_16 = placeRightLabel(frame_4, "label_16", {100, 170, 101, 21});
    comboBox_compresstype = place<QComboBox>(frame_4, "comboBox_compresstype", {250, 170, 171, 26});
    checkBox_monochrome = place<QCheckBox>(frame_4, "checkBox_monochrome", {250, 230, 311, 20});
    label_3 = placePicture(page_2, "label_3", {60, 0, 41, 51}, "photos.ico");
    label_3->setScaledContents(false);
    stackedWidget_dialog->addWidget(page_2);
}

void Ui_process::setupDescriptionPage()
{
    page_3 = addPage(stackedWidget_dialog, "page_3");
    label_6 = place<QLabel>(page_3, "label_6", {110, 5, 371, 41});
    frame_2 = placeFrame(page_3, "frame_2", {0, 50, 561, 301}, QFrame::Raised);
    label_19 = placeRightLabel(frame_2, "label_19", {100, 35, 54, 16});
    lineEdit_title = place<QLineEdit>(frame_2, "lineEdit_title", {200, 30, 261, 20});
    label_20 = placeRightLabel(frame_2, "label_20", {100, 80, 54, 16});
    lineEdit_subject = place<QLineEdit>(frame_2, "lineEdit_subject", {200, 75, 261, 20});
    label_21 = placeRightLabel(frame_2, "label_21", {70, 125, 81, 21});
    lineEdit_keywords = place<QLineEdit>(frame_2, "lineEdit_keywords", {200, 120, 261, 20});
    label_22 = placeRightLabel(frame_2, "label_22", {100, 170, 54, 16});
    lineEdit_author = place<QLineEdit>(frame_2, "lineEdit_author", {200, 165, 261, 20});
    label_4 = placePicture(page_3, "label_4", {60, 0, 41, 51}, "configuration_settings.ico");
    stackedWidget_dialog->addWidget(page_3);
}

void Ui_process::setupSecurityPage()
{
    page_4 = addPage(stackedWidget_dialog, "page_4");
    label_10 = place<QLabel>(page_4, "label_10", {110, 10, 401, 41});
    frame_3 = placeFrame(page_4, "frame_3", {0, 50, 571, 301}, QFrame::Raised);
    label_27 = placeRightLabel(frame_3, "label_27", {60, 35, 131, 21});
    lineEdit_ownerpwd = place<QLineEdit>(frame_3, "lineEdit_ownerpwd", {222, 30, 181, 20});
    lineEdit_ownerpwd->setEchoMode(QLineEdit::Normal);
    label_28 = placeRightLabel(frame_3, "label_28", {70, 95, 121, 21});
    lineEdit_userpwd = place<QLineEdit>(frame_3, "lineEdit_userpwd", {222, 90, 181, 20});
    lineEdit_userpwd->setEchoMode(QLineEdit::Normal);
    checkBox_allowprint = place<QCheckBox>(frame_3, "checkBox_allowprint", {220, 130, 251, 16});
    checkBox_allowmodify = place<QCheckBox>(frame_3, "checkBox_allowmodify", {220, 160, 241, 16});
    checkBox_allowcopy = place<QCheckBox>(frame_3, "checkBox_allowcopy", {220, 190, 271, 16});
    checkBox_allowannotation =
        place<QCheckBox>(frame_3, "checkBox_allowannotation", {220, 220, 331, 20});
    label_5 = placePicture(page_4, "label_5", {60, 8, 41, 41}, "shield.ico");
    stackedWidget_dialog->addWidget(page_4);
}

void Ui_process::setupSideButtons(QWidget *process)
{
    frame_8 = placeFrame(process, "frame_8", {-10, 380, 571, 81}, QFrame::Raised);
    frame_8->setStyleSheet(QStringLiteral("background-color:#F8F8F8"));

    // The page shown has its button disabled: that state is a picture of its own, "you are here".
    const struct
    {
        QPushButton *Ui_process::*button;
        const char *name;
        QPoint place;
        const char *icon;
        const char *disabledIcon;
    } sideButtons[] = {
        // clang-format off
        {&Ui_process::pushButton_PDFSetting, "pushButton_PDFSetting", {250, -2}, "description1.png", "description1-current.png"},
        {&Ui_process::pushButton_ImageSetting, "pushButton_ImageSetting", {145, -1}, "appearance1.png", "appearance1-current.png"},
        {&Ui_process::pushButton_Security, "pushButton_Security", {355, -2}, "security1.png", "security1-current.png"},
        {&Ui_process::pushButton_Inout, "pushButton_Inout", {40, -1}, "inout3.png", "inout3-current.png"},
        {&Ui_process::aboutpushButton, "aboutpushButton", {460, -2}, "about4.png", "about4.png"},
        // clang-format on
    };
    for (const auto &row : sideButtons) {
        auto *button = place<QPushButton>(frame_8, row.name, {row.place, QSize(81, 81)});
        QIcon icon;
        addPng(icon, iconPath(row.icon));
        addPng(icon, iconPath(row.disabledIcon), QIcon::Disabled);
        setFlatIcon(button, icon, {70, 75});
        this->*row.button = button;
    }
    pushButton_ImageSetting->setAutoDefault(false);
}

void Ui_process::setupProgressBar(QWidget *process)
{
    progressBar = place<QProgressBar>(process, "progressBar", {23, 464, 521, 16});
    QFont font;
    font.setStrikeOut(false);
    progressBar->setFont(font);
    progressBar->setAutoFillBackground(false);
    progressBar->setStyleSheet(QStringLiteral("QProgressBar::chunk {\n"
                                              "     background-color: #7FFFD4;\n"
                                              "     width: 10px;\n"
                                              "     margin: 0.5px;\n"
                                              "}"));
    progressBar->setValue(45);
    progressBar->setInvertedAppearance(false);
}

void Ui_process::setupTabOrder()
{
    QWidget *before = openfileButton;
    for (QWidget *next : std::initializer_list<QWidget *>{
             removeButton,
             removeallButton,
             outputfolderEdit,
             outputButton,
             checkBox_joinpdf,
             comboBox_rotate,
             comboBox_pagesize,
             comboBox_compresstype,
             checkBox_monochrome,
             lineEdit_title,
             lineEdit_subject,
             lineEdit_keywords,
             lineEdit_author,
             lineEdit_ownerpwd,
             lineEdit_userpwd,
             checkBox_allowprint,
             checkBox_allowmodify,
             checkBox_allowcopy,
             checkBox_allowannotation,
             pushButton_Inout,
             pushButton_ImageSetting,
             pushButton_PDFSetting,
             pushButton_Security,
             runButton,
         }) {
        QWidget::setTabOrder(before, next);
        before = next;
    }
}

void Ui_process::retranslateUi(QWidget * /*process*/)
{
    const struct
    {
        QWidget *widget;
        const char *text;
    } texts[] = {
        {label, QT_TRANSLATE_NOOP("process", "File List")},
        {openfileButton, QT_TRANSLATE_NOOP("process", "Open")},
        {removeButton, QT_TRANSLATE_NOOP("process", "Romove")},
        {removeallButton, QT_TRANSLATE_NOOP("process", "Remove All")},
        {label_2, QT_TRANSLATE_NOOP("process", "Preview")},
        {runButton, ""},
        {outputfolderlabel, QT_TRANSLATE_NOOP("process", "Output Folder")},
        {checkBox_joinpdf, QT_TRANSLATE_NOOP("process", "Merge to single PDF")},
        {outputButton, ""},
        {label_12,
         QT_TRANSLATE_NOOP("process", "Appearance options to adjust converted PDF pages:")},
        {label_15, QT_TRANSLATE_NOOP("process", "Rotate")},
        {label_14, QT_TRANSLATE_NOOP("process", "Page Size")},
        {label_16, QT_TRANSLATE_NOOP("process", "Compression")},
        {checkBox_monochrome,
         QT_TRANSLATE_NOOP("process", "Convert images to black-and-white PDF")},
        {label_6, QT_TRANSLATE_NOOP("process", "Description options to set PDF description:")},
        {label_19, QT_TRANSLATE_NOOP("process", "Title")},
        {label_20, QT_TRANSLATE_NOOP("process", "Subject")},
        {label_21, QT_TRANSLATE_NOOP("process", "Keywords")},
        {label_22, QT_TRANSLATE_NOOP("process", "Author")},
        {label_10,
         QT_TRANSLATE_NOOP(
             "process", "Security options to set password and permissions \nfor converted PDF:")},
        {label_27, QT_TRANSLATE_NOOP("process", "Owner password")},
        {label_28, QT_TRANSLATE_NOOP("process", "User password")},
        {checkBox_allowprint, QT_TRANSLATE_NOOP("process", "Allow printing")},
        {checkBox_allowmodify, QT_TRANSLATE_NOOP("process", "Allow document assembly")},
        {checkBox_allowcopy, QT_TRANSLATE_NOOP("process", "Allow content copying")},
        {checkBox_allowannotation, QT_TRANSLATE_NOOP("process", "Allow commenting")},
    };
    for (const auto &[widget, text] : texts)
        widget->setProperty("text", *text ? translated(text) : QString());

    inputfiletableWidget->horizontalHeaderItem(0)->setText(
        translated(QT_TRANSLATE_NOOP("process", "Image File")));
    inputfiletableWidget->horizontalHeaderItem(1)->setText(
        translated(QT_TRANSLATE_NOOP("process", "File Size")));
    refill(comboBox_rotate, {translated(QT_TRANSLATE_NOOP("process", "0")),
                             translated(QT_TRANSLATE_NOOP("process", "90")),
                             translated(QT_TRANSLATE_NOOP("process", "180")),
                             translated(QT_TRANSLATE_NOOP("process", "270"))});
    refill(comboBox_pagesize, textsOf(pageSizes));
    refill(comboBox_compresstype, textsOf(compressions));
}

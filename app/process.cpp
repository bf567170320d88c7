// The window itself: construction, navigation between the pages, dialogs.

#include "process.h"

#include "accessibility.h"
#include "filelistactions.h"
#include "filetable.h"
#include "fittext.h"
#include "folderdrops.h"
#include "pictures.h"
#include "rtllayout.h"
#include "translation.h"
#include "ui_process.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QProcess>
#include <QProgressBar>
#include <QPushButton>
#include <QStackedWidget>
#include <QStyle>
#include <QTableWidget>
#include <QTimer>

#include <array>

namespace {

void focusFirstControl(QWidget &page)
{
    for (QWidget *next = page.nextInFocusChain(); next != &page; next = next->nextInFocusChain()) {
        if (page.isAncestorOf(next) && (next->focusPolicy() & Qt::TabFocus)) {
            next->setFocus();
            return;
        }
    }
}

} // namespace

Process::Process(QWidget *parent)
    : QWidget(parent)
    , ui(new Ui_process)
    , setdialog(nullptr)
    , aboutdialog(nullptr)
{
    ui->setupUi(this);
    // Five controls are below the frame's edge in the layout; at its page's height they are
    // visible.
    ui->frame_6->resize(ui->frame_6->width(), ui->stackedWidget_dialog->height());
    describeControls(*ui);
    if (isTranslated())
        widenCaptions(*ui);
    fitText(*this);
    fitText(setdialog);
    mirrorPlaces(*ui);
    mirrorChildren(setdialog);

    process = new QProcess;
    fileindex = 0;
    process->setProcessChannelMode(QProcess::SeparateChannels);
    connectControls();

    ui->outputfolderEdit->setPalette(QPalette(Qt::white));
    ui->progressBar->setValue(0);
    ui->progressBar->setAlignment(Qt::AlignCenter);
    lastpdftkin = lastpdftkout = pdftkin = pdftkout = QString::fromLatin1("");
    setdefaultpreview();
    setabout();
    previewtimer = new QTimer(this);
    connect(previewtimer, &QTimer::timeout, this, &Process::dopreview);

    styleFileTable(*ui->inputfiletableWidget);
    new FileListActions(*this, *ui); // owned by the window
    setWindowBackground();
    setFixedSize(width(), height());
    setAcceptDrops(true);

    ui->stackedWidget_dialog->setCurrentIndex(0);
    pageindex = 0;
    ui->pushButton_Inout->setEnabled(false);
}

Process::~Process()
{
    delete ui;
}

void Process::connectControls()
{
    connect(ui->runButton, &QPushButton::clicked, this, &Process::convertbegin);
    connect(ui->openfileButton, &QPushButton::clicked, this, &Process::setopenfile);
    selectWholeRows(*ui->inputfiletableWidget);
    connect(ui->inputfiletableWidget, &QTableWidget::itemDoubleClicked, this,
            &Process::setopenselected);
    connect(ui->removeButton, &QPushButton::clicked, this, &Process::setremove);
    connect(ui->removeallButton, &QPushButton::clicked, this, &Process::setremoveall);
    connect(ui->inputfiletableWidget, &QTableWidget::itemClicked, this, &Process::setpreview);
    connectSelection();
    connect(ui->aboutpushButton, &QPushButton::clicked, this, &Process::setabout1);
    connect(ui->outputButton, &QPushButton::clicked, this, &Process::setoutputfile);
    takeDroppedFolder(*ui->outputfolderEdit);
}

void Process::setWindowBackground()
{
    setAutoFillBackground(true);
    const QPixmap picture =
        readScaled(QStringLiteral(":/iconoption/icons/stock-ved.jpg"), size(), devicePixelRatioF());
    if (picture.isNull())
        return;
    QPalette colours = palette();
    colours.setBrush(QPalette::Window, picture);
    setPalette(colours);
}

void Process::setabout()
{
    setWindowTitle(tr("Tessaro Image to PDF Converter"));
    ui->runButton->setGeometry(
        QStyle::visualRect(layoutDirection(), ui->frame_6->rect(), QRect(444, 280, 71, 72)));
}

void Process::setabout1()
{
    // Without a parent the window manager would choose its place.
    QRect place = aboutdialog.geometry();
    place.moveCenter(geometry().center());
    aboutdialog.move(place.topLeft());
    aboutdialog.exec();
}

void Process::enteroption()
{
    setdialog.exec();
}

void Process::setpushenable()
{
    ui->pushButton_ImageSetting->setEnabled(true);
    ui->pushButton_PDFSetting->setEnabled(true);
    ui->pushButton_Security->setEnabled(true);
    ui->pushButton_Inout->setEnabled(true);
}

/// The disabled button marks the page shown, whose first control gets the keyboard from it.
void Process::markPage(QPushButton *button)
{
    setpushenable();
    const bool hadFocus = button->hasFocus();
    button->setEnabled(false);
    if (hadFocus)
        focusFirstControl(*ui->stackedWidget_dialog->currentWidget());
}

void Process::on_pushButton_Inout_clicked()
{
    ui->stackedWidget_dialog->setCurrentIndex(0);
    markPage(ui->pushButton_Inout);
}

void Process::on_pushButton_left_clicked()
{
    on_pushButton_Inout_clicked();
}

void Process::on_pushButton_ImageSetting_clicked()
{
    ui->stackedWidget_dialog->setCurrentIndex(1);
    ui->pushButton_ImageSetting->setChecked(true);
    markPage(ui->pushButton_ImageSetting);
    pageindex = 1;
}

void Process::on_pushButton_PDFSetting_clicked()
{
    ui->stackedWidget_dialog->setCurrentIndex(2);
    markPage(ui->pushButton_PDFSetting);
    pageindex = 2;
}

void Process::on_pushButton_Security_clicked()
{
    ui->stackedWidget_dialog->setCurrentIndex(3);
    markPage(ui->pushButton_Security);
    pageindex = 3;
}

void Process::on_pushButton_right_clicked()
{
    const std::array<QPushButton *, 4> optionButtons{
        nullptr, ui->pushButton_ImageSetting, ui->pushButton_PDFSetting, ui->pushButton_Security};
    ui->stackedWidget_dialog->setCurrentIndex(pageindex);
    if (QPushButton *button = optionButtons[static_cast<std::size_t>(pageindex)]) {
        button->setEnabled(false);
        ui->pushButton_Inout->setEnabled(true);
    }
}

// Members that do nothing: see process.h for why they are here.

void Process::runClicked() {}
void Process::readOutput() {}
void Process::on_openfileButton_clicked() {}
void Process::imageupdate(QString /*inputfile*/) {}
void Process::checkxdpi() {}
void Process::checkydpi() {}
bool Process::loadfile()
{
    return true;
}
QString Process::getInisetting()
{
    return {};
}

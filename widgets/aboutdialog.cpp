#include "aboutdialog.h"

#include "ui_aboutdialog.h"

#include <QAbstractTextDocumentLayout>
#include <QTextBrowser>

AboutDialog::AboutDialog(QWidget *parent)
    : QDialog(parent)
    , ruler(1, 1, QImage::Format_RGB32)
    , ui(std::make_unique<Ui_AboutDialog>())
{
    ui->setupUi(this);
    setFixedSize(size());
    lightenText();
    fitText();
}

// The browser lives until the base is destroyed, so its layout must let go of the ruler here.
AboutDialog::~AboutDialog()
{
    ui->textBrowser->document()->documentLayout()->setPaintDevice(nullptr);
}

/// The links are a dark blue of their own, so the text lies on white paper on any desktop.
void AboutDialog::lightenText()
{
    QPalette paper = ui->textBrowser->palette();
    paper.setColor(QPalette::Base, Qt::white);
    paper.setColor(QPalette::Text, Qt::black);
    ui->textBrowser->setPalette(paper);
}

/// The box fits five lines where a point is a pixel. At the 96 dots per inch of most desktops the
/// same lines wrap and push the support link out of sight, so they are laid out at 72.
void AboutDialog::fitText()
{
    constexpr int dotsPerMeter = 2835; // 72 dots per inch
    ruler.setDotsPerMeterX(dotsPerMeter);
    ruler.setDotsPerMeterY(dotsPerMeter);
    ui->textBrowser->document()->documentLayout()->setPaintDevice(&ruler);
    constexpr int margin = 2; // leaves 17 pixels for a line, which the tall Noto Sans needs
    ui->textBrowser->document()->setDocumentMargin(margin);
}

#include "aboutdialog.h"

#include "ui_aboutdialog.h"

#include <QAbstractTextDocumentLayout>
#include <QTextBrowser>

AboutDialog::AboutDialog(QWidget *parent)
    : QDialog(parent)
    , m_ruler(1, 1, QImage::Format_RGB32)
    , m_ui(std::make_unique<Ui_AboutDialog>())
{
    m_ui->setupUi(this);
    setFixedSize(size());
    lightenText();
    fitText();
}

// The browser is destroyed after the ruler, so its layout must release the ruler here.
AboutDialog::~AboutDialog()
{
    m_ui->textBrowser->document()->documentLayout()->setPaintDevice(nullptr);
}

/// The links are dark blue, so the background is white on any desktop.
void AboutDialog::lightenText()
{
    QPalette paper = m_ui->textBrowser->palette();
    paper.setColor(QPalette::Base, Qt::white);
    paper.setColor(QPalette::Text, Qt::black);
    m_ui->textBrowser->setPalette(paper);
}

/// The box fits five lines where a point is a pixel. At the 96 dots per inch of most desktops the
/// same lines wrap and push the support link out of sight, so they are laid out at 72.
void AboutDialog::fitText()
{
    constexpr int dotsPerMeter = 2835; // 72 dots per inch
    m_ruler.setDotsPerMeterX(dotsPerMeter);
    m_ruler.setDotsPerMeterY(dotsPerMeter);
    m_ui->textBrowser->document()->documentLayout()->setPaintDevice(&m_ruler);
    constexpr int margin = 2; // leaves 17 pixels for a line, which the tall Noto Sans needs
    m_ui->textBrowser->document()->setDocumentMargin(margin);
}

#include "aboutdialog.h"

#include "ui_aboutdialog.h"

#include <QTextBrowser>

AboutDialog::AboutDialog(QWidget *parent)
    : QDialog(parent)
    , ui(std::make_unique<Ui_AboutDialog>())
{
    ui->setupUi(this);
    setFixedSize(size());

    // The links are a dark blue of their own, so the text lies on paper white on any desktop.
    QPalette paper = ui->textBrowser->palette();
    paper.setColor(QPalette::Base, Qt::white);
    paper.setColor(QPalette::Text, Qt::black);
    ui->textBrowser->setPalette(paper);
}

AboutDialog::~AboutDialog() = default;

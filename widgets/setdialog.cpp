#include "setdialog.h"

#include "ui_setdialog.h"

setDialog::setDialog(QWidget *parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui_setDialog>())
{
    m_ui->setupUi(this);
    setFixedSize(size());
}

setDialog::~setDialog() = default;

#include "setdialog.h"

#include "ui_setdialog.h"

setDialog::setDialog(QWidget *parent)
    : QDialog(parent)
    , ui(std::make_unique<Ui_setDialog>())
{
    ui->setupUi(this);
    setFixedSize(size());
}

setDialog::~setDialog() = default;

#include "ui_setdialog.h"

#include "pictures.h"

#include <QCoreApplication>
#include <QDialog>
#include <QPushButton>

void Ui_setDialog::setupUi(QDialog *setDialog)
{
    if (setDialog->objectName().isEmpty())
        setDialog->setObjectName(QStringLiteral("setDialog"));
    setDialog->resize(415, 346);
    setDialog->setWindowIcon(iconFromFile(QStringLiteral(":/iconoption/icons/optionpic(4).ico")));
    okButton = new QPushButton(setDialog);
    okButton->setObjectName(QStringLiteral("okButton"));
    okButton->setGeometry(QRect(330, 310, 75, 23));
    cancelButton = new QPushButton(setDialog);
    cancelButton->setObjectName(QStringLiteral("cancelButton"));
    cancelButton->setGeometry(QRect(253, 310, 75, 23));
    resetallButton = new QPushButton(setDialog);
    resetallButton->setObjectName(QStringLiteral("resetallButton"));
    resetallButton->setGeometry(QRect(176, 310, 75, 23));

    retranslateUi(setDialog);

    QMetaObject::connectSlotsByName(setDialog);
}

void Ui_setDialog::retranslateUi(QDialog *setDialog)
{
    setDialog->setWindowTitle(QCoreApplication::translate("setDialog", "Option"));
    okButton->setText(QCoreApplication::translate("setDialog", "OK"));
    cancelButton->setText(QCoreApplication::translate("setDialog", "Cancel"));
    resetallButton->setText(QCoreApplication::translate("setDialog", "Reset All"));
}

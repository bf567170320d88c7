#pragma once

class QDialog;
class QPushButton;

/// Layout of the option dialog. None of its buttons is connected to anything.
class Ui_setDialog
{
public:
    QPushButton *okButton = nullptr;
    QPushButton *cancelButton = nullptr;
    QPushButton *resetallButton = nullptr;

    void setupUi(QDialog *setDialog);
    void retranslateUi(QDialog *setDialog);
};

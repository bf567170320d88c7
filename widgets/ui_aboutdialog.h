#pragma once

#include <QString>

class QDialog;
class QTextBrowser;

/// Rich text of the about box: the version line and the two addresses as links. The addresses are
/// plain text and are escaped here; a web address without a scheme is linked as http.
QString aboutText(const QString &webAddress, const QString &supportAddress);

/// Layout of the about box.
class Ui_AboutDialog
{
public:
    QTextBrowser *textBrowser = nullptr;

    void setupUi(QDialog *AboutDialog);
    void retranslateUi(QDialog *AboutDialog);
};

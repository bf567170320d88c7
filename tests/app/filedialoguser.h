#pragma once

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

/// What a file dialog asks for.
struct FileDialogFacts
{
    explicit FileDialogFacts(QWidget *box)
    {
        const auto *dialog = qobject_cast<QFileDialog *>(box);
        if (!dialog)
            return;
        caption = dialog->windowTitle();
        filters = dialog->nameFilters();
        folder = dialog->directory().absolutePath();
        fileMode = dialog->fileMode();
        options = dialog->options();
        parent = dialog->parentWidget();
    }

    QString caption;
    QStringList filters;
    QString folder;
    QFileDialog::FileMode fileMode = QFileDialog::AnyFile;
    QFileDialog::Options options;
    QWidget *parent = nullptr;
};

/// Chooses `paths` as a user does who types them and presses the dialog's button.
inline void chooseFiles(QWidget *dialog, const QStringList &paths)
{
    auto *field = dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
    auto *buttons = dialog->findChild<QDialogButtonBox *>();
    if (!field || !buttons)
        qFatal("not a file dialog");
    field->setText(paths.size() == 1
                       ? paths.first()
                       : QLatin1Char('"') + paths.join(QStringLiteral("\" \"")) + QLatin1Char('"'));
    QTest::mouseClick(buttons->button(QDialogButtonBox::Open), Qt::LeftButton);
}

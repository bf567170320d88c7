#pragma once

#include <QDialog>

#include <memory>

class Ui_setDialog;

/// The option dialog, of fixed size. It has no options yet: its three buttons do nothing.
/// Escape or the window's close control closes it.
class setDialog : public QDialog
{
    Q_OBJECT

public:
    explicit setDialog(QWidget *parent = nullptr);
    ~setDialog() override;

private:
    const std::unique_ptr<Ui_setDialog> m_ui;
};

#pragma once

#include <QDialog>
#include <QImage>

#include <memory>

class Ui_AboutDialog;

/// The about box: product, version, web link and support link. Its size is fixed, and it keeps its
/// scroll position from one opening to the next. Links open outside the program.
class AboutDialog : public QDialog
{
    Q_OBJECT

public:
    explicit AboutDialog(QWidget *parent = nullptr);
    ~AboutDialog() override;

private:
    void lightenText();
    void fitText();

    QImage m_ruler;
    const std::unique_ptr<Ui_AboutDialog> m_ui;
};

#pragma once

#include "aboutdialog.h"
#include "previewpicture.h"
#include "setdialog.h"

#include <QString>
#include <QStringList>
#include <QWidget>

QT_BEGIN_NAMESPACE
class QDragEnterEvent;
class QDropEvent;
class QProcess;
class QPushButton;
class QTimer;
QT_END_NAMESPACE

class Ui_process;

/// The main window and the whole workflow: file list, preview, options, conversion. The widgets
/// hold the data; options are read from the controls when a step needs them.
///
/// A conversion is a chain of child processes, one at a time: each step starts a tool and returns,
/// and the tool's `finished` signal calls the next step. A tool's output and exit status are
/// ignored, so the chain continues after a failure; a tool that cannot be started ends it. The
/// child processes have no owner and live until the program ends.
class Process : public QWidget
{
    Q_OBJECT

public:
    explicit Process(QWidget *parent = nullptr);
    ~Process() override;

    /// Does nothing and returns true. Like the other members that do nothing, and `process`, it is
    /// part of this class's interface: others may call or connect it, though nothing in the
    /// program does.
    bool loadfile();
    /// Returns an empty string; kept as loadfile() is.
    QString getInisetting();
    /// Shows the picture for an empty list.
    void setdefaultpreview();
    /// Appends files to the list and makes its first row the current one, whose preview shows.
    void addFiles(const QStringList &paths);

public slots:
    // Do nothing: kept as loadfile() is. The third is connected by its name, so a press of Open
    // calls it as well as setopenfile().
    void runClicked();
    void readOutput();
    void on_openfileButton_clicked();

    /// One step of a conversion: moves the last pdftk result into place, checks list and output
    /// folder (the two message boxes), then starts the next image, or all of them when merging.
    /// Called by the run button and at the end of a one-by-one step.
    void convertbegin();

    /// Does nothing: kept as loadfile() is.
    void imageupdate(QString inputfile);

    /// Opens the option dialog and waits for it; nothing calls it yet.
    void enteroption();
    /// Asks for image files and appends them to the list.
    void setopenfile();
    /// Removes the selected rows.
    void setremove();
    /// Opens the current row's file in the desktop's program for it.
    void setopenselected();
    void setremoveall();
    /// Starts the timer that calls dopreview() every 300 ms.
    void setpreview();
    /// Asks for the output folder; a cancelled dialog empties the field.
    void setoutputfile();
    /// Sets the window title and puts the run button at its place.
    void setabout();
    /// Opens the about box and waits for it.
    void setabout1();
    /// Shows the current row's image as it is on disk now. Does not throw.
    void dopreview();

    /// Image options of `convert` as chosen, each with a leading blank; "" for none.
    QString gettheoption();
    /// Writes pdfa.txt into the current directory and returns pdftk's option for it; "" when no
    /// field has text, "111" when the file cannot be opened. The "111" goes to pdftk as it is.
    QString getPdftkoption();

    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

    /// Enables the four page buttons.
    void setpushenable();

    /// Starts `convert` and connects what follows it: pdftk when a description or a security
    /// option is set, else the next image of a one-by-one run, else nothing.
    /// @param imageinput quoted paths with a blank between them
    /// @param imageoutput one quoted path
    void doconvert(QString imageinput, QString imageoutput);
    /// Starts pdftk on the PDF just made, writing the intermediate file beside it.
    void dopdftk();

    // Do nothing: kept as loadfile() is.
    void checkxdpi();
    void checkydpi();

    /// Page size option for the box's index `curpage`; "" for none.
    QString getresize(int curpage);
    /// Security tail of the pdftk command; "" for none.
    QString getPdftkoptionPer();
    /// Ends a merged run: the pdftk result takes the merged PDF's place.
    void removejoinpdftk();

private slots:
    void on_pushButton_ImageSetting_clicked();
    void on_pushButton_PDFSetting_clicked();
    void on_pushButton_left_clicked();
    void on_pushButton_Security_clicked();
    void on_pushButton_right_clicked();
    void on_pushButton_Inout_clicked();

private:
    friend struct ProcessProbe; // the tests' view of the fields

    void connectControls();
    void setWindowBackground();
    void markPage(QPushButton *button);

    void appendFiles(const QStringList &paths);
    void setFile(int row, const QString &path);
    QString inputPath(int row) const;
    void connectSelection();
    void removeRow(int row);

    bool checkOrder(int rowCount);
    void convertMerged(int rowCount);
    void convertNext(int rowCount);
    void replaceByPdftkOutput();
    QProcess *startTool(const QString &command);

    // NOLINTBEGIN(readability-identifier-naming): these names are fixed
    int fileindex = 0;
    QString lastpdftkin;
    QString lastpdftkout;
    QString pdftkin;
    QString pdftkout;
    QStringList tempfiles;
    QProcess *process = nullptr; // kept as loadfile() is: never started, each step has its own
    Ui_process *ui = nullptr;
    setDialog setdialog;
    QTimer *previewtimer = nullptr;
    PreviewPicture preview;
    AboutDialog aboutdialog;
    int pageindex = 0;
    // NOLINTEND(readability-identifier-naming)
};

#pragma once

#include "files.h"
#include "windowcontrols.h"

#include <QPushButton>
#include <QStringList>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <functional>
#include <memory>

/// The fields of the window that show its behaviour.
struct ProcessProbe
{
    static int &fileIndex(Process &window) { return window.fileindex; }
    static int &pageIndex(Process &window) { return window.pageindex; }
    static QString &lastPdftkIn(Process &window) { return window.lastpdftkin; }
    static QString &lastPdftkOut(Process &window) { return window.lastpdftkout; }
    static QString &pdftkIn(Process &window) { return window.pdftkin; }
    static QString &pdftkOut(Process &window) { return window.pdftkout; }
    static QStringList &tempFiles(Process &window) { return window.tempfiles; }
    static QProcess *process(Process &window) { return window.process; }
    static QTimer *previewTimer(Process &window) { return window.previewtimer; }
    static setDialog &optionDialog(Process &window) { return window.setdialog; }
    static AboutDialog &aboutBox(Process &window) { return window.aboutdialog; }
};

/// One call of a fake tool.
struct ToolCall
{
    QString tool;
    qint64 pid;
    QStringList arguments;
};

/// A window with folders and fake tools of its own. The current directory is the bundle's folder,
/// as start-up makes it.
class WindowFixture : public WindowControls
{
public:
    WindowFixture();
    ~WindowFixture();

    QString inputPath(const QString &name) const
    {
        return folder.filePath(QStringLiteral("in/") + name);
    }
    QString outputPath(const QString &name = {}) const;

    /// Writes a small file into the input folder; returns its path.
    QString makeFile(const QString &name, const QByteArray &content = "image") const;
    /// Makes the files and drops them; returns their paths.
    QStringList addImages(const QStringList &names);
    void setOutputFolder();
    /// Gives the window the keyboard, without which shortcuts do nothing.
    void activate();

    /// How the fake tools behave, see faketool.cpp; "" for good behaviour.
    void scriptConvert(const QString &words) { qputenv("TESSARO_FAKE_CONVERT", words.toUtf8()); }
    void scriptPdftk(const QString &words) { qputenv("TESSARO_FAKE_PDFTK", words.toUtf8()); }

    /// A file that holds fake tools back while it exists.
    QString holdTool();
    void openGate();

    QList<ToolCall> calls() const;
    /// The list's rows as "name|size text", "name" where the size has no item.
    QStringList rows() const;
    /// Names and contents of the output folder, as "name: content", sorted.
    QStringList outputFiles() const;

private:
    QTemporaryDir folder;
};

/// The content of a file in the current directory, "none" when there is none.
QByteArray contentBesideTheBundle(const QString &name);

/// Answers the next modal box: checks that it comes, hands it to `answer`, and closes it if that
/// did not. `happened()` says whether the box came.
class ModalAnswer
{
public:
    explicit ModalAnswer(std::function<void(QWidget *)> answerFunction);
    bool happened() const { return came; }

private:
    void look();

    std::function<void(QWidget *)> answer;
    QTimer timer;
    bool came = false;
};

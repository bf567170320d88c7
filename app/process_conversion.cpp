// The conversion: one chain of child processes, a step at each entry.

#include "process.h"

#include "bundlepaths.h"
#include "commandline.h"
#include "compressions.h"
#include "infofile.h"
#include "localecharset.h"
#include "pagesizes.h"
#include "security.h"
#include "ui_process.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QMessageBox>
#include <QProcess>
#include <QProgressBar>
#include <QTableWidget>

#include <algorithm>

#include <sys/resource.h>

QString Process::getresize(int curpage)
{
    return resizeOption(curpage);
}

QString Process::gettheoption()
{
    QString option = getresize(ui->comboBox_pagesize->currentIndex());
    if (ui->comboBox_rotate->currentIndex() != 0)
        option += QStringLiteral(" -rotate ") + ui->comboBox_rotate->currentText();
    option += compressOption(ui->comboBox_compresstype->currentIndex());
    if (ui->checkBox_monochrome->isChecked())
        option += QStringLiteral(" -monochrome");
    return option;
}

QString Process::getPdftkoption()
{
    const Description description{
        .title = ui->lineEdit_title->text(),
        .subject = ui->lineEdit_subject->text(),
        .keywords = ui->lineEdit_keywords->text(),
        .author = ui->lineEdit_author->text(),
    };
    if (isBlank(description))
        return {};
    QFile file(QStringLiteral("pdfa.txt"));
    if (!file.open(QIODevice::WriteOnly | QIODevice::Text))
        return QStringLiteral("111");
    file.write(encoded(infoFile(description), localeCharset()));
    file.close();
    const QString folder = bundleFolder(QCoreApplication::applicationDirPath());
    return QStringLiteral(" update_info ") + quoted(folder + QStringLiteral("/pdfa.txt"));
}

QString Process::getPdftkoptionPer()
{
    return securityOption({
        .ownerPassword = ui->lineEdit_ownerpwd->text(),
        .userPassword = ui->lineEdit_userpwd->text(),
        .printing = ui->checkBox_allowprint->isChecked(),
        .modifying = ui->checkBox_allowmodify->isChecked(),
        .copying = ui->checkBox_allowcopy->isChecked(),
        .annotating = ui->checkBox_allowannotation->isChecked(),
    });
}

// Linux allows arguments a quarter of the stack limit, up to 6 MiB (execve(2)). The limit is raised
// for this start alone, so programs that open a file for the user get the usual one.
QProcess *Process::startTool(const QString &command)
{
    constexpr rlim_t enough = rlim_t(24) * 1024 * 1024;
    rlimit usual = {};
    getrlimit(RLIMIT_STACK, &usual);
    rlimit raised = usual;
    raised.rlim_cur = std::max(usual.rlim_cur, std::min(enough, usual.rlim_max));
    setrlimit(RLIMIT_STACK, &raised);
    auto *tool = new QProcess; // without an owner: it lives until the program ends
    tool->startCommand(command);
    setrlimit(RLIMIT_STACK, &usual);
    return tool;
}

void Process::convertbegin()
{
    if (!ui->checkBox_joinpdf->isChecked())
        replaceByPdftkOutput();
    tempfiles.clear();
    const int rowCount = ui->inputfiletableWidget->rowCount();
    if (!checkOrder(rowCount))
        return;
    if (ui->checkBox_joinpdf->isChecked())
        convertMerged(rowCount);
    else
        convertNext(rowCount);
}

void Process::replaceByPdftkOutput()
{
    if (lastpdftkin.isEmpty())
        return; // no pdftk step has run yet
    lastpdftkin = unquoted(lastpdftkin);
    QFile::remove(lastpdftkin);
    QFile::rename(lastpdftkout, lastpdftkin);
}

bool Process::checkOrder(int rowCount)
{
    if (rowCount == 0) {
        QMessageBox::warning(this, tr("Empty input"), tr("Please choose files to convert."),
                             QMessageBox::Ok, QMessageBox::NoButton);
        return false;
    }
    const QString folder = ui->outputfolderEdit->text();
    if (folder.isEmpty() || !QDir(folder).exists()) { // QDir("") is the current directory
        QMessageBox::information(this, QStringLiteral("Invalid order"),
                                 QStringLiteral("Please specify an output folder."),
                                 QMessageBox::Ok, QMessageBox::NoButton);
        ui->outputfolderEdit->setText(QString());
        return false;
    }
    return true;
}

void Process::convertMerged(int rowCount)
{
    for (fileindex = 0; fileindex < rowCount; ++fileindex)
        tempfiles.append(inputPath(fileindex));
    doconvert(quoted(tempfiles), outputPath(ui->outputfolderEdit->text(), inputPath(0)));
}

void Process::convertNext(int rowCount)
{
    if (fileindex >= rowCount) {
        ui->progressBar->setValue(0);
        fileindex = 0;
        return;
    }
    const QString path = inputPath(fileindex);
    ++fileindex;
    doconvert(quoted(path), outputPath(ui->outputfolderEdit->text(), path));
    ui->progressBar->setMaximum(rowCount);
    ui->progressBar->setValue(fileindex);
}

void Process::doconvert(QString imageinput, QString imageoutput)
{
    QProcess *convert = startTool(toolPath(QStringLiteral("convert")) + gettheoption() +
                                  QLatin1Char(' ') + imageinput + QLatin1Char(' ') + imageoutput);
    const QString description = getPdftkoption(); // writes the info file
    const QString security = getPdftkoptionPer();
    if (!description.isEmpty() || !security.isEmpty()) {
        pdftkin = imageoutput;
        pdftkout = intermediatePath(ui->outputfolderEdit->text(), imageoutput);
        connect(convert, &QProcess::finished, this, &Process::dopdftk);
    } else if (!ui->checkBox_joinpdf->isChecked()) {
        connect(convert, &QProcess::finished, this, &Process::convertbegin);
    }
}

void Process::dopdftk()
{
    const QString description = getPdftkoption();
    const QString security = getPdftkoptionPer();
    QProcess *pdftk =
        startTool(toolPath(QStringLiteral("pdftk")) + QLatin1Char(' ') + pdftkin + description +
                  QStringLiteral(" output ") + quoted(pdftkout) + security);
    lastpdftkin = pdftkin;
    lastpdftkout = pdftkout;
    if (ui->checkBox_joinpdf->isChecked()) {
        connect(pdftk, &QProcess::finished, this, &Process::removejoinpdftk);
        tempfiles.clear();
    } else {
        connect(pdftk, &QProcess::finished, this, &Process::convertbegin);
    }
}

void Process::removejoinpdftk()
{
    replaceByPdftkOutput();
    lastpdftkin.clear();
    lastpdftkout.clear();
}

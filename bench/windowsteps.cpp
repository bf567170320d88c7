#include "windowsteps.h"

#include "process.h"
#include "samples.h"

#include <QDir>
#include <QEventLoop>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>

QList<QUrl> filesIn(const QString &folder)
{
    QList<QUrl> urls;
    const QFileInfoList files = QDir(folder).entryInfoList(QDir::Files);
    for (const QFileInfo &file : files)
        urls << QUrl::fromLocalFile(file.absoluteFilePath());
    return urls;
}

void setField(Process &window, const char *field, const QString &text)
{
    window.findChild<QLineEdit *>(QLatin1String(field))->setText(text);
}

double convertAll(Process &window)
{
    QEventLoop loop;
    // A run is over when the progress bar goes back to 0.
    QObject::connect(window.findChild<QProgressBar *>(), &QProgressBar::valueChanged, &loop,
                     [&loop](int value) {
                         if (value == 0)
                             loop.quit();
                     });
    return millisecondsOf([&] {
        window.findChild<QPushButton *>(QStringLiteral("runButton"))->click();
        loop.exec();
    });
}

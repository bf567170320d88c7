#include "faults_fixture.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProgressBar>
#include <QStackedWidget>
#include <QThread>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// Ended and not yet reaped, or gone.
bool hasEnded(qint64 pid)
{
    QFile status(u"/proc/%1/stat"_s.arg(pid));
    if (!status.open(QIODevice::ReadOnly))
        return true;
    const QByteArray text = status.readAll();
    return text.mid(text.lastIndexOf(')') + 2, 1) == "Z";
}

} // namespace

const QList<Mode> &allModes()
{
    static const QList<Mode> modes{
        {"one by one", false, false, false},
        {"one by one with a description", false, true, false},
        {"one by one with security", false, false, true},
        {"one by one with both", false, true, true},
        {"merged", true, false, false},
        {"merged with a description", true, true, false},
        {"merged with security", true, false, true},
        {"merged with both", true, true, true},
    };
    return modes;
}

QStringList Outcome::summary() const
{
    return QStringList{
        u"calls: "_s + calls,
        u"files: "_s + files.join(u", "_s),
        u"file index: %1"_s.arg(fileIndex),
        u"progress: "_s + bar,
        u"pdftk run: %1 from %2"_s.arg(lastIn, lastOut),
        u"boxes: "_s + boxes.join(u", "_s),
    };
}

const std::optional<Outcome> &ExpectedOutcomes::of(const Mode &mode) const
{
    if (mode.merged)
        return mode.hasOptions() ? mergedFinished : merged;
    return mode.hasOptions() ? singleFinished : single;
}

FaultFixture::FaultFixture(const Mode &mode)
{
    QObject::connect(&watcher, &QTimer::timeout, &window, [this] {
        if (QWidget *box = QApplication::activeModalWidget()) {
            boxes << box->windowTitle();
            box->close();
        }
    });
    watcher.start(5);
    addImages({u"a.jpg"_s, u"b.png"_s});
    setOutputFolder();
    check("checkBox_joinpdf", mode.merged);
    if (mode.title)
        fill("lineEdit_title", u"Holiday"_s);
    if (mode.security) {
        fill("lineEdit_ownerpwd", u"abc"_s);
        check("checkBox_allowprint");
    }
}

FaultFixture::~FaultFixture()
{
    setFolderWritable(true);
}

QString FaultFixture::shortened(QString text) const
{
    return text.replace(outputPath() + QLatin1Char('/'), QString());
}

Outcome FaultFixture::outcome()
{
    QString callLetters;
    const auto started = calls();
    for (const ToolCall &call : started)
        callLetters += call.tool.at(0);
    const auto *bar = find<QProgressBar>("progressBar");
    return {
        .calls = callLetters,
        .files = outputFiles(),
        .fileIndex = ProcessProbe::fileIndex(window),
        .bar = u"%1/%2"_s.arg(bar->value()).arg(bar->maximum()),
        .lastIn = shortened(ProcessProbe::lastPdftkIn(window)),
        .lastOut = shortened(ProcessProbe::lastPdftkOut(window)),
        .boxes = boxes,
    };
}

bool FaultFixture::answers()
{
    bool handled = false;
    QMetaObject::invokeMethod(
        &window, [&handled] { handled = true; }, Qt::QueuedConnection);
    if (!QTest::qWaitFor([&handled] { return handled; }))
        return false;
    const auto *pages = find<QStackedWidget>("stackedWidget_dialog");
    press("pushButton_Security");
    const bool turned = pages->currentIndex() == 3;
    press("pushButton_Inout");
    return turned && pages->currentIndex() == 0 && !window.grab().isNull();
}

bool FaultFixture::waitForCalls(qsizetype count)
{
    return QTest::qWaitFor([this, count] { return calls().size() == count; }, 60000);
}

bool FaultFixture::waitForToolsAlone()
{
    QElapsedTimer timeout;
    timeout.start();
    const auto started = calls();
    const auto allEnded = [&started] {
        return std::ranges::all_of(started,
                                   [](const ToolCall &call) { return hasEnded(call.pid); });
    };
    while (!allEnded()) {
        if (timeout.hasExpired(60000))
            return false;
        QThread::msleep(1);
    }
    return true;
}

void FaultFixture::setFolderWritable(bool writable)
{
    const auto readOnly = QFile::ReadOwner | QFile::ExeOwner;
    QFile::setPermissions(outputPath(), writable ? readOnly | QFile::WriteOwner : readOnly);
}

ToolPlace::ToolPlace(const QString &tool, Kind kind)
    : place(QCoreApplication::applicationDirPath() + QLatin1Char('/') + tool)
    , aside(place + u".aside"_s)
{
    if (!QFile::rename(place, aside))
        qFatal("cannot move %s aside", qPrintable(place));
    if (kind == NotExecutable && !QFile(place).open(QIODevice::WriteOnly))
        qFatal("cannot write %s", qPrintable(place));
}

ToolPlace::~ToolPlace()
{
    QFile::remove(place);
    QFile::rename(aside, place);
}

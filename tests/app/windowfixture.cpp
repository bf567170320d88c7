#include "windowfixture.h"

#include "bundlepaths.h"

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QProcess>

#include <csignal>

WindowFixture::WindowFixture()
{
    QDir::setCurrent(bundleFolder(QCoreApplication::applicationDirPath()));
    QDir(folder.path()).mkpath(QStringLiteral("in"));
    QDir(folder.path()).mkpath(QStringLiteral("out"));
    qputenv("TESSARO_FAKE_LOG", QFile::encodeName(folder.filePath(QStringLiteral("calls"))));
    scriptConvert({});
    scriptPdftk({});
    window.show();
}

WindowFixture::~WindowFixture()
{
    const auto started = calls();
    for (const ToolCall &call : started)
        kill(static_cast<pid_t>(call.pid), SIGKILL); // a held or hanging tool
}

QString WindowFixture::outputPath(const QString &name) const
{
    const QString output = folder.filePath(QStringLiteral("out"));
    return name.isEmpty() ? output : output + QLatin1Char('/') + name;
}

QString WindowFixture::makeFile(const QString &name, const QByteArray &content) const
{
    return writeContent(inputPath(name), content);
}

QStringList WindowFixture::addImages(const QStringList &names)
{
    QStringList paths;
    QList<QUrl> urls;
    for (const QString &name : names) {
        paths << makeFile(name);
        urls << QUrl::fromLocalFile(paths.last());
    }
    drop(urls);
    return paths;
}

void WindowFixture::setOutputFolder()
{
    fill("outputfolderEdit", outputPath());
}

void WindowFixture::activate()
{
    window.activateWindow();
    if (!QTest::qWaitForWindowActive(&window))
        qFatal("the window does not become active");
}

QString WindowFixture::holdTool()
{
    const QString gate = folder.filePath(QStringLiteral("gate"));
    if (!QFile(gate).open(QIODevice::WriteOnly))
        qFatal("cannot make the gate");
    return QStringLiteral("gate=") + gate;
}

void WindowFixture::openGate()
{
    QFile::remove(folder.filePath(QStringLiteral("gate")));
}

QList<ToolCall> WindowFixture::calls() const
{
    QFile log(folder.filePath(QStringLiteral("calls")));
    QList<ToolCall> calls;
    if (!log.open(QIODevice::ReadOnly))
        return calls;
    while (!log.atEnd()) {
        QStringList words = QString::fromUtf8(log.readLine().chopped(1)).split(QLatin1Char('\t'));
        const QString tool = words.takeFirst();
        const qint64 pid = words.takeFirst().toLongLong();
        calls.append({tool, pid, words});
    }
    return calls;
}

QStringList WindowFixture::rows() const
{
    QStringList rows;
    const QList<ListedFile> files = listedFiles();
    for (const auto &[path, size] : files) {
        const QString name = QString(path).remove(inputPath({}));
        rows << (size.isNull() ? name : name + QLatin1Char('|') + size);
    }
    return rows;
}

QStringList WindowFixture::outputFiles() const
{
    QStringList files;
    const QDir output(outputPath());
    const QStringList names = output.entryList(QDir::Files | QDir::Hidden, QDir::Name);
    for (const QString &name : names) {
        QString content = QString::fromUtf8(contentOf(output.filePath(name), "unreadable"));
        content.replace(folder.filePath(QStringLiteral("in/")), QString());
        files << name + QStringLiteral(": ") + content;
    }
    return files;
}

QByteArray contentBesideTheBundle(const QString &name)
{
    return contentOf(name, "none");
}

ModalAnswer::ModalAnswer(std::function<void(QWidget *)> answerFunction)
    : answer(std::move(answerFunction))
{
    QObject::connect(&timer, &QTimer::timeout, [this] { look(); });
    timer.start(0);
}

void ModalAnswer::look()
{
    QWidget *box = QApplication::activeModalWidget();
    if (!box)
        return;
    timer.stop();
    came = true;
    answer(box);
    if (box->isVisible())
        box->close();
}

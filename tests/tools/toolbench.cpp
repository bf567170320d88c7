#include "toolbench.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QTest>

namespace {

// Longer than anything here takes on a busy machine.
constexpr int patience = 300'000;

} // namespace

QString bundledTool(const QString &name)
{
    return bundleContents() + "/MacOS/" + name;
}

QString bundleContents()
{
    return QStringLiteral(TESSARO_CONTENTS);
}

std::unique_ptr<QProcess> startProgram(const QString &program, const QStringList &arguments,
                                       const QString &folder, const Variables &variables)
{
    auto process = std::make_unique<QProcess>();
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const auto &[name, value] : variables)
        environment.insert(name, value);
    process->setProcessEnvironment(environment);
    process->setWorkingDirectory(folder);
    process->setStandardInputFile(QProcess::nullDevice());
    process->start(program, arguments);
    return process;
}

RunResult runProgram(const QString &program, const QStringList &arguments, const QString &folder,
                     const Variables &variables)
{
    const std::unique_ptr<QProcess> process = startProgram(program, arguments, folder, variables);
    if (!process->waitForStarted(patience) || !process->waitForFinished(patience))
        return {-1, {}, process->errorString().toUtf8()};
    const bool exited = process->exitStatus() == QProcess::NormalExit;
    return {exited ? process->exitCode() : -1, process->readAllStandardOutput(),
            process->readAllStandardError()};
}

RunResult runBundled(const QString &name, const QStringList &arguments, const QString &folder,
                     const Variables &variables)
{
    return runProgram(bundledTool(name), arguments, folder, variables);
}

RunResult assembleTools(const QString &contents, const Variables &variables,
                        const QStringList &options)
{
    return runProgram(QStringLiteral(TESSARO_ASSEMBLE), options + QStringList{contents},
                      QDir::tempPath(), variables);
}

QStringList namesIn(const QString &folder)
{
    return QDir(folder).entryList(
        QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void writeContent(const QString &path, const QByteArray &content)
{
    QFile file(path);
    QVERIFY2(file.open(QIODevice::WriteOnly), qPrintable(path));
    QCOMPARE(file.write(content), content.size());
}

void makeImage(const QString &path, QSize size)
{
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < size.width(); ++x)
            line[x] = qRgb(255 - x % 251, 255 - y % 241, (x * y) % 239);
    }
    QVERIFY2(image.save(path), qPrintable(path));
}

ToolBundle::ToolBundle(const QStringList &convertTool, const QStringList &pdftkTool)
{
    QDir().mkpath(contents() + "/MacOS");
    for (const char *policy : {"limits", "rights/ImageMagick"}) {
        const QString folder = "/Resources/magick/" + QString(policy);
        QDir().mkpath(contents() + folder);
        QFile::copy(bundleContents() + folder + "/policy.xml", contents() + folder + "/policy.xml");
    }
    for (const char *name : {"convert", "pdftk"})
        QFile::copy(bundledTool(name), tool(name));
    QFile::copy(bundledTool("convert-pages.so"), tool("convert-pages.so"));
    writeContent(contents() + "/Resources/convert.tool", convertTool.join('\n').toUtf8());
    writeContent(contents() + "/Resources/pdftk.tool", pdftkTool.join('\n').toUtf8());
}

RunResult runInShell(const QString &setting, const QString &program, const QStringList &arguments,
                     const QString &folder, const Variables &variables)
{
    return runProgram("/bin/sh",
                      QStringList{"-c", setting + "\nexec \"$0\" \"$@\"", program} + arguments,
                      folder, variables);
}

QStringList shellTool(const QString &script)
{
    return {"/bin/sh", "-c", script, "fake"};
}

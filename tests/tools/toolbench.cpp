#include "toolbench.h"

#include <QDir>
#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

// Longer than anything here takes on a busy machine.
constexpr int timeout = 300'000;

const QString shell = u"/bin/sh"_s;

} // namespace

QString bundledTool(const QString &name)
{
    return bundleContents() + u"/MacOS/"_s + name;
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
    if (!process->waitForStarted(timeout) || !process->waitForFinished(timeout))
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

RunResult runRealConvert(const QStringList &arguments, const QString &folder)
{
    const QString resources = bundleContents() + u"/Resources"_s;
    const QStringList command = QString::fromUtf8(contentOf(resources + u"/convert.tool"_s))
                                    .split(u'\n', Qt::SkipEmptyParts);
    return runProgram(command.first(), command.mid(1) + arguments, folder,
                      {{u"MAGICK_CONFIGURE_PATH"_s, resources + u"/magick/limits"_s},
                       {u"XDG_CONFIG_HOME"_s, resources + u"/magick/rights"_s},
                       {u"HOME"_s, resources + u"/magick"_s},
                       {u"MAGICK_THREAD_LIMIT"_s, u"1"_s},
                       {u"LC_ALL"_s, u"C.UTF-8"_s}});
}

RunResult assembleTools(const QString &contents, const Variables &variables,
                        const QStringList &options)
{
    return runProgram(QStringLiteral(TESSARO_ASSEMBLE), options + QStringList{contents},
                      QDir::tempPath(), variables);
}

QList<pid_t> processesWith(const QByteArray &word)
{
    QList<pid_t> found;
    for (const QString &process : QDir(u"/proc"_s).entryList(QDir::Dirs)) {
        if (process.toInt() > 0 && contentOf(u"/proc/"_s + process + u"/cmdline"_s).contains(word))
            found.append(process.toInt());
    }
    return found;
}

void makeLargePdf(const QString &path)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QByteArray table = "0000000000 65535 f \n";
    const auto begin = [&file, &table](const QByteArray &content) {
        table += QByteArray::number(file.pos()).rightJustified(10, '0') + " 00000 n \n";
        file.write(content);
    };
    file.write("%PDF-1.4\n");
    begin("1 0 obj\n<< /Type /Catalog /Pages 2 0 R >>\nendobj\n");
    begin("2 0 obj\n<< /Type /Pages /Count 1 /Kids [3 0 R] >>\nendobj\n");
    QByteArray streams;
    for (int number = 4; number < 104; ++number)
        streams += QByteArray::number(number) + " 0 R ";
    begin("3 0 obj\n<< /Type /Page /MediaBox [0 0 9 9] /Parent 2 0 R /Contents [" + streams +
          "] >>\nendobj\n");
    for (int number = 4; number < 104; ++number) {
        begin(QByteArray::number(number) + " 0 obj\n<< /Length 20000000 >>\nstream\n");
        file.seek(file.pos() + 20'000'000);
        file.write("\nendstream\nendobj\n");
    }
    const QByteArray place = QByteArray::number(file.pos());
    file.write("xref\n0 104\n" + table + "trailer\n<< /Size 104 /Root 1 0 R >>\nstartxref\n" +
               place + "\n%%EOF\n");
}

bool isWriting(const QString &folder)
{
    const QStringList work = QDir(folder).entryList({u".tessaro-*"_s}, QDir::Dirs | QDir::Hidden);
    return QFileInfo(folder + u'/' + work.value(0) + u"/result.pdf"_s).size() > 0;
}

ToolBundle::ToolBundle(const QStringList &convertTool)
{
    QDir().mkpath(contents() + u"/MacOS"_s);
    for (const QString &folder :
         {u"/Resources/magick/limits"_s, u"/Resources/magick/rights/ImageMagick"_s}) {
        QDir().mkpath(contents() + folder);
        QFile::copy(bundleContents() + folder + u"/policy.xml"_s,
                    contents() + folder + u"/policy.xml"_s);
    }
    for (const QString &name : {u"convert"_s, u"pdftk"_s})
        QFile::copy(bundledTool(name), tool(name));
    if (convertTool.value(0) == shell)
        liftSandbox(u"convert"_s);
    writeContent(contents() + u"/Resources/convert.tool"_s, convertTool.join(u'\n').toUtf8());
}

// A wrapper in front of the program: its kernel seems to offer no sandbox.
void ToolBundle::liftSandbox(const QString &name) const
{
    QVERIFY(QFile::rename(tool(name), tool(name) + u".program"_s));
    writeContent(tool(name),
                 "#!/bin/sh\nexec " TESSARO_WITHOUTCALLS " sandbox \"$0.program\" \"$@\"\n");
    QFile::setPermissions(tool(name), QFile::permissions(tool(name)) | QFile::ExeOwner);
}

RunResult runInShell(const QString &setting, const QString &program, const QStringList &arguments,
                     const QString &folder, const Variables &variables)
{
    return runProgram(u"/bin/sh"_s,
                      QStringList{u"-c"_s, setting + u"\nexec \"$0\" \"$@\""_s, program} +
                          arguments,
                      folder, variables);
}

QStringList shellTool(const QString &script)
{
    return {shell, u"-c"_s, script, u"fake"_s};
}

#pragma once

#include "files.h"

#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <memory>

/// How a program that was run to its end has ended.
struct RunResult
{
    /// -1 when it could not be started or was ended by a signal.
    int status = -1;
    QByteArray output;
    QByteArray errors;
};

using Variables = QList<std::pair<QString, QString>>;

/// The program "convert" or "pdftk" of the bundle in the build tree.
QString bundledTool(const QString &name);
/// Contents of that bundle.
QString bundleContents();

/// Runs a program to its end in `folder`, with nothing to read and `variables` put into the
/// environment.
RunResult runProgram(const QString &program, const QStringList &arguments, const QString &folder,
                     const Variables &variables = {});
RunResult runBundled(const QString &name, const QStringList &arguments, const QString &folder,
                     const Variables &variables = {});
/// The real ImageMagick under the policy of the bundle in the build tree, with one thread.
RunResult runRealConvert(const QStringList &arguments, const QString &folder);
/// Runs a program from a shell that has made its `setting` first: a limit, a mask, a trap.
RunResult runInShell(const QString &setting, const QString &program, const QStringList &arguments,
                     const QString &folder, const Variables &variables = {});
/// packaging/assemble-tools for the bundle with this Contents.
RunResult assembleTools(const QString &contents, const Variables &variables = {},
                        const QStringList &options = {});

/// Starts a program and leaves it to the caller.
std::unique_ptr<QProcess> startProgram(const QString &program, const QStringList &arguments,
                                       const QString &folder, const Variables &variables = {});

/// The processes whose arguments contain `word`, zombies (which have none) left out.
QList<pid_t> processesWith(const QByteArray &word);

/// A PDF with a hundred streams of 20 MB each that take no room on the disk: what pdftk needs
/// seconds for.
void makeLargePdf(const QString &path);
/// Whether our pdftk, at work on a PDF in `folder`, has written some of it.
bool isWriting(const QString &folder);

/// A bundle of its own in a temporary folder: the two programs, and the words of `convertTool`
/// instead of ImageMagick. A script starts other programs, which no sandbox lets it do: in front of
/// one `convert` runs without.
class ToolBundle
{
public:
    explicit ToolBundle(const QStringList &convertTool);
    QString contents() const { return m_folder.filePath(QStringLiteral("Tessaro.app/Contents")); }
    QString tool(const QString &name) const
    {
        return contents() + QStringLiteral("/MacOS/") + name;
    }

private:
    void liftSandbox(const QString &name) const;

    QTemporaryDir m_folder;
};

/// The words of a real tool that is a shell script; "$1" is the first argument it is given.
QStringList shellTool(const QString &script);

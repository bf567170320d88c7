#include "startcommand.h"

#include "sandboxsupport.h"
#include "startarguments.h"
#include "startup.h"
#include "translation.h"

#include <QApplication>
#include <QFileInfo>
#include <QMessageBox>

#include <cstdio>
#include <cstdlib>

#include <unistd.h>

namespace {

// One line, even if a file's name contains line breaks.
void printError(QString message)
{
    for (QChar &letter : message) {
        if (letter.category() == QChar::Other_Control)
            letter = QLatin1Char('?');
    }
    std::fprintf(stderr, "tessaro: %s\n", message.toLocal8Bit().constData());
}

// An environment variable that the launcher sets, and the message for it.
struct StartFailure
{
    const char *variable;
    const char *sentence;
};

constexpr StartFailure startFailures[] = {
    {"TESSARO_PLACE_FAILURE",
     QT_TRANSLATE_NOOP("CommandLine",
                       "The program cannot start: %1. It needs a folder of its own, in "
                       "XDG_DATA_HOME or ~/.local/share, in which it can write, make links and run "
                       "programs.")},
    {"TESSARO_TOOLS_FAILURE", QT_TRANSLATE_NOOP("CommandLine", "The program cannot start: %1")},
};

// Without a display Qt dumps core and advises to install the program again.
void endWithoutDisplay(QtMsgType type, const QMessageLogContext &, const QString &)
{
    if (type != QtFatalMsg)
        return;
    installTranslators(*QCoreApplication::instance(), wantedLanguage());
    printError(
        QCoreApplication::translate("CommandLine", "There is no display to show the window on."));
    std::_Exit(notStarted);
}

bool isDisplayNamed()
{
    return qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
}

QString startFailureSentence(const StartFailure &failure, int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    installTranslators(application, wantedLanguage());
    return QCoreApplication::translate("CommandLine", failure.sentence)
        .arg(qEnvironmentVariable(failure.variable));
}

void report(const StartFailure &failure, int argc, char **argv)
{
    const QString sentence = startFailureSentence(failure, argc, argv);
    printError(sentence);
    if (isatty(STDERR_FILENO) != 0 || !isDisplayNamed())
        return;
    const std::unique_ptr<QApplication> application = makeApplication(argc, argv);
    QMessageBox::critical(nullptr, QStringLiteral("Tessaro Image to PDF Converter"), sentence);
}

} // namespace

bool printHelpOrVersion(int argc, char **argv)
{
    QStringList words;
    for (int i = 0; i < argc; ++i)
        words << QString::fromLocal8Bit(argv[i]);
    const StartArguments parsed = readStartArguments(words);
    if (!parsed.wantsHelp && !parsed.wantsVersion)
        return false;
    QCoreApplication application(argc, argv);
    installTranslators(application, wantedLanguage());
    const QString answer =
        parsed.wantsHelp
            ? startHelp()
            : QStringLiteral("Tessaro Image to PDF Converter " TESSARO_VERSION "\nSandbox: ") +
                  QString::fromStdString(describeSandbox()) + QLatin1Char('\n');
    std::fputs(answer.toLocal8Bit().constData(), stdout);
    return true;
}

bool reportStartFailure(int argc, char **argv)
{
    for (const StartFailure &failure : startFailures) {
        if (qEnvironmentVariableIsSet(failure.variable)) {
            report(failure, argc, argv);
            return true;
        }
    }
    return false;
}

std::unique_ptr<QApplication> makeApplication(int &argc, char **argv)
{
    qInstallMessageHandler(endWithoutDisplay);
    auto application = std::make_unique<QApplication>(argc, argv);
    qInstallMessageHandler(nullptr);
    setUpApplication(*application);
    return application;
}

std::optional<QStringList> startFiles(const QStringList &arguments, const QString &folder)
{
    const StartArguments parsed = readStartArguments(arguments);
    if (!parsed.unknownOptions.isEmpty()) {
        printError(QCoreApplication::translate("CommandLine", "There is no option %1; see --help.")
                       .arg(parsed.unknownOptions.first()));
        return std::nullopt;
    }
    QStringList files;
    for (const QString &argument : parsed.files) {
        const QString file = startFile(argument, folder);
        if (QFileInfo::exists(file))
            files << file;
        else
            printError(QCoreApplication::translate("CommandLine", "There is no file %1.")
                           .arg(file.isEmpty() ? argument : file));
    }
    return files;
}

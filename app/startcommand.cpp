#include "startcommand.h"

#include "startarguments.h"
#include "translation.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <cstdio>

namespace {

// One line, whatever a file's name holds.
void complain(QString message)
{
    for (QChar &letter : message) {
        if (letter.category() == QChar::Other_Control)
            letter = QLatin1Char('?');
    }
    std::fprintf(stderr, "tessaro: %s\n", message.toLocal8Bit().constData());
}

} // namespace

bool answerQuestion(int argc, char **argv)
{
    QStringList words;
    for (int i = 0; i < argc; ++i)
        words << QString::fromLocal8Bit(argv[i]);
    const StartArguments asked = readStartArguments(words);
    if (!asked.wantsHelp && !asked.wantsVersion)
        return false;
    QCoreApplication application(argc, argv);
    speak(application, wantedLanguage());
    const QString answer =
        asked.wantsHelp ? startHelp()
                        : QStringLiteral("Tessaro Image to PDF Converter " TESSARO_VERSION "\n");
    std::fputs(answer.toLocal8Bit().constData(), stdout);
    return true;
}

std::optional<QStringList> startFiles(const QStringList &arguments, const QString &folder)
{
    const StartArguments asked = readStartArguments(arguments);
    if (!asked.unknownOptions.isEmpty()) {
        complain(QCoreApplication::translate("CommandLine", "There is no option %1; see --help.")
                     .arg(asked.unknownOptions.first()));
        return std::nullopt;
    }
    QStringList files;
    for (const QString &argument : asked.files) {
        const QString file = startFile(argument, folder);
        if (QFileInfo::exists(file))
            files << file;
        else
            complain(QCoreApplication::translate("CommandLine", "There is no file %1.")
                         .arg(file.isEmpty() ? argument : file));
    }
    return files;
}

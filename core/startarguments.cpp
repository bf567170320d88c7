#include "startarguments.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QUrl>

namespace {

QString plain(const char *text)
{
    return QCoreApplication::translate("CommandLine", text);
}

void describe(QCommandLineParser &parser)
{
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    parser.setApplicationDescription(
        plain(QT_TRANSLATE_NOOP("CommandLine", "Turns images into PDF documents.")));
    parser.addPositionalArgument(
        QStringLiteral("FILE"),
        plain(QT_TRANSLATE_NOOP("CommandLine", "Images to list when the window opens.")),
        QStringLiteral("[FILE ...]"));
    parser.addOption({{QStringLiteral("h"), QStringLiteral("help")},
                      plain(QT_TRANSLATE_NOOP("CommandLine", "Show this help and end."))});
    parser.addOption({{QStringLiteral("v"), QStringLiteral("version")},
                      plain(QT_TRANSLATE_NOOP("CommandLine", "Show the version and end."))});
}

QString localPath(const QUrl &url)
{
    const bool isHere = url.host().isEmpty() || url.host() == QLatin1String("localhost");
    return isHere && url.isLocalFile() ? url.path(QUrl::FullyDecoded) : QString();
}

/// The option `name` as typed in `arguments`, with its dashes and without a value.
QString asTyped(const QString &name, const QStringList &arguments)
{
    for (const QString &argument : arguments) {
        QString option = argument.section(QLatin1Char('='), 0, 0);
        if (option == QLatin1Char('-') + name || option == QLatin1String("--") + name)
            return option;
    }
    return name;
}

} // namespace

StartArguments readStartArguments(const QStringList &arguments)
{
    QCommandLineParser parser;
    describe(parser);
    parser.parse(arguments);
    QStringList unknownOptions = parser.unknownOptionNames();
    for (QString &option : unknownOptions)
        option = asTyped(option, arguments);
    return {parser.isSet(QStringLiteral("help")), parser.isSet(QStringLiteral("version")),
            unknownOptions, parser.positionalArguments()};
}

QString startHelp()
{
    QCommandLineParser parser;
    describe(parser);
    return parser.helpText();
}

QString startFile(const QString &argument, const QString &folder)
{
    const bool isUrl = argument.startsWith(QLatin1String("file:"), Qt::CaseInsensitive);
    QString path = isUrl ? localPath(QUrl(argument)) : argument;
    // Not by QDir, which takes ":x" for the absolute name of a resource.
    if (path.isEmpty() || path.startsWith(QLatin1Char('/')))
        return path;
    QString start = folder;
    while (path.startsWith(QLatin1String("./")) || path.startsWith(QLatin1String("../"))) {
        start = QDir::cleanPath(start + QLatin1Char('/') + path.section(QLatin1Char('/'), 0, 0));
        path.remove(0, path.indexOf(QLatin1Char('/')));
        while (path.startsWith(QLatin1Char('/')))
            path.remove(0, 1);
    }
    return start + (start.endsWith(QLatin1Char('/')) ? QString() : QStringLiteral("/")) + path;
}

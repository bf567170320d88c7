#include "launcherfixture.h"

#include <QDir>
#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;

Ended ended(QProcess &process)
{
    process.waitForFinished();
    if (process.exitStatus() != QProcess::NormalExit)
        return {};
    return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
}

QByteArray programText(char version)
{
    return QByteArray("#!/bin/sh\necho \"") + version + R"(|$PWD|$*"
[ -z "$TESSARO_PLACE_FAILURE$TESSARO_TOOLS_FAILURE" ] && exit 7
echo "place: $TESSARO_PLACE_FAILURE, tools: $TESSARO_TOOLS_FAILURE" >&2
exit 1
)";
}

void LauncherFixture::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_prefix = path(u"a prefix"_s);
    QVERIFY(QDir().mkpath(path(u"home"_s)));
    QVERIFY(QDir().mkpath(m_prefix + u"/bin"_s));
    QVERIFY(QFile::copy(QStringLiteral(TESSARO_LAUNCHER), m_prefix + u"/bin/tessaro"_s));
    write(u"MacOS/tessaro"_s, programText('1'));
    write(u"MacOS/convert"_s, "convert");
    write(u"Plugins/platforms/libq.so"_s, "plug-in");
    write(u"Resources/convert.tool"_s, "tool");
}

void LauncherFixture::write(const QString &name, const QByteArray &content) const
{
    const QString file = m_prefix + u"/lib/tessaro/Tessaro.app/Contents/"_s + name;
    QVERIFY(QDir().mkpath(QFileInfo(file).path()));
    QFile::remove(file);
    QFile out(file);
    QVERIFY(out.open(QIODevice::WriteOnly) && out.write(content) == content.size());
    QVERIFY(out.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
}

std::unique_ptr<QProcess> LauncherFixture::start(const Variables &variables,
                                                 const QStringList &words) const
{
    auto process = std::make_unique<QProcess>();
    process->setEnvironment(variables);
    process->setWorkingDirectory(m_folder->path());
    process->start(m_prefix + u"/bin/tessaro"_s, words);
    return process;
}

Ended LauncherFixture::run(const Variables &variables, const QStringList &words) const
{
    return ended(*start(variables, words));
}

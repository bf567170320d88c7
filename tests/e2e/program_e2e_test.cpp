// The shipped program with its own start-up, folders and plug-ins, driven through the X server.

#include "pdffacts.h"
#include "xdotool.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

class ProgramE2eTest : public QObject
{
    Q_OBJECT

private slots:
    void shippedProgramConvertsAnImage();
    void openedProgramHasTheUsualStack();
    void keyboardReturnsFromTheAboutBox();
    void noDisplayIsOneSentence();
    void startFailureIsReportedInABox();
    void questionsAreAnsweredInSpiteOfAStartFailure();
};

namespace {

const QString program = QStringLiteral(BUNDLE "/Contents/MacOS/tessaro");
const QString title = u"Tessaro Image to PDF Converter"_s;

QProcessEnvironment environmentWith(const QString &name, const QString &value)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(name, value);
    return environment;
}

} // namespace

void ProgramE2eTest::shippedProgramConvertsAnImage()
{
    const QTemporaryDir folder;
    // The bundle is copied away from the build tree: nothing in it depends on where it was made.
    const QString place = folder.filePath(u"a place.d"_s);
    QVERIFY(QDir().mkpath(place));
    QCOMPARE(QProcess::execute(u"cp"_s, {u"-a"_s, QStringLiteral(BUNDLE), place}), 0);
    const QString output = folder.filePath(u"out"_s);
    QVERIFY(QDir().mkpath(output));

    QProcess program;
    program.setWorkingDirectory(u"/"_s);
    program.setProcessChannelMode(QProcess::MergedChannels);
    program.start(place + u"/Tessaro.app/Contents/MacOS/tessaro"_s, QStringList());
    QVERIFY(waitForKeyboard(title));
    QCOMPARE(QFile::symLinkTarget(u"/proc/%1/cwd"_s.arg(program.processId())), place);

    clickAt(70, 282); // Open
    QVERIFY(waitForKeyboard(u"Choose files to convert"_s));
    choose(QStringLiteral(SAMPLES "/market.pcx"));
    const QString settings = place + u"/setting.ini"_s;
    QVERIFY(QTest::qWaitFor([&] { return QFile::exists(settings); }, stepTimeout));

    clickAt(200, 332); // output folder
    type(output);
    clickAt(280, 420); // description page
    clickAt(330, 121); // title
    type(u"Market day"_s);
    clickAt(70, 420);  // back to the files
    clickAt(470, 345); // convert
    const QString pdf = output + u"/market.pdf"_s;
    QVERIFY(QTest::qWaitFor([&] { return readPdf(pdf).title == QLatin1String("Market day"); },
                            stepTimeout));

    program.terminate();
    QVERIFY(program.waitForFinished(stepTimeout));
    const QByteArray messages = program.readAll();
    QVERIFY2(messages.isEmpty() || messages.startsWith("QStandardPaths: XDG_RUNTIME_DIR"),
             messages.constData());
}

void ProgramE2eTest::openedProgramHasTheUsualStack()
{
    const QTemporaryDir folder;
    QFile opener(folder.filePath(u"xdg-open"_s));
    QVERIFY(opener.open(QIODevice::WriteOnly));
    opener.write("#!/bin/sh\nulimit -S -s > \"${0%/*}/stack\"\n");
    opener.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    opener.close();

    QProcess process;
    process.setProcessEnvironment(
        environmentWith(u"PATH"_s, folder.path() + u':' + qEnvironmentVariable("PATH")));
    process.start(u"sh"_s, {u"-c"_s, u"ulimit -S -s 8192; exec \"$@\""_s, u"sh"_s, program,
                            QStringLiteral(SAMPLES "/market.pcx")});
    QVERIFY(waitForKeyboard(title));
    clickAt(200, 332); // output folder
    type(folder.path());
    clickAt(470, 345); // convert
    QVERIFY(QTest::qWaitFor([&folder] { return QFile::exists(folder.filePath(u"market.pdf"_s)); },
                            stepTimeout));
    clickAt(100, 100); // the row
    press(u"Return"_s);
    QFile stack(folder.filePath(u"stack"_s));
    QVERIFY(QTest::qWaitFor([&stack] { return stack.size() > 0; }, stepTimeout));
    QVERIFY(stack.open(QIODevice::ReadOnly));
    QCOMPARE(stack.readAll(), QByteArray("8192\n"));
    process.terminate();
    QVERIFY(process.waitForFinished(stepTimeout));
}

// Without a window manager.
void ProgramE2eTest::keyboardReturnsFromTheAboutBox()
{
    QProcess process;
    process.start(program, QStringList());
    QVERIFY(waitForKeyboard(title));
    clickAt(500, 420); // about
    QVERIFY(waitForKeyboard(u"About"_s));
    press(u"Escape"_s);
    QVERIFY(waitForKeyboard(title));
    process.terminate();
    QVERIFY(process.waitForFinished(stepTimeout));
}

void ProgramE2eTest::noDisplayIsOneSentence()
{
    QProcess process;
    process.setProcessEnvironment(environmentWith(u"DISPLAY"_s, u":9999"_s));
    process.start(program, QStringList());
    QVERIFY(process.waitForFinished(stepTimeout));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 1);
    QCOMPARE(process.readAllStandardError(),
             QByteArray("tessaro: There is no display to show the window on.\n"));
}

void ProgramE2eTest::startFailureIsReportedInABox()
{
    QProcess process;
    QProcessEnvironment environment = environmentWith(u"TESSARO_PLACE_FAILURE"_s, u"/a: noexec"_s);
    environment.insert(u"LANGUAGE"_s, u"de"_s);
    environment.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
    process.setProcessEnvironment(environment);
    process.start(program, QStringList());
    QVERIFY(waitForKeyboard(title));
    press(u"Return"_s);
    QVERIFY(process.waitForFinished(stepTimeout));
    QCOMPARE(process.exitCode(), 1);
    const QByteArray errors = process.readAllStandardError();
    QVERIFY2(errors.contains("tessaro: Das Programm kann nicht starten: /a: noexec."),
             errors.constData());
}

void ProgramE2eTest::questionsAreAnsweredInSpiteOfAStartFailure()
{
    QProcess process;
    process.setProcessEnvironment(environmentWith(u"TESSARO_TOOLS_FAILURE"_s, u"none"_s));
    process.start(program, {u"--version"_s});
    QVERIFY(process.waitForFinished(stepTimeout));
    QCOMPARE(process.exitCode(), 0);
    QVERIFY(process.readAllStandardOutput().startsWith(title.toUtf8()));
    QCOMPARE(process.readAllStandardError(), QByteArray());
}

QTEST_GUILESS_MAIN(ProgramE2eTest)
#include "program_e2e_test.moc"

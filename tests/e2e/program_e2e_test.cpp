// The program as it ships, worked from outside through the X server: its own start-up, folders and
// plug-ins count here.

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
};

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
    QVERIFY(waitForKeyboard(u"Tessaro Image to PDF Converter"_s));
    QCOMPARE(QFile::symLinkTarget(u"/proc/%1/cwd"_s.arg(program.processId())), place);

    clickAt(70, 282); // Open
    QVERIFY(waitForKeyboard(u"Choose files to convert"_s));
    type(QStringLiteral(SAMPLES "/market.pcx"));
    press(u"Return"_s);
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

QTEST_GUILESS_MAIN(ProgramE2eTest)
#include "program_e2e_test.moc"

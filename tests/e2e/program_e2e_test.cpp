// The program as it ships, worked from outside through the X server: its own start-up, folders and
// plug-ins count here.

#include "pdffacts.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

namespace {

constexpr int stepTimeout = 30000; // ms

/// Runs a command and returns what it prints.
QString run(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished(stepTimeout);
    return QString::fromUtf8(process.readAllStandardOutput()).trimmed();
}

QString xdotool(const QStringList &arguments)
{
    return run(QStringLiteral("xdotool"), arguments);
}

bool waitForWindow(const QString &title)
{
    return QTest::qWaitFor(
        [&title] {
            return !xdotool({"search", "--onlyvisible", "--name", title}).isEmpty();
        },
        stepTimeout);
}

void clickAt(int x, int y)
{
    xdotool({"mousemove", QString::number(x), QString::number(y), "click", "1"});
}

} // namespace

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
    const QString place = folder.filePath(QStringLiteral("a place.d"));
    QVERIFY(QDir().mkpath(place));
    QCOMPARE(QProcess::execute(QStringLiteral("cp"), {"-a", BUNDLE, place}), 0);
    const QString output = folder.filePath(QStringLiteral("out"));
    QVERIFY(QDir().mkpath(output));

    QProcess program;
    program.setWorkingDirectory(QStringLiteral("/"));
    program.setProcessChannelMode(QProcess::MergedChannels);
    program.start(place + QStringLiteral("/Tessaro.app/Contents/MacOS/tessaro"), QStringList());
    QVERIFY(waitForWindow(QStringLiteral("Tessaro Image to PDF Converter")));
    QCOMPARE(QFile::symLinkTarget(QStringLiteral("/proc/%1/cwd").arg(program.processId())), place);

    clickAt(70, 282); // Open
    QVERIFY(waitForWindow(QStringLiteral("Choose files to convert")));
    xdotool({"type", "--delay", "5", QStringLiteral(SAMPLES "/market.pcx")});
    xdotool({"key", "Return"});
    const QString settings = place + QStringLiteral("/setting.ini");
    QVERIFY(QTest::qWaitFor([&] { return QFile::exists(settings); }, stepTimeout));

    clickAt(200, 332); // output folder
    xdotool({"type", "--delay", "5", output});
    clickAt(280, 420); // description page
    clickAt(330, 121); // title
    xdotool({"type", "--delay", "5", "Market day"});
    clickAt(70, 420);  // back to the files
    clickAt(470, 345); // convert
    const QString pdf = output + QStringLiteral("/market.pdf");
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

// The window is closed while a tool works: the program ends at once and cleanly, and the tool ends
// by itself. The program is this executable again, started with arguments.

#include "faults_fixture.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QProcess>

using namespace Qt::StringLiterals;

namespace {

const QString childWord = u"--close-during-a-run"_s;

/// A fake tool, held back by a gate, has been called.
bool toolWorks()
{
    return QFile::exists(qEnvironmentVariable("TESSARO_FAKE_LOG"));
}

/// The whole life of a program whose window is closed during a run: FOLDER merged|single TITLE.
int closeDuringARun(int argc, char *argv[])
{
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments().mid(2);
    const QDir folder(arguments.at(0));
    QDir::setCurrent(folder.path());
    WindowControls controls;
    controls.window.show();
    controls.fill("outputfolderEdit", folder.path());
    controls.fill("lineEdit_title", arguments.at(2));
    controls.check("checkBox_joinpdf", arguments.at(1) == QLatin1String("merged"));
    controls.drop({QUrl::fromLocalFile(folder.filePath(u"a.jpg"_s)),
                   QUrl::fromLocalFile(folder.filePath(u"b.jpg"_s))});
    controls.press("runButton");

    QTimer watcher;
    QObject::connect(&watcher, &QTimer::timeout, &controls.window, [&controls] {
        if (toolWorks())
            controls.window.close();
    });
    watcher.start(5);
    return QApplication::exec();
}

void touch(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        qFatal("cannot write %s", qPrintable(path));
}

} // namespace

class FaultsCloseTest : public QObject
{
    Q_OBJECT

private slots:
    void programEndsCleanlyAndTheToolByItself_data();
    void programEndsCleanlyAndTheToolByItself();
};

void FaultsCloseTest::programEndsCleanlyAndTheToolByItself_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("title");
    QTest::newRow("one by one") << "single"
                                << "";
    QTest::newRow("one by one with a description") << "single"
                                                   << "T";
    QTest::newRow("merged") << "merged"
                            << "";
    QTest::newRow("merged with a description") << "merged"
                                               << "T";
}

void FaultsCloseTest::programEndsCleanlyAndTheToolByItself()
{
    QFETCH(QString, kind);
    QFETCH(QString, title);
    const QTemporaryDir folder;
    const QString gate = folder.filePath(u"gate"_s);
    for (const char *name : {"gate", "a.jpg", "b.jpg"})
        touch(folder.filePath(QLatin1String(name)));
    qputenv("TESSARO_FAKE_LOG", folder.filePath(u"calls"_s).toUtf8());
    qputenv("TESSARO_FAKE_CONVERT", "outlive gate=" + gate.toUtf8());

    QProcess program;
    program.setProcessChannelMode(QProcess::MergedChannels);
    program.start(QCoreApplication::applicationFilePath(), {childWord, folder.path(), kind, title});
    QVERIFY(program.waitForFinished(60000));
    const QByteArray messages = program.readAll();
    QCOMPARE(program.exitStatus(), QProcess::NormalExit);
    QVERIFY2(program.exitCode() == 0, messages.constData());

    QVERIFY(!QFile::exists(folder.filePath(u"a.pdf"_s)));
    QVERIFY(QFile::remove(gate));
    const QString images =
        kind == QLatin1String("merged")
            ? folder.filePath(u"a.jpg"_s) + QLatin1Char('|') + folder.filePath(u"b.jpg"_s)
            : folder.filePath(u"a.jpg"_s);
    QTRY_COMPARE_WITH_TIMEOUT(QString::fromUtf8(contentOf(folder.filePath(u"a.pdf"_s))),
                              u"convert(%1)"_s.arg(images), 60000);
    // No window is left to start another step.
    QCOMPARE(contentOf(folder.filePath(u"calls"_s)).count('\n'), 1);
}

int main(int argc, char *argv[])
{
    if (argc > 1 && QString::fromUtf8(argv[1]) == childWord)
        return closeDuringARun(argc, argv);
    QApplication application(argc, argv);
    FaultsCloseTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "faults_close_test.moc"

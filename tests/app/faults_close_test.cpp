// The window is closed while a tool works: the program ends at once and cleanly, and the tool ends
// by itself. The program is this executable again, started with arguments.

#include "faults_fixture.h"

#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QMimeData>
#include <QProcess>

namespace {

const QString childWord = QStringLiteral("--close-during-a-run");

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
    Process window;
    window.show();
    window.findChild<QLineEdit *>("outputfolderEdit")->setText(folder.path());
    window.findChild<QLineEdit *>("lineEdit_title")->setText(arguments.at(2));
    window.findChild<QCheckBox *>("checkBox_joinpdf")
        ->setChecked(arguments.at(1) == QLatin1String("merged"));
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(folder.filePath("a.jpg")),
                  QUrl::fromLocalFile(folder.filePath("b.jpg"))});
    QDropEvent drop(QPointF(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    window.dropEvent(&drop);
    window.findChild<QPushButton *>("runButton")->click();

    QTimer watcher;
    QObject::connect(&watcher, &QTimer::timeout, &window, [&window] {
        if (toolWorks())
            window.close();
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

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
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
    const QString gate = folder.filePath("gate");
    for (const char *name : {"gate", "a.jpg", "b.jpg"})
        touch(folder.filePath(QLatin1String(name)));
    qputenv("TESSARO_FAKE_LOG", folder.filePath("calls").toUtf8());
    qputenv("TESSARO_FAKE_CONVERT", "outlive gate=" + gate.toUtf8());

    QProcess program;
    program.setProcessChannelMode(QProcess::MergedChannels);
    program.start(QCoreApplication::applicationFilePath(), {childWord, folder.path(), kind, title});
    QVERIFY(program.waitForFinished(60000));
    const QByteArray messages = program.readAll();
    QCOMPARE(program.exitStatus(), QProcess::NormalExit);
    QVERIFY2(program.exitCode() == 0, messages.constData());

    QVERIFY(!QFile::exists(folder.filePath("a.pdf")));
    QVERIFY(QFile::remove(gate));
    const QString images = kind == QLatin1String("merged")
                               ? folder.filePath("a.jpg") + '|' + folder.filePath("b.jpg")
                               : folder.filePath("a.jpg");
    QTRY_COMPARE_WITH_TIMEOUT(QString::fromUtf8(contentOf(folder.filePath("a.pdf"))),
                              QStringLiteral("convert(%1)").arg(images), 60000);
    // Nobody is left who would start another step.
    QCOMPARE(contentOf(folder.filePath("calls")).count('\n'), 1);
}

int main(int argc, char *argv[])
{
    if (argc > 1 && argv[1] == childWord)
        return closeDuringARun(argc, argv);
    QApplication application(argc, argv);
    FaultsCloseTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "faults_close_test.moc"

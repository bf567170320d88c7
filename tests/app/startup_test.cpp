// What start-up prepares before there is a window.

#include "startup.h"

#include "process.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCompleter>
#include <QDir>
#include <QImageReader>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QWindow>

#include <algorithm>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

class StartupTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void pluginsAreTakenFromTheBundleAlone();
    void bundlesFolderIsTheCurrentOne();
    void imagesMayTakeAQuarterOfTheMemory();
    void coloursAreLightOnADarkDesktop_data();
    void coloursAreLightOnADarkDesktop();
    void windowsBelongToTheMenuEntry();
    void argumentLimitIsRaisedAsFarAsAllowed();
    void argumentLimitIsRaised();
    void listOfACompleterBelongsToItsWindow();

private:
    QDir bundle;
};

void StartupTest::initTestCase()
{
    QPalette dark(QColor(0x20, 0x20, 0x20));
    QVERIFY(dark.color(QPalette::WindowText).lightness() > 128);
    QApplication::setPalette(dark);
    QDir::setCurrent(u"/"_s);
    setUpApplication(*qApp);
    bundle = QDir(QCoreApplication::applicationDirPath() + u"/../.."_s);
}

void StartupTest::pluginsAreTakenFromTheBundleAlone()
{
    QCOMPARE(QCoreApplication::libraryPaths(),
             QStringList({QDir::cleanPath(bundle.absoluteFilePath(u"Contents/Plugins"_s))}));
}

void StartupTest::bundlesFolderIsTheCurrentOne()
{
    QCOMPARE(QDir::currentPath(), QDir::cleanPath(bundle.absoluteFilePath(u".."_s)));
}

void StartupTest::imagesMayTakeAQuarterOfTheMemory()
{
    const qint64 memory = qint64(sysconf(_SC_PHYS_PAGES)) * sysconf(_SC_PAGESIZE);
    QCOMPARE(QImageReader::allocationLimit(), int(memory / 4 / 1024 / 1024));
}

void StartupTest::coloursAreLightOnADarkDesktop_data()
{
    QTest::addColumn<QPalette::ColorRole>("ground");
    QTest::addColumn<QPalette::ColorRole>("text");
    QTest::newRow("windows") << QPalette::Window << QPalette::WindowText;
    QTest::newRow("fields") << QPalette::Base << QPalette::Text;
    QTest::newRow("buttons") << QPalette::Button << QPalette::ButtonText;
    QTest::newRow("tool tips") << QPalette::ToolTipBase << QPalette::ToolTipText;
}

void StartupTest::coloursAreLightOnADarkDesktop()
{
    QFETCH(QPalette::ColorRole, ground);
    QFETCH(QPalette::ColorRole, text);
    const Process window;
    for (const QPalette &colours :
         {QApplication::palette(), window.findChild<QLabel *>(u"label_12"_s)->palette()}) {
        QVERIFY(colours.color(ground).lightness() > 200);
        QVERIFY(colours.color(text).lightness() < 60);
    }
}

void StartupTest::windowsBelongToTheMenuEntry()
{
    QCOMPARE(QGuiApplication::desktopFileName(), u"org.example.tessaro"_s);
}

void StartupTest::argumentLimitIsRaisedAsFarAsAllowed()
{
    // In a child, as a lowered limit stays.
    const pid_t child = fork();
    if (child == 0) {
        constexpr rlim_t lowMost = rlim_t(16) * 1024 * 1024;
        rlimit stack = {rlim_t(8) * 1024 * 1024, lowMost};
        if (setrlimit(RLIMIT_STACK, &stack) != 0)
            _exit(1);
        raiseArgumentLimit();
        getrlimit(RLIMIT_STACK, &stack);
        _exit(stack.rlim_cur == lowMost ? 0 : 2);
    }
    int status = -1;
    QCOMPARE(waitpid(child, &status, 0), child);
    QCOMPARE(status, 0);
}

void StartupTest::argumentLimitIsRaised()
{
    rlimit stack = {};
    QCOMPARE(getrlimit(RLIMIT_STACK, &stack), 0);
    const rlim_t most = std::min(stack.rlim_max, rlim_t(64) * 1024 * 1024);
    stack.rlim_cur = std::min(most, rlim_t(8) * 1024 * 1024);
    QCOMPARE(setrlimit(RLIMIT_STACK, &stack), 0);
    raiseArgumentLimit();
    QCOMPARE(getrlimit(RLIMIT_STACK, &stack), 0);
    QCOMPARE(stack.rlim_cur, most);
}

void StartupTest::listOfACompleterBelongsToItsWindow()
{
    QLineEdit field;
    field.setCompleter(new QCompleter({u"one"_s, u"other"_s}, &field));
    field.show();
    QVERIFY(QTest::qWaitForWindowActive(&field));
    QTest::keyClick(&field, Qt::Key_O);
    const QWidget *list = field.completer()->popup();
    QTRY_VERIFY(list->isVisible());
    QCOMPARE(list->windowHandle()->transientParent(), field.windowHandle());
}

QTEST_MAIN(StartupTest)
#include "startup_test.moc"

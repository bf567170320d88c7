// What start-up prepares before there is a window.

#include "startup.h"

#include "previewpicture.h"
#include "process.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCompleter>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTest>
#include <QWindow>

using namespace Qt::StringLiterals;

class StartupTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void pluginsAreTakenFromTheBundleAlone();
    void bundlesFolderIsTheCurrentOne();
    void largeScansAreShown();
    void coloursAreLightOnADarkDesktop_data();
    void coloursAreLightOnADarkDesktop();
    void windowsBelongToTheMenuEntry();
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

// Qt's own limit is 128 MiB.
void StartupTest::largeScansAreShown()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"scan.bmp"_s);
    QVERIFY(QImage(6000, 6000, QImage::Format_RGB32).save(path));
    QVERIFY(PreviewPicture().of(path, 1));
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

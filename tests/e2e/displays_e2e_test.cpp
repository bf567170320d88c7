// The shipped program, used by keys alone on each kind of display: X without a window
// manager, X with one, and Wayland. Weston runs in a window of the X server, so that xdotool
// reaches it.

#include "pdffacts.h"
#include "xdotool.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

const QString mainTitle = u"Tessaro Image to PDF Converter"_s;
const QString openTitle = u"Choose files to convert"_s;

/// Ends its program when it goes.
class Child : public QProcess
{
public:
    ~Child() override
    {
        terminate();
        if (!waitForFinished(stepTimeout))
            kill();
    }
};

/// X without a window manager.
class BareX
{
public:
    virtual ~BareX() = default;
    virtual bool start() { return true; }
    virtual void enter(QProcessEnvironment &) const {}
    /// Asks that the window with the keyboard fills the screen, where the display offers that.
    virtual void maximize() {}

    /// Whether the window with `title` has the keyboard; `words` is what the program has printed.
    virtual bool hasKeyboard(const QString &title, const QString &words)
    {
        Q_UNUSED(words)
        return ::hasKeyboard(title);
    }
};

class ManagedX : public BareX
{
public:
    bool start() override
    {
        m_manager.start(u"openbox"_s, {u"--sm-disable"_s});
        // Answered by window managers alone.
        return QTest::qWaitFor([] { return !xdotool({u"get_num_desktops"_s}).isEmpty(); },
                               stepTimeout);
    }

private:
    Child m_manager;
};

class Wayland : public BareX
{
public:
    bool start() override
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"XDG_RUNTIME_DIR"_s, m_runtime.path());
        m_weston.setProcessEnvironment(environment);
        m_weston.start(u"weston"_s, {u"--backend=x11-backend.so"_s, u"--use-pixman"_s,
                                     u"--width=1000"_s, u"--height=900"_s, u"--socket=tessaro"_s,
                                     u"--no-config"_s, u"--idle-time=0"_s});
        QString window;
        const bool isShown = QTest::qWaitFor(
            [this, &window] {
                window = xdotool({u"search"_s, u"--class"_s, u"Weston Compositor"_s});
                return !window.isEmpty() && QFile::exists(m_runtime.filePath(u"tessaro"_s));
            },
            stepTimeout);
        xdotool({u"windowfocus"_s, u"--sync"_s, window});
        return isShown;
    }

    void enter(QProcessEnvironment &environment) const override
    {
        environment.remove(u"QT_QPA_PLATFORM"_s);
        environment.insert(u"XDG_RUNTIME_DIR"_s, m_runtime.path());
        environment.insert(u"WAYLAND_DISPLAY"_s, u"tessaro"_s);
        environment.insert(u"WAYLAND_DEBUG"_s, u"client"_s);
    }

    void maximize() override
    {
        press(u"super+shift+m"_s);
        ++m_maximized;
    }

    bool hasKeyboard(const QString &title, const QString &words) override
    {
        // By libwayland's log: the surface that last got the keyboard is the one that got it after
        // the title was set.
        static const QRegularExpression enter(
            QStringLiteral("wl_keyboard[@#]\\d+\\.enter\\(\\d+, (wl_surface[@#]\\d+)"));
        const QString call = QStringLiteral("set_title(\"%1\")").arg(title);
        if (title == mainTitle && words.count(call) <= m_maximized)
            return false; // the window that is opened again is not there yet
        const qsizetype shown = words.lastIndexOf(call);
        QRegularExpressionMatch last;
        return shown >= 0 && words.lastIndexOf(enter, -1, &last) > shown &&
               enter.match(words, shown).captured(1) == last.captured(1);
    }

private:
    QTemporaryDir m_runtime;
    Child m_weston;
    int m_maximized = 0; // times
};

using MakeDisplay = std::unique_ptr<BareX> (*)();

template <typename Kind>
std::unique_ptr<BareX> make()
{
    return std::make_unique<Kind>();
}

} // namespace

Q_DECLARE_METATYPE(MakeDisplay)

class DisplaysE2eTest : public QObject
{
    Q_OBJECT

private slots:
    void keysReachWindowAndDialogs_data();
    void keysReachWindowAndDialogs();
};

void DisplaysE2eTest::keysReachWindowAndDialogs_data()
{
    QTest::addColumn<MakeDisplay>("makeDisplay");
    QTest::addColumn<QString>("platform");
    QTest::newRow("X without a window manager") << &make<BareX> << u"libqxcb.so"_s;
    QTest::newRow("X with openbox") << &make<ManagedX> << u"libqxcb.so"_s;
    QTest::newRow("Wayland with Weston") << &make<Wayland> << u"libqwayland"_s;
}

void DisplaysE2eTest::keysReachWindowAndDialogs()
{
    QFETCH(MakeDisplay, makeDisplay);
    QFETCH(QString, platform);
    const QTemporaryDir folder;
    QCOMPARE(QProcess::execute(u"cp"_s, {u"-a"_s, QStringLiteral(BUNDLE),
                                         QStringLiteral(SAMPLES "/market.pcx"), folder.path()}),
             0);
    // The mouse is not over the window: an X server gives keys to what is below it otherwise.
    xdotool({u"mousemove"_s, u"1270"_s, u"1010"_s});
    const std::unique_ptr<BareX> display = makeDisplay();
    QVERIFY(display->start());

    Child program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    display->enter(environment);
    program.setProcessEnvironment(environment);
    // Into a file: a full pipe would block the program while keys are pressed.
    QFile words(folder.filePath(u"words"_s));
    program.setProcessChannelMode(QProcess::MergedChannels);
    program.setStandardOutputFile(words.fileName());
    program.start(folder.filePath(u"Tessaro.app/Contents/MacOS/tessaro"_s), QStringList());
    QVERIFY(words.open(QIODevice::ReadOnly));

    const auto keyboardIsIn = [&](const QString &title) {
        return QTest::qWaitFor(
            [&] {
                words.seek(0);
                return display->hasKeyboard(title, QString::fromUtf8(words.readAll()));
            },
            stepTimeout);
    };
    QVERIFY(keyboardIsIn(mainTitle));
    QFile maps(u"/proc/%1/maps"_s.arg(program.processId()));
    QVERIFY(maps.open(QIODevice::ReadOnly));
    QVERIFY(QString::fromUtf8(maps.readAll()).contains(platform));

    display->maximize();
    QVERIFY(keyboardIsIn(mainTitle));
    press(u"space"_s); // the Open button
    QVERIFY(keyboardIsIn(openTitle));
    choose(u"market.pcx"_s);
    QVERIFY(keyboardIsIn(mainTitle));
    const QString settings = folder.filePath(u"setting.ini"_s);
    QVERIFY(QTest::qWaitFor([&] { return QFile::exists(settings); }, stepTimeout));

    press(u"Tab Tab Tab"_s); // Romove, Remove All, output folder
    type(folder.path());
    // The folder button, merge, the buttons of the three other pages, convert.
    press(u"Tab Tab Tab Tab Tab Tab space"_s);
    const QString pdf = folder.filePath(u"market.pdf"_s);
    QVERIFY(QTest::qWaitFor([&] { return QFile::exists(pdf) && readPdf(pdf).pages == 1; },
                            stepTimeout));
}

QTEST_GUILESS_MAIN(DisplaysE2eTest)
#include "displays_e2e_test.moc"

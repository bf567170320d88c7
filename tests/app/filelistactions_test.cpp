// The keys of the file list and of the window, the list's context menu, and what a file manager is
// asked for.

#include "filemanager.h"
#include "windowfixture.h"

#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QDBusConnection>
#include <QDesktopServices>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QProcess>
#include <QTableWidget>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// Stands in for the desktop's file manager.
class FileManager : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.FileManager1")

public:
    QStringList shown;

public slots:
    void ShowItems(const QStringList &uris, const QString &startupId)
    {
        Q_UNUSED(startupId)
        shown << uris;
    }
};

/// A session bus of the test's own.
class SessionBus
{
public:
    bool start()
    {
        m_daemon.start(u"dbus-daemon"_s,
                       {u"--session"_s, u"--nofork"_s, u"--nopidfile"_s, u"--print-address"_s});
        if (!m_daemon.waitForReadyRead())
            return false;
        return qputenv("DBUS_SESSION_BUS_ADDRESS", m_daemon.readLine().trimmed());
    }

    ~SessionBus()
    {
        m_daemon.kill();
        m_daemon.waitForFinished();
    }

private:
    QProcess m_daemon;
};

QMenu &menuOf(WindowFixture &fixture)
{
    return *fixture.find<QMenu>("fileListMenu");
}

/// The menu's entries as they read, in parentheses where they are disabled.
QStringList shownEntries(WindowFixture &fixture)
{
    QMenu &menu = menuOf(fixture);
    menu.popup({});
    QStringList entries;
    const auto actions = menu.actions();
    for (const QAction *action : actions) {
        if (!action->isSeparator())
            entries << (action->isEnabled() ? action->text() : u'(' + action->text() + u')');
    }
    menu.close();
    return entries;
}

void choose(WindowFixture &fixture, const QString &text)
{
    const auto actions = menuOf(fixture).actions();
    (*std::ranges::find(actions, text, &QAction::text))->trigger();
}

} // namespace

class FileListActionsTest : public QObject
{
    Q_OBJECT

public slots:
    void takeUrl(const QUrl &url) { urls << url; }

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void keysOfTheListNeedItsFocus();
    void enterOpensTheCurrentFile();
    void windowsKeysEnterItsSlots_data();
    void windowsKeysEnterItsSlots();
    void menuShowsKeys();
    void entriesThatMakeNoSenseAreDisabled_data();
    void entriesThatMakeNoSenseAreDisabled();
    void keysStayAfterTheMenu();
    void menuKeyOpensTheMenuAtTheCurrentRow();
    void pdfOfTheRowIsOpened();
    void fileManagerShowsTheFile();
    void folderIsOpenedWithoutAFileManager();

private:
    SessionBus bus;
    QList<QUrl> urls;
};

void FileListActionsTest::initTestCase()
{
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QVERIFY(bus.start());
}

void FileListActionsTest::init()
{
    urls.clear();
    QDesktopServices::setUrlHandler(u"file"_s, this, "takeUrl");
}

void FileListActionsTest::cleanup()
{
    QDesktopServices::unsetUrlHandler(u"file"_s);
}

void FileListActionsTest::keysOfTheListNeedItsFocus()
{
    WindowFixture fixture;
    fixture.activate();
    fixture.addImages({u"a"_s, u"b"_s, u"c"_s});
    auto *list = fixture.find<QTableWidget>("inputfiletableWidget");
    list->selectRow(1);
    auto *folder = fixture.find<QLineEdit>("outputfolderEdit");
    folder->setText(u"x"_s);
    folder->setFocus();
    QTest::keyClick(folder, Qt::Key_Home);
    QTest::keyClick(folder, Qt::Key_Delete);
    QCOMPARE(folder->text(), QString());
    QCOMPARE(list->rowCount(), 3);
    list->setFocus();
    QTest::keyClick(list, Qt::Key_Delete);
    QCOMPARE(list->rowCount(), 2);
    QTest::keyClick(list, Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(list->selectionModel()->selectedRows().size(), 2);
    QTest::keyClick(list, Qt::Key_Delete);
    QCOMPARE(list->rowCount(), 0);
}

void FileListActionsTest::enterOpensTheCurrentFile()
{
    WindowFixture fixture;
    fixture.activate();
    const QStringList paths = fixture.addImages({u"a"_s, u"b"_s});
    auto *list = fixture.find<QTableWidget>("inputfiletableWidget");
    list->selectRow(1);
    list->setFocus();
    QTest::keyClick(list, Qt::Key_Return);
    QTest::keyClick(list, Qt::Key_Enter, Qt::KeypadModifier);
    QCOMPARE(urls, QList<QUrl>(2, QUrl::fromLocalFile(paths[1])));
}

void FileListActionsTest::windowsKeysEnterItsSlots_data()
{
    QTest::addColumn<QKeyCombination>("keys");
    QTest::addColumn<QString>("title"); // of the box that comes
    QTest::newRow("open") << (Qt::CTRL | Qt::Key_O) << u"Choose files to convert"_s;
    QTest::newRow("convert") << (Qt::CTRL | Qt::Key_Return) << u"Empty input"_s;
    QTest::newRow("convert, keypad") << (Qt::CTRL | Qt::Key_Enter) << u"Empty input"_s;
    QTest::newRow("about") << QKeyCombination(Qt::Key_F1) << u"About"_s;
    QTest::newRow("quit") << (Qt::CTRL | Qt::Key_Q) << QString();
}

void FileListActionsTest::windowsKeysEnterItsSlots()
{
    QFETCH(QKeyCombination, keys);
    QFETCH(QString, title);
    // From a page that has none of the list's controls, and from a field.
    for (const int page : {0, 2}) {
        WindowFixture fixture;
        fixture.activate();
        if (page == 2)
            fixture.press("pushButton_PDFSetting");
        auto *field = fixture.find<QLineEdit>(page == 2 ? "lineEdit_title" : "outputfolderEdit");
        field->setFocus();
        QString came;
        ModalAnswer answer([&came](QWidget *box) { came = box->windowTitle(); });
        QTest::keyClick(field, keys.key(), keys.keyboardModifiers());
        QCOMPARE(answer.happened(), !title.isEmpty());
        QCOMPARE(came, title);
        QCOMPARE(fixture.window.isVisible(), !title.isEmpty());
    }
}

void FileListActionsTest::menuShowsKeys()
{
    WindowFixture fixture;
    QStringList keys;
    const auto actions = menuOf(fixture).actions();
    for (const QAction *action : actions) {
        if (action->shortcut().isEmpty())
            continue;
        QVERIFY(action->isShortcutVisibleInContextMenu());
        keys << action->text() + u": "_s + action->shortcut().toString(QKeySequence::PortableText);
    }
    QCOMPARE(keys,
             QStringList({u"Open Image: Return"_s, u"Move Up: Alt+Up"_s, u"Move Down: Alt+Down"_s,
                          u"Move to Top: Alt+Home"_s, u"Move to Bottom: Alt+End"_s,
                          u"Select All: Ctrl+A"_s, u"Remove: Del"_s, u"Add Images...: Ctrl+O"_s,
                          u"Convert: Ctrl+Return"_s, u"About: F1"_s, u"Quit: Ctrl+Q"_s}));
}

void FileListActionsTest::entriesThatMakeNoSenseAreDisabled_data()
{
    QTest::addColumn<int>("rows");
    QTest::addColumn<QList<int>>("selected");
    QTest::addColumn<QStringList>("disabled");

    const QStringList moves{u"Move Up"_s, u"Move Down"_s, u"Move to Top"_s, u"Move to Bottom"_s};
    const QStringList file{u"Open Image"_s, u"Show in Folder"_s};
    const QStringList always{u"Open PDF"_s, u"Sort as Added"_s};
    QTest::newRow("an empty list") << 0 << QList<int>{}
                                   << always + file + moves +
                                          QStringList{u"Sort by Name, 2 before 10"_s,
                                                      u"Select All"_s, u"Remove"_s, u"Convert"_s};
    QTest::newRow("one row") << 1 << QList<int>{0}
                             << always + moves + QStringList{u"Sort by Name, 2 before 10"_s};
    QTest::newRow("none selected")
        << 3 << QList<int>{} << always + file + moves + QStringList{u"Remove"_s};
    QTest::newRow("the first") << 3 << QList<int>{0}
                               << always + QStringList{u"Move Up"_s, u"Move to Top"_s};
    QTest::newRow("the middle") << 3 << QList<int>{1} << always;
    QTest::newRow("the last") << 3 << QList<int>{2}
                              << always + QStringList{u"Move Down"_s, u"Move to Bottom"_s};
}

void FileListActionsTest::entriesThatMakeNoSenseAreDisabled()
{
    QFETCH(int, rows);
    QFETCH(QList<int>, selected);
    QFETCH(QStringList, disabled);
    WindowFixture fixture;
    auto *list = fixture.find<QTableWidget>("inputfiletableWidget");
    for (int row = 0; row < rows; ++row)
        fixture.addImages({QString::number(row)});
    for (const int row : selected)
        list->selectRow(row);
    QStringList shown = shownEntries(fixture).filter(u"("_s);
    shown.replaceInStrings(u"("_s, QString()).replaceInStrings(u")"_s, QString());
    shown.sort();
    disabled.sort();
    QCOMPARE(shown, disabled);
    if (rows == 3) {
        list->sortItems(0, Qt::DescendingOrder);
        QVERIFY(shownEntries(fixture).contains(u"Sort as Added"_s));
    }
}

void FileListActionsTest::keysStayAfterTheMenu()
{
    WindowFixture fixture;
    fixture.activate();
    QVERIFY(shownEntries(fixture).contains(u"(Remove)"_s));
    fixture.addImages({u"a"_s});
    auto *list = fixture.find<QTableWidget>("inputfiletableWidget");
    list->selectRow(0);
    list->setFocus();
    QTest::keyClick(list, Qt::Key_Delete);
    QCOMPARE(list->rowCount(), 0);
}

void FileListActionsTest::menuKeyOpensTheMenuAtTheCurrentRow()
{
    WindowFixture fixture;
    fixture.activate();
    fixture.addImages({u"a"_s, u"b"_s, u"c"_s});
    auto *list = fixture.find<QTableWidget>("inputfiletableWidget");
    list->selectRow(2);
    list->setFocus();
    // As Qt sends it to what has the focus.
    const QPoint place = list->inputMethodQuery(Qt::ImCursorRectangle).toRect().center();
    QContextMenuEvent event(QContextMenuEvent::Keyboard, place, list->mapToGlobal(place));
    QCoreApplication::sendEvent(list, &event);
    QVERIFY(menuOf(fixture).isVisible());
    const QRect row = list->visualItemRect(list->item(2, 0));
    QVERIFY(row.contains(list->viewport()->mapFromGlobal(menuOf(fixture).pos())));
    menuOf(fixture).close();
}

void FileListActionsTest::pdfOfTheRowIsOpened()
{
    WindowFixture fixture;
    fixture.setOutputFolder();
    fixture.addImages({u"a.1.jpg"_s});
    fixture.find<QTableWidget>("inputfiletableWidget")->selectRow(0);
    QVERIFY(shownEntries(fixture).contains(u"(Open PDF)"_s));
    QFile pdf(fixture.outputPath(u"a.pdf"_s));
    QVERIFY(pdf.open(QIODevice::WriteOnly));
    QVERIFY(shownEntries(fixture).contains(u"Open PDF"_s));
    choose(fixture, u"Open PDF"_s);
    QCOMPARE(urls, QList<QUrl>{QUrl::fromLocalFile(pdf.fileName())});
    fixture.fill("outputfolderEdit", QString());
    QVERIFY(shownEntries(fixture).contains(u"(Open PDF)"_s));
}

void FileListActionsTest::fileManagerShowsTheFile()
{
    FileManager manager;
    {
        auto connection = QDBusConnection::connectToBus(QDBusConnection::SessionBus, u"manager"_s);
        QVERIFY(connection.registerObject(u"/org/freedesktop/FileManager1"_s, &manager,
                                          QDBusConnection::ExportAllSlots));
        QVERIFY(connection.registerService(u"org.freedesktop.FileManager1"_s));
    }
    WindowFixture fixture;
    const QString path = fixture.addImages({QString::fromUtf8("100% \u00fcber #1.jpg")}).first();
    fixture.find<QTableWidget>("inputfiletableWidget")->selectRow(0);
    choose(fixture, u"Show in Folder"_s);
    QTRY_COMPARE(manager.shown,
                 QStringList{QString::fromUtf8(QUrl::fromLocalFile(path).toEncoded())});
    QDBusConnection::disconnectFromBus(u"manager"_s);
    QVERIFY(urls.isEmpty());
}

void FileListActionsTest::folderIsOpenedWithoutAFileManager()
{
    WindowFixture fixture;
    showInFolder(fixture.makeFile(u"a.jpg"_s));
    QTRY_COMPARE(urls, QList<QUrl>{QUrl::fromLocalFile(
                           QFileInfo(fixture.inputPath(u"a.jpg"_s)).absolutePath())});
}

QTEST_MAIN(FileListActionsTest)
#include "filelistactions_test.moc"

// How files come into the list: the open dialog and drops.

#include "filedialoguser.h"
#include "windowfixture.h"

#include <QDir>
#include <QDragEnterEvent>
#include <QFile>
#include <QMimeData>
#include <QSettings>
#include <QTableWidget>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const QString settings = u"setting.ini"_s;

constexpr qint64 gibibyte = qint64(1024) * 1024 * 1024;

QList<int> selectedRows(WindowFixture &fixture)
{
    QList<int> rows;
    const auto *table = fixture.find<QTableWidget>("inputfiletableWidget");
    const QModelIndexList selected = table->selectionModel()->selectedRows();
    for (const QModelIndex &index : selected)
        rows << index.row();
    std::sort(rows.begin(), rows.end());
    return rows;
}

/// Presses the open button and chooses `paths`; no paths: cancels the dialog.
FileDialogFacts openFiles(WindowFixture &fixture, const QStringList &paths)
{
    FileDialogFacts facts(nullptr);
    ModalAnswer answer([&](QWidget *box) {
        facts = FileDialogFacts(box);
        if (!paths.isEmpty())
            chooseFiles(box, paths);
    });
    fixture.press("openfileButton");
    if (!answer.happened())
        qFatal("no dialog came");
    return facts;
}

QList<QUrl> localUrls(const QStringList &paths)
{
    QList<QUrl> urls;
    for (const QString &path : paths)
        urls << QUrl::fromLocalFile(path);
    return urls;
}

} // namespace

class FileListTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void openDialogAsksForImages();
    void chosenFilesAreListedInTheirOrder();
    void cancelledDialogChangesNothing();
    void folderOfTheFirstFileIsRemembered();
    void folderIsRememberedBeforeTheRowsAreMade();
    void firstRowBecomesCurrentAndSelectedToo();
    void sizeColumnShowsTheLowBitsOfTheSize_data();
    void sizeColumnShowsTheLowBitsOfTheSize();
    void itemsArePlainTexts();
    void droppedUrlsAreListedUpToTheFirstThatIsNotLocal_data();
    void droppedUrlsAreListedUpToTheFirstThatIsNotLocal();
    void dropLeavesSelectionAndSettingsAlone();
    void dropItselfIsNotAnswered();
    void dragIsAcceptedForUrlsAlone_data();
    void dragIsAcceptedForUrlsAlone();
};

void FileListTest::init()
{
    WindowFixture fixture; // goes to the bundle's folder
    QFile::remove(settings);
}

void FileListTest::openDialogAsksForImages()
{
    WindowFixture fixture;
    const FileDialogFacts dialog = openFiles(fixture, {});
    QCOMPARE(dialog.caption, u"Choose files to convert"_s);
    QCOMPARE(
        dialog.filters,
        QStringList({u"All Supported Formats(*.bmp *.gif *.jpg *.pbm *.pcx *.png *.ppm *.tif)"_s,
                     u"BMP File(*.bmp)"_s, u"GIF File(*.gif)"_s, u"JPEG File(*.jpg;*.jpeg)"_s,
                     u"PBM File(*.pbm)"_s, u"PCX File(*.pcx)"_s, u"PNG File(*.png)"_s,
                     u"PPM File(*.ppm)"_s, u"TIF File(*.tif;*.tiff)"_s, u"ALL files(*.*)"_s}));
    QCOMPARE(dialog.folder, QDir::currentPath());
    QCOMPARE(dialog.fileMode, QFileDialog::ExistingFiles);
    QCOMPARE(dialog.options, QFileDialog::Options());
    QCOMPARE(dialog.parent, &fixture.window);
}

void FileListTest::chosenFilesAreListedInTheirOrder()
{
    WindowFixture fixture;
    fixture.addImages({u"z.jpg"_s});
    openFiles(fixture, {fixture.makeFile(u"c.jpg"_s), fixture.makeFile(u"my a.png"_s),
                        fixture.makeFile(u"b.gif"_s, "")});
    QCOMPARE(fixture.rows(), QStringList({u"z.jpg|         0.005KB"_s, u"c.jpg|         0.005KB"_s,
                                          u"my a.png|         0.005KB"_s, u"b.gif"_s}));
}

void FileListTest::cancelledDialogChangesNothing()
{
    WindowFixture fixture;
    fixture.addImages({u"a.jpg"_s});
    openFiles(fixture, {});
    QCOMPARE(fixture.rows(), QStringList({u"a.jpg|         0.005KB"_s}));
    QCOMPARE(selectedRows(fixture), QList<int>());
    QCOMPARE(contentBesideTheBundle(settings), QByteArray("none"));
}

void FileListTest::folderOfTheFirstFileIsRemembered()
{
    const QString kept = u"/"_s;
    QTemporaryDir other;
    QFile file(other.filePath(u"b.jpg"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.close();
    QString folder;
    {
        QSettings(settings, QSettings::IniFormat).setValue(u"dir/output"_s, kept);
        WindowFixture fixture;
        folder = QFileInfo(fixture.inputPath(u"a.jpg"_s)).absolutePath();
        openFiles(fixture, {fixture.makeFile(u"a.jpg"_s), file.fileName()});
        QCOMPARE(contentBesideTheBundle(settings),
                 QByteArray("[dir]\ninput=") + folder.toUtf8() + QByteArray("\noutput=/\n"));
        WindowFixture next; // another run of the program, while the folder still stands
        QCOMPARE(openFiles(next, {}).folder, folder);
    }
}

void FileListTest::folderIsRememberedBeforeTheRowsAreMade()
{
    WindowFixture fixture;
    QByteArray then;
    connect(fixture.find<QTableWidget>("inputfiletableWidget")->model(),
            &QAbstractItemModel::rowsInserted, this,
            [&then] { then = contentBesideTheBundle(settings); });
    const QString path = fixture.makeFile(u"a.jpg"_s);
    openFiles(fixture, {path});
    QCOMPARE(then, "[dir]\ninput=" + QFileInfo(path).absolutePath().toUtf8() + '\n');
}

void FileListTest::firstRowBecomesCurrentAndSelectedToo()
{
    WindowFixture fixture;
    fixture.addImages({u"a.jpg"_s, u"b.jpg"_s, u"c.jpg"_s});
    auto *table = fixture.find<QTableWidget>("inputfiletableWidget");
    table->selectRow(1);
    openFiles(fixture, {fixture.makeFile(u"d.jpg"_s)});
    QCOMPARE(table->currentRow(), 0);
    QCOMPARE(selectedRows(fixture), QList<int>({0, 1}));
    QVERIFY(ProcessProbe::previewTimer(fixture.window)->isActive());
}

void FileListTest::sizeColumnShowsTheLowBitsOfTheSize_data()
{
    QTest::addColumn<qint64>("bytes");
    QTest::addColumn<QString>("row");

    QTest::newRow("an empty file has no size item") << qint64(0) << "f.png";
    QTest::newRow("one byte") << qint64(1) << "f.png|         0.001KB";
    QTest::newRow("the last in KB") << qint64(1048576) << "f.png|      1048.576KB";
    QTest::newRow("the first in MB") << qint64(1048577) << "f.png|         1.049MB";
    QTest::newRow("3 GiB have none") << 3 * gibibyte << "f.png";
    QTest::newRow("4 GiB have none") << 4 * gibibyte << "f.png";
}

void FileListTest::sizeColumnShowsTheLowBitsOfTheSize()
{
    QFETCH(qint64, bytes);
    QFETCH(QString, row);
    WindowFixture fixture;
    const QString path = fixture.makeFile(u"f.png"_s);
    QVERIFY(QFile::resize(path, bytes)); // sparse
    fixture.drop(localUrls({path}));
    openFiles(fixture, {path});
    QCOMPARE(fixture.rows(), QStringList({row, row}));
}

void FileListTest::itemsArePlainTexts()
{
    WindowFixture fixture;
    fixture.addImages({u"a.jpg"_s});
    const auto *table = fixture.find<QTableWidget>("inputfiletableWidget");
    for (int column = 0; column < 2; ++column) {
        const QTableWidgetItem *item = table->item(0, column);
        QVERIFY(item);
        QCOMPARE(item->type(), int(QTableWidgetItem::Type));
        QVERIFY(item->icon().isNull());
        QVERIFY(!item->data(Qt::UserRole).isValid());
        QVERIFY(!item->data(Qt::CheckStateRole).isValid());
    }
    QCOMPARE(table->item(0, 0)->text(), fixture.inputPath(u"a.jpg"_s));
}

void FileListTest::droppedUrlsAreListedUpToTheFirstThatIsNotLocal_data()
{
    QTest::addColumn<QList<QUrl>>("urls");
    QTest::addColumn<QStringList>("rows");

    const QUrl remote(u"http://example.org/b.jpg"_s);
    QTest::newRow("none") << QList<QUrl>{} << QStringList{};
    QTest::newRow("three files") << localUrls({u"/n/c.jpg"_s, u"/n/a.jpg"_s, u"/n/b.jpg"_s})
                                 << QStringList{u"/n/c.jpg"_s, u"/n/a.jpg"_s, u"/n/b.jpg"_s};
    QTest::newRow("the second of three is not local")
        << localUrls({u"/n/a.jpg"_s}) + QList<QUrl>{remote} + localUrls({u"/n/c.jpg"_s})
        << QStringList{u"/n/a.jpg"_s};
    QTest::newRow("the first is not local")
        << QList<QUrl>{remote} + localUrls({u"/n/c.jpg"_s}) << QStringList{};
    QTest::newRow("the same file twice")
        << localUrls({u"/n/a.jpg"_s, u"/n/a.jpg"_s}) << QStringList{u"/n/a.jpg"_s, u"/n/a.jpg"_s};
    QTest::newRow("what is no image")
        << localUrls({u"/n/letter.txt"_s}) << QStringList{u"/n/letter.txt"_s};
    QTest::newRow("blanks, per cent signs and letters outside ASCII")
        << localUrls({QString::fromUtf8("/n/100% \u00fcber.jpg")})
        << QStringList{QString::fromUtf8("/n/100% \u00fcber.jpg")};
}

void FileListTest::droppedUrlsAreListedUpToTheFirstThatIsNotLocal()
{
    QFETCH(QList<QUrl>, urls);
    WindowFixture fixture;
    fixture.drop(urls);
    QTEST(fixture.rows(), "rows");
}

void FileListTest::dropLeavesSelectionAndSettingsAlone()
{
    WindowFixture fixture;
    const QStringList paths = fixture.addImages({u"a.jpg"_s, u"b.jpg"_s});
    fixture.drop(localUrls({QFileInfo(paths.first()).absolutePath()}));
    auto *table = fixture.find<QTableWidget>("inputfiletableWidget");
    QCOMPARE(table->rowCount(), 3); // a folder is listed like a file
    QCOMPARE(selectedRows(fixture), QList<int>());
    QCOMPARE(table->currentRow(), -1);
    QCOMPARE(contentBesideTheBundle(settings), QByteArray("none"));
    QVERIFY(!ProcessProbe::previewTimer(fixture.window)->isActive());
}

// The source of the drag is not notified, so a move does not delete the file.
void FileListTest::dropItselfIsNotAnswered()
{
    WindowFixture fixture;
    QMimeData data;
    data.setUrls(localUrls({u"/n/a.jpg"_s}));
    QDropEvent event(QPointF(10, 10), Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
    fixture.window.dropEvent(&event);
    QVERIFY(!event.isAccepted());
    QCOMPARE(fixture.rows(), QStringList{u"/n/a.jpg"_s});
}

void FileListTest::dragIsAcceptedForUrlsAlone_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<bool>("accepted");
    QTest::newRow("urls") << "text/uri-list" << true;
    QTest::newRow("plain text") << "text/plain" << false;
    QTest::newRow("a picture") << "image/png" << false;
}

void FileListTest::dragIsAcceptedForUrlsAlone()
{
    QFETCH(QString, format);
    WindowFixture fixture;
    QMimeData data;
    data.setData(format, "http://example.org/a.jpg");
    QDragEnterEvent enter({10, 10}, Qt::CopyAction | Qt::LinkAction, &data, Qt::LeftButton,
                          Qt::NoModifier);
    enter.setDropAction(Qt::LinkAction); // as somebody before may have asked for
    QCoreApplication::sendEvent(&fixture.window, &enter);
    QTEST(enter.isAccepted(), "accepted");
    QTEST(enter.dropAction() == enter.proposedAction(), "accepted");
}

QTEST_MAIN(FileListTest)
#include "filelist_test.moc"

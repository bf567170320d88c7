// Files that the program is started with: which of them are listed, and what the window shows.

#include "startcommand.h"

#include "windowfixture.h"

#include <QFrame>
#include <QImage>
#include <QTableWidget>
#include <QTemporaryFile>
#include <QUrl>

#include <array>
#include <cstdio>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

/// Lines that `work` writes to standard error.
template <class Work>
QStringList errorsOf(const Work &work)
{
    QTemporaryFile file;
    if (!file.open())
        qFatal("no temporary file");
    std::fflush(stderr);
    const int kept = dup(STDERR_FILENO);
    dup2(file.handle(), STDERR_FILENO);
    work();
    std::fflush(stderr);
    dup2(kept, STDERR_FILENO);
    close(kept);
    file.seek(0);
    return QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
}

} // namespace

class StartCommandTest : public QObject
{
    Q_OBJECT

private slots:
    void existingFilesAreTakenInOrder();
    void eachMissingFileIsOneLine();
    void unknownOptionIsRefused();
    void firstRowIsCurrentAndItsPreviewShows();
    void noFilesChangeNothing();
    void nothingIsReportedWithoutAFailure();
};

void StartCommandTest::existingFilesAreTakenInOrder()
{
    WindowFixture fixture;
    const QString b = fixture.makeFile(u"b.png"_s), a = fixture.makeFile(u"a b.png"_s);
    std::optional<QStringList> files;
    const QStringList errors = errorsOf([&] {
        files = startFiles(
            {u"tessaro"_s, u"b.png"_s, QUrl::fromLocalFile(a).toString(), u"b.png"_s, u"."_s},
            fixture.inputPath(u"."_s));
    });
    QCOMPARE(errors, QStringList());
    QCOMPARE(files.value().mid(0, 3),
             QStringList({fixture.inputPath(u"./b.png"_s), a, fixture.inputPath(u"./b.png"_s)}));
    QCOMPARE(files->size(), 4); // a folder is listed as a dropped one is
}

void StartCommandTest::eachMissingFileIsOneLine()
{
    WindowFixture fixture;
    const QString there = fixture.makeFile(u"there.png"_s);
    std::optional<QStringList> files;
    const QStringList errors = errorsOf([&] {
        files = startFiles(
            {u"tessaro"_s, u"no.png"_s, there, u"no\nname"_s, u"file://other/a.png"_s}, u"/none"_s);
    });
    QCOMPARE(files.value(), QStringList(there));
    QCOMPARE(errors, QStringList({u"tessaro: There is no file /none/no.png."_s,
                                  u"tessaro: There is no file /none/no?name."_s,
                                  u"tessaro: There is no file file://other/a.png."_s}));
}

void StartCommandTest::unknownOptionIsRefused()
{
    std::optional<QStringList> files;
    const QStringList errors = errorsOf([&] {
        files = startFiles({u"tessaro"_s, u"--colour"_s, u"/"_s}, u"/"_s);
    });
    QVERIFY(!files.has_value());
    QCOMPARE(errors, QStringList(u"tessaro: There is no option --colour; see --help."_s));
}

void StartCommandTest::firstRowIsCurrentAndItsPreviewShows()
{
    WindowFixture fixture;
    QImage red(20, 10, QImage::Format_RGB32);
    red.fill(Qt::red);
    const QString first = fixture.inputPath(u"first.bmp"_s);
    QVERIFY(red.save(first));
    fixture.window.addFiles({first, fixture.makeFile(u"second.png"_s)});
    const auto *table = fixture.find<QTableWidget>("inputfiletableWidget");
    QCOMPARE(table->rowCount(), 2);
    QCOMPARE(table->currentRow(), 0);
    QCOMPARE(table->selectionModel()->selectedRows().size(), 1);
    fixture.window.show();
    auto *frame = fixture.find<QFrame>("previewframe");
    QTRY_COMPARE(frame->grab().toImage().pixelColor(frame->rect().center()), QColor(Qt::red));
}

void StartCommandTest::noFilesChangeNothing()
{
    WindowFixture fixture;
    fixture.window.addFiles({});
    const auto *table = fixture.find<QTableWidget>("inputfiletableWidget");
    QCOMPARE(table->currentRow(), -1);
    QVERIFY(!ProcessProbe::previewTimer(fixture.window)->isActive());
}

void StartCommandTest::nothingIsReportedWithoutAFailure()
{
    std::array name{'t', '\0'};
    std::array<char *, 2> arguments{name.data(), nullptr};
    QVERIFY(!reportStartFailure(1, arguments.data()));
}

QTEST_MAIN(StartCommandTest)
#include "startcommand_test.moc"

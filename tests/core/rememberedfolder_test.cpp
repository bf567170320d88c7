// The folders that the two dialogs start in: what setting.ini holds of them, and when.

#include "rememberedfolder.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

const QString key = u"dir/input"_s;

QByteArray settings()
{
    QFile file(u"setting.ini"_s);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("none");
}

} // namespace

class RememberedFolderTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void readsTheCurrentFolderAtFirst();
    void writesAtOnce();
    void readsBackWhatWasWritten_data();
    void readsBackWhatWasWritten();
    void leavesOtherEntriesAlone();
    void seesWhatWasWrittenBeforeItWasMade();
    void survivesAFileThatCannotBeWritten();

private:
    std::unique_ptr<QTemporaryDir> m_folder;
};

void RememberedFolderTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir::setCurrent(m_folder->path()));
}

void RememberedFolderTest::readsTheCurrentFolderAtFirst()
{
    QCOMPARE(RememberedFolder(key).read(), u"."_s);
    QCOMPARE(settings(), QByteArray("none")); // reading makes no file
}

void RememberedFolderTest::writesAtOnce()
{
    RememberedFolder folder(key);
    folder.write(u"/photos"_s);
    QCOMPARE(settings(), QByteArray("[dir]\ninput=/photos\n"));
    folder.write(u"/scans"_s);
    QCOMPARE(settings(), QByteArray("[dir]\ninput=/scans\n"));
}

void RememberedFolderTest::readsBackWhatWasWritten_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("none, as after a cancelled dialog") << u""_s;
    QTest::newRow("blanks") << u"/my scans/ of May "_s;
    QTest::newRow("letters outside ASCII") << u"/B\u00fcro/\u65e5\u672c"_s;
    QTest::newRow("what means something in such a file") << u"/a=b;c,d%20/\"e\"/[f]/\\g"_s;
}

void RememberedFolderTest::readsBackWhatWasWritten()
{
    QFETCH(QString, path);
    RememberedFolder(key).write(path);
    QCOMPARE(RememberedFolder(key).read(), path);
}

void RememberedFolderTest::leavesOtherEntriesAlone()
{
    RememberedFolder(u"dir/output"_s).write(u"/pdf"_s);
    RememberedFolder(key).write(u"/photos"_s);
    QCOMPARE(RememberedFolder(u"dir/output"_s).read(), u"/pdf"_s);
    QCOMPARE(settings(), QByteArray("[dir]\ninput=/photos\noutput=/pdf\n"));
}

void RememberedFolderTest::seesWhatWasWrittenBeforeItWasMade()
{
    RememberedFolder first(key);
    first.write(u"/a"_s);
    QCOMPARE(RememberedFolder(key).read(), u"/a"_s);
    first.write(u"/b"_s);
    QCOMPARE(RememberedFolder(key).read(), u"/b"_s);
}

void RememberedFolderTest::survivesAFileThatCannotBeWritten()
{
    QVERIFY(QDir().mkdir(u"setting.ini"_s)); // a folder cannot be written, even by root
    RememberedFolder folder(key);
    folder.write(u"/photos"_s);
    QVERIFY(QFileInfo(u"setting.ini"_s).isDir());
    QCOMPARE(QDir().entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             QStringList{u"setting.ini"_s});
}

QTEST_GUILESS_MAIN(RememberedFolderTest)
#include "rememberedfolder_test.moc"

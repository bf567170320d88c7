// Only regular files are opened, and looking at anything else never waits.

#include "regularfile.h"

#include "opendescriptors.h"
#include "openwatch.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

class RegularFileTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void regularFilesAloneAreOpened_data();
    void regularFilesAloneAreOpened();
    void othersAreNotEvenOpened();
    void refusedFileLeavesNoDescriptorOpen();

private:
    QString path(const char *name) const { return folder.filePath(QLatin1String(name)); }

    QTemporaryDir folder;
};

void RegularFileTest::initTestCase()
{
    QFile file(path("file"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("content");
    file.close();
    QVERIFY(QFile(path("empty")).open(QIODevice::WriteOnly));
    QVERIFY(QFile::copy(path("file"), folder.filePath(QString::fromUtf8("-\u00fc %1 [0]:"))));
    QVERIFY(QFile::link(path("file"), path("link to the file")));
    QVERIFY(QFile::link(path("nothing"), path("link to nothing")));
    QCOMPARE(mkfifo(QFile::encodeName(path("fifo")).constData(), 0600), 0);
    QVERIFY(QFile::link(path("fifo"), path("link to the fifo")));
    QVERIFY(QDir(folder.path()).mkdir(u"folder"_s));
}

void RegularFileTest::regularFilesAloneAreOpened_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<bool>("opened");
    QTest::addColumn<QByteArray>("content");

    const QByteArray content = "content";
    QTest::newRow("a regular file") << path("file") << true << content;
    QTest::newRow("an empty file") << path("empty") << true << QByteArray();
    QTest::newRow("a link to a regular file") << path("link to the file") << true << content;
    QTest::newRow("a name with odd characters")
        << folder.filePath(QString::fromUtf8("-\u00fc %1 [0]:")) << true << content;
    QTest::newRow("a link to nothing") << path("link to nothing") << false << QByteArray();
    QTest::newRow("a FIFO without a writer") << path("fifo") << false << QByteArray();
    QTest::newRow("a link to a FIFO") << path("link to the fifo") << false << QByteArray();
    QTest::newRow("a folder") << path("folder") << false << QByteArray();
    QTest::newRow("an endless device") << "/dev/zero" << false << QByteArray();
    QTest::newRow("no such file") << path("nothing") << false << QByteArray();
    QTest::newRow("an empty path") << QString() << false << QByteArray();
}

void RegularFileTest::regularFilesAloneAreOpened()
{
    QFETCH(QString, file);
    RegularFile opened(file);
    QTEST(opened.isOpen(), "opened");
    QTEST(opened.isOpen() ? opened.readAll() : QByteArray(), "content");
}

// A device can act on it.
void RegularFileTest::othersAreNotEvenOpened()
{
    for (const auto &[name, isOpened] : {std::pair("fifo", false), std::pair("file", true)}) {
        const OpenWatch watch(path(name));
        RegularFile file(path(name));
        QCOMPARE(watch.wasOpened(), isOpened);
    }
}

void RegularFileTest::refusedFileLeavesNoDescriptorOpen()
{
    const QStringList before = openDescriptors();
    for (const char *name : {"fifo", "folder", "nothing", "file"})
        RegularFile file(path(name));
    QCOMPARE(openDescriptors(), before);
}

QTEST_GUILESS_MAIN(RegularFileTest)
#include "regularfile_test.moc"

// Every file that a fuzzer kept, read again without it.

#include "files.h"
#include "fuzztarget.h"

#include <QDir>
#include <QTest>

using namespace Qt::StringLiterals;

class CorpusTest : public QObject
{
    Q_OBJECT

private slots:
    void readerKeepsItsPromises_data();
    void readerKeepsItsPromises();
};

void CorpusTest::readerKeepsItsPromises_data()
{
    QTest::addColumn<QString>("path");
    for (const QString &folder : QStringLiteral(CORPUS_FOLDERS).split(u':')) {
        const QFileInfoList files = QDir(folder).entryInfoList(QDir::Files);
        QVERIFY2(!files.isEmpty(), qPrintable(folder));
        for (const QFileInfo &file : files)
            QTest::newRow(qPrintable(file.dir().dirName() + u'/' + file.fileName()))
                << file.filePath();
    }
}

void CorpusTest::readerKeepsItsPromises()
{
    QFETCH(const QString, path);
    const QByteArray bytes = contentOf(path);
    QVERIFY(!bytes.isNull());

    // A broken promise aborts the program.
    const auto *data = reinterpret_cast<const std::uint8_t *>(bytes.constData());
    QCOMPARE(LLVMFuzzerTestOneInput(data, static_cast<std::size_t>(bytes.size())), 0);
}

QTEST_APPLESS_MAIN(CorpusTest)
#include "corpus_test.moc"

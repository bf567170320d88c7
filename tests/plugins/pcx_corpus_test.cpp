// Every file that taught the fuzzer something, read again without it.

#include "pcx_fuzz.h"

#include <QDir>
#include <QFile>
#include <QTest>

#include <cstdint>

class TestPcxCorpus : public QObject
{
    Q_OBJECT

private slots:
    void keepsTheReadersPromises_data();
    void keepsTheReadersPromises();
};

void TestPcxCorpus::keepsTheReadersPromises_data()
{
    QTest::addColumn<QString>("path");
    for (const char *folder : {PCX_CORPUS, PCX_SAMPLES}) {
        const QFileInfoList files = QDir(QString::fromUtf8(folder)).entryInfoList(QDir::Files);
        QVERIFY2(!files.isEmpty(), folder);
        for (const QFileInfo &file : files)
            QTest::newRow(qPrintable(file.fileName())) << file.filePath();
    }
}

void TestPcxCorpus::keepsTheReadersPromises()
{
    QFETCH(const QString, path);
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();

    // A broken promise aborts the program.
    const auto *data = reinterpret_cast<const std::uint8_t *>(bytes.constData());
    QCOMPARE(LLVMFuzzerTestOneInput(data, static_cast<std::size_t>(bytes.size())), 0);
}

QTEST_APPLESS_MAIN(TestPcxCorpus)
#include "pcx_corpus_test.moc"

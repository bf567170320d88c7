// What the fuzzers of the readers kept, read again without them.

#include "pages_fuzz.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QTest>

#include <cstdint>

using namespace Qt::StringLiterals;

class PagesCorpus : public QObject
{
    Q_OBJECT

private slots:
    void keepsTheReadersPromises_data();
    void keepsTheReadersPromises();
};

void PagesCorpus::keepsTheReadersPromises_data()
{
    QTest::addColumn<QString>("path");
    for (const QString &format : {u"jpeg"_s, u"png"_s, u"tiff"_s}) {
        const QDir folder(u"" PAGES_CORPUS "/"_s + format);
        const QStringList names = folder.entryList(QDir::Files);
        QVERIFY2(!names.isEmpty(), qPrintable(format));
        for (const QString &name : names)
            QTest::newRow(qPrintable(format + u'/' + name)) << folder.filePath(name);
    }
}

void PagesCorpus::keepsTheReadersPromises()
{
    QFETCH(const QString, path);
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();

    // A broken promise aborts the program.
    const auto *data = reinterpret_cast<const std::uint8_t *>(bytes.constData());
    QCOMPARE(LLVMFuzzerTestOneInput(data, static_cast<std::size_t>(bytes.size())), 0);
}

QTEST_APPLESS_MAIN(PagesCorpus)
#include "pagescorpus_test.moc"

#include <QFile>
#include <QTest>

class TestArtwork : public QObject
{
    Q_OBJECT

private slots:
    void isThere() { QVERIFY(QFile::exists(":/iconoption/icons/whle.png")); }
};

QTEST_MAIN(TestArtwork)
#include "test_artwork.moc"

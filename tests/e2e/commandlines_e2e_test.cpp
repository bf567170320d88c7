// Names and typed angles that put options of their own on a tool's command line, through the real
// window: nothing but the PDF of the list is ever written.

#include "startup.h"
#include "windowdriver.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr int runTimeout = 120'000; // ms

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class CommandLinesE2eTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void folderNameAddsNoOption();
    void typedAngleAddsNoOption();

private:
    QString place(const QString &name) const { return m_folder->filePath(name); }
    void makeImage(const QString &path) const;
    QStringList names() const;

    std::unique_ptr<QTemporaryDir> m_folder;
};

void CommandLinesE2eTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir(m_folder->path()).mkpath(u"out"_s));
    QFile victim(place(u"victim"_s));
    QVERIFY(victim.open(QIODevice::WriteOnly) && victim.write("kept") == 4);
}

void CommandLinesE2eTest::makeImage(const QString &path) const
{
    QImage image(40, 30, QImage::Format_RGB32);
    image.fill(Qt::red);
    QVERIFY(QDir().mkpath(QFileInfo(path).path()));
    QVERIFY2(image.save(path, "PNG"), qPrintable(path));
}

QStringList CommandLinesE2eTest::names() const
{
    return QDir(place(u"out"_s)).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
}

// Split at its quotes, the path is an image, an option that writes a file, and another image.
void CommandLinesE2eTest::folderNameAddsNoOption()
{
    makeImage(place(u"x"_s));
    const QString image = place(u"x\" -write jpg:"_s) + place(u"victim \"y/a.png"_s);
    makeImage(image);
    WindowDriver driver;
    QVERIFY(driver.show());
    QVERIFY(driver.type("outputfolderEdit", place(u"out"_s)));
    driver.drop({QUrl::fromLocalFile(image)});
    QVERIFY(driver.convert(runTimeout));
    QCOMPARE(contentOf(place(u"victim"_s)), QByteArray("kept"));
    QCOMPARE(names(), QStringList());
}

void CommandLinesE2eTest::typedAngleAddsNoOption()
{
    makeImage(place(u"a.png"_s));
    WindowDriver driver;
    QVERIFY(driver.show());
    QVERIFY(driver.type("outputfolderEdit", place(u"out"_s)));
    driver.drop({QUrl::fromLocalFile(place(u"a.png"_s))});
    driver.select("comboBox_rotate", 1);
    driver.find<QComboBox>("comboBox_rotate")
        ->setEditText(u"90 -write jpg:"_s + place(u"victim"_s));
    QVERIFY(driver.convert(runTimeout));
    QCOMPARE(contentOf(place(u"victim"_s)), QByteArray("kept"));
    QCOMPARE(names(), QStringList());
}

int main(int argc, char *argv[])
{
    raiseArgumentLimit();
    QApplication application(argc, argv);
    prepare(application);
    CommandLinesE2eTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "commandlines_e2e_test.moc"

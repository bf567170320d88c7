// Names and typed angles that put options of their own on a tool's command line, through the real
// window: nothing but the PDF of the list is ever written.

#include "files.h"
#include "startup.h"
#include "windowdriver.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr int runTimeout = 120'000; // ms

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

    std::unique_ptr<QTemporaryDir> m_folder;
};

void CommandLinesE2eTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir(m_folder->path()).mkpath(u"out"_s));
    writeContent(place(u"victim"_s), "kept");
}

// Split at its quotes, the path is an image, an option that writes a file, and another image.
void CommandLinesE2eTest::folderNameAddsNoOption()
{
    const QString image = place(u"x\" -write jpg:"_s) + place(u"victim \"y/a.png"_s);
    QVERIFY(QDir().mkpath(QFileInfo(image).path()));
    QVERIFY(QFile::copy(makeImage(place(u"a.png"_s)), place(u"x"_s)));
    makeImage(image);
    WindowDriver driver;
    QVERIFY(driver.show());
    QVERIFY(driver.type("outputfolderEdit", place(u"out"_s)));
    driver.drop({QUrl::fromLocalFile(image)});
    QVERIFY(driver.convert(runTimeout));
    QCOMPARE(contentOf(place(u"victim"_s)), QByteArray("kept"));
    QCOMPARE(namesIn(place(u"out"_s)), QStringList());
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
    QCOMPARE(namesIn(place(u"out"_s)), QStringList());
}

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    setUpApplication(application);
    CommandLinesE2eTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "commandlines_e2e_test.moc"

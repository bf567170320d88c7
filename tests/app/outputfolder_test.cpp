// The output folder: its dialog and what is remembered of it.

#include "filedialoguser.h"
#include "windowfixture.h"

#include <QDir>
#include <QFile>
#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace {

const QString settings = u"setting.ini"_s;

/// Presses the folder button and chooses `folder`; "" stands for a cancelled dialog.
FileDialogFacts browse(WindowFixture &fixture, const QString &folder)
{
    FileDialogFacts facts(nullptr);
    ModalAnswer answer([&](QWidget *box) {
        facts = FileDialogFacts(box);
        if (!folder.isEmpty())
            chooseFiles(box, {folder});
    });
    QTest::mouseClick(fixture.find<QPushButton>("outputButton"), Qt::LeftButton);
    if (!answer.happened())
        qFatal("no dialog came");
    return facts;
}

QString folderField(WindowFixture &fixture)
{
    return fixture.find<QLineEdit>("outputfolderEdit")->text();
}

} // namespace

class OutputFolderTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void dialogAsksForAFolderBesideTheBundleAtFirst();
    void chosenFolderIsShownAndStored();
    void laterRunStartsTheDialogThereWithAnEmptyField();
    void cancelEmptiesTheFieldAndStoresNothingChosen();
    void typedFolderIsUsedButNotStored();
    void inputFolderIsKept();
};

void OutputFolderTest::init()
{
    WindowFixture fixture; // goes to the bundle's folder
    QFile::remove(settings);
}

void OutputFolderTest::dialogAsksForAFolderBesideTheBundleAtFirst()
{
    WindowFixture fixture;
    const FileDialogFacts dialog = browse(fixture, {});
    QCOMPARE(dialog.caption, u"Browse a floder to save the converted files."_s);
    QCOMPARE(dialog.folder, QDir::currentPath());
    QCOMPARE(dialog.fileMode, QFileDialog::Directory);
    QCOMPARE(dialog.options, QFileDialog::ShowDirsOnly | QFileDialog::DontResolveSymlinks);
    QCOMPARE(dialog.parent, &fixture.window);
}

void OutputFolderTest::chosenFolderIsShownAndStored()
{
    WindowFixture fixture;
    browse(fixture, fixture.outputPath());
    QCOMPARE(folderField(fixture), fixture.outputPath());
    QCOMPARE(contentBesideTheBundle(settings),
             "[dir]\noutput=" + fixture.outputPath().toUtf8() + '\n');
}

void OutputFolderTest::laterRunStartsTheDialogThereWithAnEmptyField()
{
    WindowFixture fixture;
    browse(fixture, fixture.outputPath());
    WindowFixture later;
    QCOMPARE(folderField(later), QString());
    QCOMPARE(browse(later, {}).folder, fixture.outputPath());
}

void OutputFolderTest::cancelEmptiesTheFieldAndStoresNothingChosen()
{
    WindowFixture fixture;
    browse(fixture, fixture.outputPath());
    browse(fixture, {});
    QCOMPARE(folderField(fixture), QString());
    QCOMPARE(contentBesideTheBundle(settings), QByteArray("[dir]\noutput=\n"));
}

void OutputFolderTest::typedFolderIsUsedButNotStored()
{
    WindowFixture fixture;
    fixture.addImages({u"a.jpg"_s});
    QTest::keyClicks(fixture.find<QLineEdit>("outputfolderEdit"), fixture.outputPath());
    fixture.press("runButton");
    QVERIFY(fixture.waitUntilQuiet());
    QCOMPARE(fixture.outputFiles(), QStringList({u"a.pdf: convert(a.jpg)"_s}));
    QCOMPARE(contentBesideTheBundle(settings), QByteArray("none"));
}

void OutputFolderTest::inputFolderIsKept()
{
    QFile file(settings);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("[dir]\ninput=/\n");
    file.close();
    WindowFixture fixture;
    browse(fixture, {});
    QCOMPARE(contentBesideTheBundle(settings), QByteArray("[dir]\ninput=/\noutput=\n"));
}

QTEST_MAIN(OutputFolderTest)
#include "outputfolder_test.moc"

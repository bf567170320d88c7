// The output folder: its dialog and what is remembered of it.

#include "filedialoguser.h"
#include "windowfixture.h"

#include <QDir>
#include <QDropEvent>
#include <QFile>
#include <QLineEdit>
#include <QMimeData>
#include <QUrl>

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
    void droppedFolderFillsTheField_data();
    void droppedFolderFillsTheField();
    void droppedTextIsTypedIntoTheField();
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

void OutputFolderTest::droppedFolderFillsTheField_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<bool>("isTaken");
    QTest::newRow("a folder") << QStringList{u"folder/"_s} << true;
    QTest::newRow("an image") << QStringList{u"a.jpg"_s} << false;
    QTest::newRow("two folders") << QStringList{u"folder"_s, u"other"_s} << false;
    QTest::newRow("a folder and an image") << QStringList{u"folder"_s, u"a.jpg"_s} << false;
}

void OutputFolderTest::droppedFolderFillsTheField()
{
    QFETCH(QStringList, names);
    QFETCH(bool, isTaken);
    WindowFixture fixture;
    for (const QString &folder : {u"folder"_s, u"other"_s})
        QVERIFY(QDir().mkdir(fixture.inputPath(folder)));
    fixture.makeFile(u"a.jpg"_s);
    fixture.fill("outputfolderEdit", u"before"_s);
    QMimeData data;
    QList<QUrl> urls;
    for (const QString &name : names)
        urls << QUrl::fromLocalFile(fixture.inputPath(name));
    data.setUrls(urls);
    auto *field = fixture.find<QLineEdit>("outputfolderEdit");
    QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(field, &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(field, &drop);
    QCOMPARE(field->text(), isTaken ? fixture.inputPath(u"folder"_s) : u"before"_s);
    QCOMPARE(fixture.rows().size(), isTaken ? 0 : names.size());
}

void OutputFolderTest::droppedTextIsTypedIntoTheField()
{
    WindowFixture fixture;
    QMimeData data;
    data.setText(u"/srv/pdf"_s);
    auto *field = fixture.find<QLineEdit>("outputfolderEdit");
    QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(field, &enter);
    QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(field, &drop);
    QCOMPARE(field->text(), u"/srv/pdf"_s);
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

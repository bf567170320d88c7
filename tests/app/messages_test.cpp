// The two message boxes, the only messages of a run.

#include "windowfixture.h"

#include <QLineEdit>
#include <QMessageBox>

using namespace Qt::StringLiterals;

namespace {

/// Title and text of the box; nothing when it is no box of that kind with a single OK button that
/// belongs to the window.
QStringList messageOf(QWidget *widget, QMessageBox::Icon icon, const QWidget &window)
{
    const auto *box = qobject_cast<QMessageBox *>(widget);
    if (!box || box->icon() != icon || box->standardButtons() != QMessageBox::Ok ||
        box->parentWidget() != &window)
        return {};
    return {box->windowTitle(), box->text()};
}

} // namespace

class MessagesTest : public QObject
{
    Q_OBJECT

private slots:
    void emptyListIsWarnedAboutAndNothingElseChanges();
    void emptyListIsWarnedAboutBeforeTheFolderIsLookedAt();
    void missingOutputFolderIsAskedForAndTheFieldEmptied_data();
    void missingOutputFolderIsAskedForAndTheFieldEmptied();
    void losingTheOutputFolderMidRunEndsIt();
};

void MessagesTest::emptyListIsWarnedAboutAndNothingElseChanges()
{
    WindowFixture fixture;
    fixture.setOutputFolder();
    ProcessProbe::fileIndex(fixture.window) = 7;
    QStringList shown;
    ModalAnswer answer(
        [&](QWidget *box) { shown = messageOf(box, QMessageBox::Warning, fixture.window); });
    fixture.press("runButton");
    QVERIFY(answer.happened());
    QCOMPARE(shown, QStringList({u"Empty input"_s, u"Please choose files to convert."_s}));
    QCOMPARE(ProcessProbe::fileIndex(fixture.window), 7);
    QCOMPARE(fixture.find<QLineEdit>("outputfolderEdit")->text(), fixture.outputPath());
    QVERIFY(fixture.calls().isEmpty());
}

void MessagesTest::emptyListIsWarnedAboutBeforeTheFolderIsLookedAt()
{
    WindowFixture fixture;
    fixture.fill("outputfolderEdit", u"/nowhere/at/all"_s);
    QString title;
    ModalAnswer answer([&title](QWidget *box) { title = box->windowTitle(); });
    fixture.press("runButton");
    QVERIFY(answer.happened());
    QCOMPARE(title, u"Empty input"_s);
    QCOMPARE(fixture.find<QLineEdit>("outputfolderEdit")->text(), u"/nowhere/at/all"_s);
}

void MessagesTest::missingOutputFolderIsAskedForAndTheFieldEmptied_data()
{
    QTest::addColumn<QString>("folder");
    QTest::newRow("no text") << "";
    QTest::newRow("a folder that does not exist") << "/nowhere/at/all";
    QTest::newRow("a file instead of a folder") << "/etc/passwd";
}

void MessagesTest::missingOutputFolderIsAskedForAndTheFieldEmptied()
{
    QFETCH(QString, folder);
    WindowFixture fixture;
    fixture.addImages({u"a.jpg"_s});
    fixture.fill("outputfolderEdit", folder);
    QStringList shown;
    ModalAnswer answer(
        [&](QWidget *box) { shown = messageOf(box, QMessageBox::Information, fixture.window); });
    fixture.press("runButton");
    QVERIFY(answer.happened());
    QCOMPARE(shown, QStringList({u"Invalid order"_s, u"Please specify an output folder."_s}));
    QCOMPARE(fixture.find<QLineEdit>("outputfolderEdit")->text(), QString());
    QCOMPARE(ProcessProbe::fileIndex(fixture.window), 0);
    QVERIFY(fixture.calls().isEmpty());
}

void MessagesTest::losingTheOutputFolderMidRunEndsIt()
{
    WindowFixture fixture;
    fixture.addImages({u"a.jpg"_s, u"b.jpg"_s});
    fixture.setOutputFolder();
    fixture.scriptConvert(fixture.holdTool());
    fixture.press("runButton");
    fixture.fill("outputfolderEdit", u"/nowhere"_s);
    QString title;
    ModalAnswer answer([&title](QWidget *box) { title = box->windowTitle(); });
    fixture.openGate();
    QTRY_VERIFY(answer.happened());
    QCOMPARE(title, u"Invalid order"_s);
    QTRY_COMPARE(fixture.find<QLineEdit>("outputfolderEdit")->text(), QString());
    QCOMPARE(fixture.calls().size(), 1);
}

QTEST_MAIN(MessagesTest)
#include "messages_test.moc"

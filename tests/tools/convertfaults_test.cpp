// What goes wrong while convert works loses no page and no older result.

#include "imagefiles.h"
#include "toolbench.h"

#include <QTest>

using namespace Qt::StringLiterals;

class ConvertFaultsTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void imageThatChangesAtTheFirstReadIsRefused_data();
    void imageThatChangesAtTheFirstReadIsRefused();
    void signalEndsALongMergeAtOnce();
    void pageThatTheToolDropsIsAFailure();
    void copyCutShortIsAFailure();

private:
    QString place(const QString &name) const { return m_folder->filePath(name); }
    RunResult convert(QStringList command, const QString &fault) const;

    std::unique_ptr<QTemporaryDir> m_folder;
};

void ConvertFaultsTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    writeContent(place(u"o.pdf"_s), "older");
}

// The command's first word is the program.
RunResult ConvertFaultsTest::convert(QStringList command, const QString &fault) const
{
    const QString program = command.takeFirst();
    return runProgram(program, command + QStringList{u"o.pdf"_s}, m_folder->path(),
                      {{u"LD_PRELOAD"_s, QStringLiteral(TESSARO_FAULTINJECTION)},
                       {u"TESSARO_FAULTINJECTION"_s, fault}});
}

void ConvertFaultsTest::imageThatChangesAtTheFirstReadIsRefused_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"x.jpg", "x.png", "x.tif"})
        QTest::newRow(name) << name;
}

void ConvertFaultsTest::imageThatChangesAtTheFirstReadIsRefused()
{
    QFETCH(QString, name);
    if (name == u"x.tif"_s)
        writeContent(place(name), imagefiles::tiff({}));
    else
        makeImage(place(name));
    const RunResult result = convert({bundledTool(u"convert"_s), name}, place(name));
    QCOMPARE(result.status, 1);
    QCOMPARE(result.errors, "convert: '" + name.toUtf8() + "' was changed meanwhile\n");
    QCOMPARE(contentOf(place(u"o.pdf"_s)), QByteArray("older"));
}

// 300 pages, of which the signal comes while the first ones are written.
void ConvertFaultsTest::signalEndsALongMergeAtOnce()
{
    makeImage(place(u"x.jpg"_s), {1000, 1000});
    const RunResult result =
        convert(QStringList{bundledTool(u"convert"_s)} + QStringList(300, u"x.jpg"_s), u"signal"_s);
    QCOMPARE(result.status, 1);
    QCOMPARE(result.errors, QByteArray("ended by signal 15\n"));
    QCOMPARE(contentOf(place(u"o.pdf"_s)), QByteArray("older"));
    QCOMPARE(namesIn(m_folder->path()), QStringList({u"o.pdf"_s, u"x.jpg"_s}));
}

// Of so many pages each run of the tool makes two; this one makes one.
void ConvertFaultsTest::pageThatTheToolDropsIsAFailure()
{
    makeImage(place(u"x.png"_s));
    QCOMPARE(convert({bundledTool(u"convert"_s), u"x.png"_s}, {}).status, 0);
    const ToolBundle bundle(shellTool(u"cp ../../one.pdf page.pdf"_s));
    QVERIFY(QFile::rename(place(u"o.pdf"_s), place(u"one.pdf"_s)));
    writeContent(place(u"x.tif"_s), imagefiles::tiff({.compression = 5, .pages = 1001}));
    const RunResult result = convert({bundle.tool(u"convert"_s), u"x.tif"_s}, {});
    QCOMPARE(result.status, 1);
    QCOMPARE(result.errors, QByteArray("convert: a page is missing\n"));
    QVERIFY(!QFile::exists(place(u"o.pdf"_s)));
}

// Where no link can be made, the image tool gets a copy.
void ConvertFaultsTest::copyCutShortIsAFailure()
{
    const QString image = makeImage(place(u"x.ppm"_s), {300, 200});
    const RunResult result = convert(
        {QStringLiteral(TESSARO_WITHOUTCALLS), u"links"_s, bundledTool(u"convert"_s), u"x.ppm"_s},
        u"full"_s);
    QCOMPARE(result.status, 1);
    const QByteArray why = "cannot copy '" + image.toUtf8() + "': No space left on device\n";
    QCOMPARE(result.errors, "convert: " + why);
    QCOMPARE(contentOf(place(u"o.pdf"_s)), QByteArray("older"));
}

QTEST_GUILESS_MAIN(ConvertFaultsTest)
#include "convertfaults_test.moc"

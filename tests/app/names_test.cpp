// Any file name that can be put between double quotes reaches the tool as it is.

#include "windowfixture.h"

#include <QTableWidget>

#include <algorithm>

#include <sys/resource.h>

using namespace Qt::StringLiterals;

class NamesTest : public QObject
{
    Q_OBJECT

private slots:
    void oddNamesReachTheToolWhole_data();
    void oddNamesReachTheToolWhole();
    void nameWithADoubleQuoteDoesNotReachTheTool();
    void thousandsOfRowsReachTheToolInOneCall_data();
    void thousandsOfRowsReachTheToolInOneCall();
};

void NamesTest::oddNamesReachTheToolWhole_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("output");

    const QString longName(195, QLatin1Char('n'));
    QTest::newRow("blanks") << " my  scan .jpg"
                            << " my  scan .pdf";
    QTest::newRow("letters outside ASCII") << QString::fromUtf8("\u00fcber \u65e5\u672c.jpg")
                                           << QString::fromUtf8("\u00fcber \u65e5\u672c.pdf");
    QTest::newRow("a leading dash") << "-monochrome.jpg"
                                    << "-monochrome.pdf";
    QTest::newRow("per cent signs") << "100%d %1.jpg"
                                    << "100%d %1.pdf";
    QTest::newRow("brackets") << "a[0](1){2}.jpg"
                              << "a[0](1){2}.pdf";
    QTest::newRow("a colon") << "png:x.jpg"
                             << "png:x.pdf";
    QTest::newRow("characters of the shell") << "$(a)&;*?'`\\.jpg"
                                             << "$(a)&;*?'`\\.pdf";
    QTest::newRow("two hundred characters") << longName + u".jpg"_s << longName + u".pdf"_s;
    QTest::newRow("a hidden file") << ".hidden.jpg"
                                   << ".pdf";
}

void NamesTest::oddNamesReachTheToolWhole()
{
    QFETCH(QString, name);
    QFETCH(QString, output);
    WindowFixture fixture;
    fixture.addImages({name});
    fixture.setOutputFolder();
    fixture.fill("lineEdit_title", u"T"_s);
    fixture.press("runButton");
    QVERIFY(fixture.waitUntilQuiet());
    QCOMPARE(fixture.calls().size(), 2);
    QCOMPARE(fixture.calls().first().arguments,
             QStringList({fixture.inputPath(name), fixture.outputPath(output)}));
    QCOMPARE(fixture.outputFiles(), QStringList({output + u": pdftk(convert("_s + name + u"))"_s}));
}

void NamesTest::nameWithADoubleQuoteDoesNotReachTheTool()
{
    WindowFixture fixture;
    fixture.addImages({u"a\"b.jpg"_s});
    fixture.setOutputFolder();
    fixture.press("runButton");
    QVERIFY(fixture.waitUntilQuiet());
    QCOMPARE(fixture.calls().size(), 1);
    QVERIFY(!fixture.calls().first().arguments.contains(fixture.inputPath(u"a\"b.jpg"_s)));
    QCOMPARE(fixture.outputFiles(), QStringList());
}

void NamesTest::thousandsOfRowsReachTheToolInOneCall_data()
{
    QTest::addColumn<quint64>("hardLimit");
    QTest::newRow("no limit on the stack") << quint64{RLIM_INFINITY};
    // Enough for these, and the last row, as a process cannot take it back.
    QTest::newRow("a limit below what is asked for") << quint64{16'777'216};
}

void NamesTest::thousandsOfRowsReachTheToolInOneCall()
{
    QFETCH(quint64, hardLimit);
    rlimit stack = {};
    QCOMPARE(getrlimit(RLIMIT_STACK, &stack), 0);
    stack.rlim_cur = 8'388'608; // Linux's usual limit lets two megabytes of arguments through
    stack.rlim_max = std::min<rlim_t>(stack.rlim_max, hardLimit);
    QCOMPARE(setrlimit(RLIMIT_STACK, &stack), 0);
    WindowFixture fixture;
    QStringList names;
    for (int i = 0; i < 10'000; ++i)
        names << u"%1.jpg"_s.arg(i, 196, 10, QLatin1Char('0'));
    const QStringList paths = fixture.addImages(names);
    QCOMPARE(fixture.find<QTableWidget>("inputfiletableWidget")->rowCount(), 10'000);
    fixture.setOutputFolder();
    fixture.check("checkBox_joinpdf");
    fixture.press("runButton");
    QVERIFY(fixture.waitUntilQuiet());

    const QString output = fixture.outputPath(names.first().replace(u".jpg"_s, u".pdf"_s));
    QCOMPARE(fixture.calls().size(), 1);
    QCOMPARE(fixture.calls().first().arguments, paths + QStringList{output});
    rlimit after = {};
    QCOMPARE(getrlimit(RLIMIT_STACK, &after), 0);
    QCOMPARE(after.rlim_cur, stack.rlim_cur);
}

QTEST_MAIN(NamesTest)
#include "names_test.moc"

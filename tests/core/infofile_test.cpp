// The document description as pdftk's info file.

#include "infofile.h"

#include <QTest>

using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(Description)

class InfoFileTest : public QObject
{
    Q_OBJECT

private slots:
    void descriptionWithoutTextIsBlank_data();
    void descriptionWithoutTextIsBlank();
    void fileHasAKeyAndAValueLineForEachField_data();
    void fileHasAKeyAndAValueLineForEachField();
};

void InfoFileTest::descriptionWithoutTextIsBlank_data()
{
    QTest::addColumn<Description>("description");
    QTest::addColumn<bool>("blank");

    QTest::newRow("nothing typed") << Description{} << true;
    QTest::newRow("blanks alone in every field")
        << Description{u" "_s, u"  "_s, u"   "_s, u" "_s} << true;
    QTest::newRow("a title") << Description{u"T"_s, u""_s, u""_s, u""_s} << false;
    QTest::newRow("a subject") << Description{u""_s, u"S"_s, u""_s, u""_s} << false;
    QTest::newRow("a keyword") << Description{u""_s, u""_s, u"K"_s, u""_s} << false;
    QTest::newRow("an author") << Description{u""_s, u""_s, u""_s, u"A"_s} << false;
    QTest::newRow("a tab is text") << Description{u"\t"_s, u""_s, u""_s, u""_s} << false;
    QTest::newRow("a no-break space is text")
        << Description{QString(QChar(0xA0)), u""_s, u""_s, u""_s} << false;
    QTest::newRow("blanks around a letter are text")
        << Description{u" a "_s, u""_s, u""_s, u""_s} << false;
}

void InfoFileTest::descriptionWithoutTextIsBlank()
{
    QFETCH(Description, description);
    QTEST(isBlank(description), "blank");
}

void InfoFileTest::fileHasAKeyAndAValueLineForEachField_data()
{
    QTest::addColumn<Description>("description");
    QTest::addColumn<QString>("file");

    QTest::newRow("all fields")
        << Description{u"Title"_s, u"Subject"_s, u"one, two"_s, u"Author"_s}
        << u"InfoKey:Title\nInfoValue:Title\nInfoKey:Subject\nInfoValue:Subject\n"
           "InfoKey:Keywords\nInfoValue:one, two\nInfoKey:Author\nInfoValue:Author\n"_s;
    QTest::newRow("an author alone")
        << Description{u""_s, u""_s, u""_s, u"A"_s}
        << u"InfoKey:Title\nInfoValue:\nInfoKey:Subject\nInfoValue:\n"
           "InfoKey:Keywords\nInfoValue:\nInfoKey:Author\nInfoValue:A\n"_s;
    QTest::newRow("blanks, tabs and per cent signs stay as typed")
        << Description{u"  a  b "_s, u"\t"_s, u"%1%2"_s, u""_s}
        << u"InfoKey:Title\nInfoValue:  a  b \nInfoKey:Subject\nInfoValue:\t\n"
           "InfoKey:Keywords\nInfoValue:%1%2\nInfoKey:Author\nInfoValue:\n"_s;
    QTest::newRow("letters beyond ASCII")
        << Description{u"caf\u00e9"_s, u"\u65e5 \U0001F600"_s, u""_s, u""_s}
        << u"InfoKey:Title\nInfoValue:caf\u00e9\nInfoKey:Subject\nInfoValue:\u65e5 \U0001F600\n"
           "InfoKey:Keywords\nInfoValue:\nInfoKey:Author\nInfoValue:\n"_s;
}

void InfoFileTest::fileHasAKeyAndAValueLineForEachField()
{
    QFETCH(Description, description);
    QTEST(infoFile(description), "file");
}

QTEST_GUILESS_MAIN(InfoFileTest)
#include "infofile_test.moc"

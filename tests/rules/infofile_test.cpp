// The document description as pdftk's info file.

#include "infofile.h"

#include <QTest>
#include <QTextCodec>

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
    QTest::addColumn<QByteArray>("codec");
    QTest::addColumn<Description>("description");
    QTest::addColumn<QByteArray>("file");

    const Description all{u"Title"_s, u"Subject"_s, u"one, two"_s, u"Author"_s};
    QTest::newRow("all fields")
        << QByteArray("UTF-8") << all
        << QByteArray("InfoKey:Title\nInfoValue:Title\nInfoKey:Subject\nInfoValue:Subject\n"
                      "InfoKey:Keywords\nInfoValue:one, two\nInfoKey:Author\nInfoValue:Author\n");
    QTest::newRow("an author alone")
        << QByteArray("UTF-8") << Description{u""_s, u""_s, u""_s, u"A"_s}
        << QByteArray("InfoKey:Title\nInfoValue:\nInfoKey:Subject\nInfoValue:\n"
                      "InfoKey:Keywords\nInfoValue:\nInfoKey:Author\nInfoValue:A\n");
    QTest::newRow("blanks, tabs and per cent signs stay as typed")
        << QByteArray("UTF-8") << Description{u"  a  b "_s, u"\t"_s, u"%1%2"_s, u""_s}
        << QByteArray("InfoKey:Title\nInfoValue:  a  b \nInfoKey:Subject\nInfoValue:\t\n"
                      "InfoKey:Keywords\nInfoValue:%1%2\nInfoKey:Author\nInfoValue:\n");

    const auto accented = QString::fromUtf8("caf\u00e9");
    const auto mixed = QString::fromUtf8("\u65e5\u672c \U0001F600");
    const Description foreign{accented, mixed, u""_s, u""_s};
    QTest::newRow("non-ASCII in UTF-8, without a byte-order mark")
        << QByteArray("UTF-8") << foreign
        << QByteArray("InfoKey:Title\nInfoValue:caf\xC3\xA9\nInfoKey:Subject\nInfoValue:"
                      "\xE6\x97\xA5\xE6\x9C\xAC \xF0\x9F\x98\x80\n"
                      "InfoKey:Keywords\nInfoValue:\nInfoKey:Author\nInfoValue:\n");
    QTest::newRow("Latin 1, with a substitute for what it lacks")
        << QByteArray("ISO-8859-1") << foreign
        << QByteArray("InfoKey:Title\nInfoValue:caf\xE9\nInfoKey:Subject\nInfoValue:?? ??\n"
                      "InfoKey:Keywords\nInfoValue:\nInfoKey:Author\nInfoValue:\n");
    QTest::newRow("Japanese two-byte letters")
        << QByteArray("EUC-JP") << Description{u""_s, mixed.left(3), u""_s, u""_s}
        << QByteArray("InfoKey:Title\nInfoValue:\nInfoKey:Subject\nInfoValue:\xC6\xFC\xCB\xDC \n"
                      "InfoKey:Keywords\nInfoValue:\nInfoKey:Author\nInfoValue:\n");
}

void InfoFileTest::fileHasAKeyAndAValueLineForEachField()
{
    QFETCH(QByteArray, codec);
    QFETCH(Description, description);
    QTEST(infoFile(description, *QTextCodec::codecForName(codec)), "file");
}

QTEST_GUILESS_MAIN(InfoFileTest)
#include "infofile_test.moc"

// How the option pages become command lines.

#include "privatelocales.h"
#include "windowfixture.h"

#include <QDir>
#include <QFile>
#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace {

QByteArray withTitle(const QByteArray &title)
{
    return "InfoKey:Title\nInfoValue:" + title +
           "\nInfoKey:Subject\nInfoValue:\nInfoKey:Keywords\nInfoValue:\n"
           "InfoKey:Author\nInfoValue:\n";
}

QString updateInfo()
{
    return u" update_info \""_s + QDir::currentPath() + u"/pdfa.txt\""_s;
}

} // namespace

class OptionsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void imageOptionsStandInTheirOrder_data();
    void imageOptionsStandInTheirOrder();
    void pageSizeOptionIsThatOfTheIndex();
    void descriptionIsWrittenWithAllItsLines_data();
    void descriptionIsWrittenWithAllItsLines();
    void blankDescriptionTouchesNoFile();
    void infoFileIsInTheLocalesCharset_data();
    void infoFileIsInTheLocalesCharset();
    void infoFileStaysAfterTheRun();
    void infoFileThatCannotBeWrittenIsPassedOn();
    void eachSecurityControlAddsItsPiece_data();
    void eachSecurityControlAddsItsPiece();

private:
    PrivateLocales locales;
};

void OptionsTest::initTestCase()
{
    QVERIFY(locales.add(u"en_US"_s, u"ISO-8859-1"_s));
}

void OptionsTest::init()
{
    locales.use("C.UTF-8");
    WindowFixture fixture; // goes to the bundle's folder
    QFile::remove(u"pdfa.txt"_s);
    QDir().rmdir(u"pdfa.txt"_s);
}

void OptionsTest::imageOptionsStandInTheirOrder_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("rotation");
    QTest::addColumn<int>("compression");
    QTest::addColumn<bool>("monochrome");
    QTest::addColumn<QString>("option");

    QTest::newRow("nothing chosen") << 0 << 0 << 0 << false << "";
    QTest::newRow("everything") << 5 << 1 << 5 << true
                                << " -resize 595x842 -rotate 90 -compress JPEG -monochrome";
    QTest::newRow("a page size") << 16 << 0 << 0 << false << " -resize 1224x792";
    QTest::newRow("half a turn") << 0 << 2 << 0 << false << " -rotate 180";
    QTest::newRow("three quarters of a turn") << 0 << 3 << 0 << false << " -rotate 270";
    QTest::newRow("a compression") << 0 << 0 << 10 << false << " -compress zip";
    QTest::newRow("black and white") << 0 << 0 << 0 << true << " -monochrome";
}

void OptionsTest::imageOptionsStandInTheirOrder()
{
    QFETCH(int, size);
    QFETCH(int, rotation);
    QFETCH(int, compression);
    QFETCH(bool, monochrome);
    WindowFixture fixture;
    fixture.select("comboBox_pagesize", size);
    fixture.select("comboBox_rotate", rotation);
    fixture.select("comboBox_compresstype", compression);
    fixture.check("checkBox_monochrome", monochrome);
    QTEST(fixture.window.gettheoption(), "option");
}

void OptionsTest::pageSizeOptionIsThatOfTheIndex()
{
    WindowFixture fixture;
    QCOMPARE(fixture.window.getresize(0), QString());
    QCOMPARE(fixture.window.getresize(1), u" -resize 2380x3368"_s);
    QCOMPARE(fixture.window.getresize(19), u" -resize 792x1224"_s);
    QCOMPARE(fixture.window.getresize(20), QString());
    QCOMPARE(fixture.window.getresize(-1), QString());
}

void OptionsTest::descriptionIsWrittenWithAllItsLines_data()
{
    QTest::addColumn<QStringList>("texts"); // title, subject, keywords, author
    QTest::addColumn<QByteArray>("file");

    QTest::newRow("all fields")
        << QStringList{u"T"_s, u"S"_s, u"K1, K2"_s, u"A"_s}
        << QByteArray("InfoKey:Title\nInfoValue:T\nInfoKey:Subject\nInfoValue:S\n"
                      "InfoKey:Keywords\nInfoValue:K1, K2\nInfoKey:Author\nInfoValue:A\n");
    QTest::newRow("an author alone")
        << QStringList{u""_s, u""_s, u""_s, u"A"_s}
        << QByteArray("InfoKey:Title\nInfoValue:\nInfoKey:Subject\nInfoValue:\n"
                      "InfoKey:Keywords\nInfoValue:\nInfoKey:Author\nInfoValue:A\n");
    QTest::newRow("blanks around and within")
        << QStringList{u"  a  b "_s, u""_s, u""_s, u""_s} << withTitle("  a  b ");
    QTest::newRow("a tab alone") << QStringList{u"\t"_s, u""_s, u""_s, u""_s} << withTitle("\t");
}

void OptionsTest::descriptionIsWrittenWithAllItsLines()
{
    QFETCH(QStringList, texts);
    WindowFixture fixture;
    fixture.fill("lineEdit_title", texts[0]);
    fixture.fill("lineEdit_subject", texts[1]);
    fixture.fill("lineEdit_keywords", texts[2]);
    fixture.fill("lineEdit_author", texts[3]);
    QCOMPARE(fixture.window.getPdftkoption(), updateInfo());
    QTEST(contentBesideTheBundle(u"pdfa.txt"_s), "file");
}

void OptionsTest::blankDescriptionTouchesNoFile()
{
    WindowFixture fixture;
    for (const char *field :
         {"lineEdit_title", "lineEdit_subject", "lineEdit_keywords", "lineEdit_author"})
        fixture.fill(field, u"  "_s);
    QCOMPARE(fixture.window.getPdftkoption(), QString());
    QCOMPARE(contentBesideTheBundle(u"pdfa.txt"_s), QByteArray("none"));
}

void OptionsTest::infoFileIsInTheLocalesCharset_data()
{
    QTest::addColumn<QByteArray>("locale");
    QTest::addColumn<QByteArray>("title");
    QTest::newRow("C") << QByteArray("C") << QByteArray("\xC3\xA9 \xE2\x82\xAC");
    QTest::newRow("UTF-8") << QByteArray("C.UTF-8") << QByteArray("\xC3\xA9 \xE2\x82\xAC");
    QTest::newRow("Latin 1, which lacks the euro")
        << QByteArray("en_US.ISO-8859-1") << QByteArray("\xE9 ?");
}

void OptionsTest::infoFileIsInTheLocalesCharset()
{
    QFETCH(QByteArray, locale);
    QFETCH(QByteArray, title);
    locales.use(locale);
    WindowFixture fixture;
    fixture.fill("lineEdit_title", QString::fromUtf8("\u00e9 \u20ac"));
    fixture.window.getPdftkoption();
    QCOMPARE(contentBesideTheBundle(u"pdfa.txt"_s), withTitle(title));
}

void OptionsTest::infoFileStaysAfterTheRun()
{
    WindowFixture fixture;
    fixture.addImages({u"a.jpg"_s});
    fixture.setOutputFolder();
    fixture.fill("lineEdit_title", u"A long first title"_s);
    fixture.press("runButton");
    QVERIFY(fixture.waitUntilQuiet());
    QCOMPARE(contentBesideTheBundle(u"pdfa.txt"_s), withTitle("A long first title"));
    fixture.fill("lineEdit_title", u"Short"_s);
    fixture.window.getPdftkoption();
    QCOMPARE(contentBesideTheBundle(u"pdfa.txt"_s), withTitle("Short"));
}

void OptionsTest::infoFileThatCannotBeWrittenIsPassedOn()
{
    QVERIFY(QDir().mkdir(u"pdfa.txt"_s)); // a folder cannot be written, even by root
    WindowFixture fixture;
    fixture.fill("lineEdit_title", u"T"_s);
    QCOMPARE(fixture.window.getPdftkoption(), u"111"_s);
}

void OptionsTest::eachSecurityControlAddsItsPiece_data()
{
    QTest::addColumn<QString>("owner");
    QTest::addColumn<QString>("user");
    QTest::addColumn<QByteArrayList>("boxes");
    QTest::addColumn<QString>("option");

    QTest::newRow("nothing") << ""
                             << "" << QByteArrayList{} << "";
    QTest::newRow("everything")
        << "abc"
        << "xyz"
        << QByteArrayList{"checkBox_allowprint", "checkBox_allowmodify", "checkBox_allowcopy",
                          "checkBox_allowannotation"}
        << " owner_pw abc user_pw xyz allow printing allow modifycontents allow copycontents"
           " allow modifyannotations";
    QTest::newRow("equal passwords") << "abc"
                                     << "abc" << QByteArrayList{} << " owner_pw abc";
    QTest::newRow("a user password alone") << ""
                                           << "xyz" << QByteArrayList{} << " user_pw xyz";
    QTest::newRow("passwords that differ in case")
        << "Abc"
        << "abc" << QByteArrayList{} << " owner_pw Abc user_pw abc";
    QTest::newRow("an owner password of blanks, commenting allowed")
        << "   "
        << "" << QByteArrayList{"checkBox_allowannotation"} << " allow modifyannotations";
    QTest::newRow("printing") << ""
                              << "" << QByteArrayList{"checkBox_allowprint"} << " allow printing";
    QTest::newRow("document assembly grants modification")
        << ""
        << "" << QByteArrayList{"checkBox_allowmodify"} << " allow modifycontents";
    QTest::newRow("copying") << ""
                             << "" << QByteArrayList{"checkBox_allowcopy"} << " allow copycontents";
}

void OptionsTest::eachSecurityControlAddsItsPiece()
{
    QFETCH(QString, owner);
    QFETCH(QString, user);
    QFETCH(QByteArrayList, boxes);
    WindowFixture fixture;
    fixture.fill("lineEdit_ownerpwd", owner);
    fixture.fill("lineEdit_userpwd", user);
    for (const QByteArray &box : boxes)
        fixture.check(box);
    QTEST(fixture.window.getPdftkoptionPer(), "option");
}

QTEST_MAIN(OptionsTest)
#include "options_test.moc"

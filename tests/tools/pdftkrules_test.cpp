// How our pdftk reads arguments, passwords and info file; without a PDF.

#include "error.h"
#include "infofile.h"
#include "passwords.h"
#include "pdftkcall.h"

#include <QTest>

using Words = std::vector<std::string>;

Q_DECLARE_METATYPE(std::string)
Q_DECLARE_METATYPE(Words)

class PdftkRulesTest : public QObject
{
    Q_OBJECT

private slots:
    void callsOfTheApplicationAreRead_data();
    void callsOfTheApplicationAreRead();
    void otherCallsAreRefused_data();
    void otherCallsAreRefused();
    void loggedArgumentsAreMasked_data();
    void loggedArgumentsAreMasked();
    void passwordsAreNormalized_data();
    void passwordsAreNormalized();
    void passwordsAreReadAsUtf8OrElseInTheLocalesCharset();
    void userPasswordAloneIsTheOwnersToo();
    void nothingIsEncryptedWithoutAPassword();
    void passwordsWithLineBreaksAreRefused_data();
    void passwordsWithLineBreaksAreRefused();
    void equalPasswordsAreRefused();
    void infoFileIsRead_data();
    void infoFileIsRead();
    void otherFilesAreNoInfoFiles();
};

namespace {

const Words base = {"in.pdf", "output", "out.pdf"};

Words withTail(const Words &tail)
{
    Words words = base;
    words.insert(words.end(), tail.begin(), tail.end());
    return words;
}

std::optional<Encryption> encryptionBy(const Words &tail, const std::string &charset = "UTF-8")
{
    return encryptionOf(parsePdftkCall(withTail(tail)).value(), charset);
}

// A call as words in a fixed order, "-" for what it does not have.
Words partsOf(const PdftkCall &call)
{
    std::string allowed;
    allowed += call.allowed.printing ? 'p' : '-';
    allowed += call.allowed.modifyContents ? 'm' : '-';
    allowed += call.allowed.copyContents ? 'c' : '-';
    allowed += call.allowed.modifyAnnotations ? 'a' : '-';
    return {call.input,
            call.infoFile.value_or("-"),
            call.output,
            call.ownerPassword.value_or("-"),
            call.userPassword.value_or("-"),
            allowed};
}

} // namespace

void PdftkRulesTest::callsOfTheApplicationAreRead_data()
{
    QTest::addColumn<Words>("arguments");
    QTest::addColumn<Words>("parts");
    QTest::newRow("nothing to do") << base << Words{"in.pdf", "-", "out.pdf", "-", "-", "----"};
    QTest::newRow("everything") << Words{"/o/in.pdf",
                                         "update_info",
                                         "/o/pdfa.txt",
                                         "output",
                                         "/o/1.pdf",
                                         "owner_pw",
                                         "a",
                                         "user_pw",
                                         "b",
                                         "allow",
                                         "printing",
                                         "allow",
                                         "modifycontents",
                                         "allow",
                                         "copycontents",
                                         "allow",
                                         "modifyannotations"}
                                << Words{"/o/in.pdf", "/o/pdfa.txt", "/o/1.pdf", "a", "b", "pmca"};
    QTest::newRow("a permission alone")
        << withTail({"allow", "copycontents"}) << Words{"in.pdf", "-", "out.pdf", "-", "-", "--c-"};
    QTest::newRow("keywords in capitals, as pdftk takes them")
        << Words{"in.pdf",  "Update_Info", "i",     "OUTPUT",  "out.pdf",
                 "User_PW", "B",           "ALLOW", "Printing"}
        << Words{"in.pdf", "i", "out.pdf", "-", "B", "p---"};
    QTest::newRow("keywords as passwords")
        << withTail({"owner_pw", "user_pw", "user_pw", "allow"})
        << Words{"in.pdf", "-", "out.pdf", "user_pw", "allow", "----"};
    QTest::newRow("the word for a question as a password")
        << withTail({"owner_pw", "PROMPT"})
        << Words{"in.pdf", "-", "out.pdf", "PROMPT", "-", "----"};
    QTest::newRow("keywords as names")
        << Words{"output.pdf", "update_info", "output", "output", "allow.pdf"}
        << Words{"output.pdf", "output", "allow.pdf", "-", "-", "----"};
}

void PdftkRulesTest::callsOfTheApplicationAreRead()
{
    QFETCH(Words, arguments);
    QFETCH(Words, parts);
    const std::optional<PdftkCall> call = parsePdftkCall(arguments);
    QVERIFY(call);
    QCOMPARE(partsOf(*call), parts);
}

void PdftkRulesTest::otherCallsAreRefused_data()
{
    QTest::addColumn<Words>("arguments");
    QTest::newRow("no arguments") << Words{};
    QTest::newRow("an input alone") << Words{"a.pdf"};
    QTest::newRow("another operation") << Words{"a.pdf", "cat", "1", "output", "o.pdf"};
    QTest::newRow("a report") << Words{"a.pdf", "dump_data"};
    QTest::newRow("no output") << Words{"a.pdf", "update_info", "i"};
    QTest::newRow("an output without a name") << Words{"a.pdf", "output"};
    QTest::newRow("standard output") << Words{"a.pdf", "output", "-"};
    QTest::newRow("standard input") << Words{"-", "output", "o.pdf"};
    QTest::newRow("the input of an application that cannot write its info file")
        << Words{"a.pdf111", "output", "o.pdf"};
    QTest::newRow("empty names") << Words{"", "output", ""};
    QTest::newRow("two inputs") << Words{"a.pdf", "b.pdf", "output", "o.pdf"};
    QTest::newRow("an input's password") << Words{"a.pdf", "input_pw", "x", "output", "o.pdf"};
    QTest::newRow("a UTF-8 info file")
        << Words{"a.pdf", "update_info_utf8", "i", "output", "o.pdf"};
    for (const auto &[name, tail] : std::vector<std::pair<const char *, Words>>{
             {"a password with a blank", {"owner_pw", "se", "cret"}},
             {"an empty password", {"user_pw", ""}},
             {"no password", {"user_pw"}},
             {"two owner passwords", {"owner_pw", "a", "owner_pw", "b"}},
             {"the user password first", {"user_pw", "a", "owner_pw", "b"}},
             {"a permission before the password", {"allow", "printing", "owner_pw", "a"}},
             {"no permission", {"allow"}},
             {"two permissions after one word", {"allow", "printing", "copycontents"}},
             {"a permission twice", {"allow", "printing", "allow", "printing"}},
             {"permissions in another order", {"allow", "copycontents", "allow", "printing"}},
             {"a permission that the application does not give", {"allow", "fillin"}},
             {"another encryption", {"encrypt_40bit"}},
             {"a word of pdftk's", {"compress"}},
             {"an empty word", {""}}})
        QTest::newRow(name) << withTail(tail);
}

void PdftkRulesTest::otherCallsAreRefused()
{
    QFETCH(Words, arguments);
    QVERIFY(!parsePdftkCall(arguments));
}

void PdftkRulesTest::loggedArgumentsAreMasked_data()
{
    QTest::addColumn<Words>("arguments");
    QTest::addColumn<Words>("masked");
    QTest::newRow("nothing to hide")
        << Words{"a.pdf", "cat", "output", "b.pdf"} << Words{"a.pdf", "cat", "output", "b.pdf"};
    QTest::newRow("passwords and their rests")
        << Words{"owner_pw", "a", "b", "allow", "printing", "user_pw", "c"}
        << Words{"owner_pw", "********", "********", "allow", "printing", "user_pw", "********"};
    QTest::newRow("a keyword as a password")
        << Words{"user_pw", "owner_pw", "x"} << Words{"user_pw", "********", "********"};
    QTest::newRow("an input's password in capitals")
        << Words{"a.pdf", "INPUT_PW", "A=x", "output", "b.pdf"}
        << Words{"a.pdf", "INPUT_PW", "********", "********", "********"};
}

void PdftkRulesTest::loggedArgumentsAreMasked()
{
    QFETCH(Words, arguments);
    QFETCH(Words, masked);
    QCOMPARE(maskedPdftkArguments(arguments), masked);
}

void PdftkRulesTest::passwordsAreNormalized_data()
{
    QTest::addColumn<std::string>("typed");
    QTest::addColumn<std::string>("normalized");
    QTest::newRow("ASCII") << std::string("a B!") << std::string("a B!");
    QTest::newRow("an accent of its own") << std::string("e\u0301") << std::string("\u00e9");
    QTest::newRow("a ligature") << std::string("\ufb01") << std::string("fi");
    QTest::newRow("a blank that does not break") << std::string("a\u00a0b") << std::string("a b");
    QTest::newRow("a soft hyphen") << std::string("a\u00adb") << std::string("ab");
    QTest::newRow("many scripts") << std::string("\u044f\u65e5\u05d0\u0628")
                                  << std::string("\u044f\u65e5\u05d0\u0628");
    QTest::newRow("newer than Unicode 3.2")
        << std::string("\U0001F511") << std::string("\U0001F511");
    QTest::newRow("refused by SASLprep: Hebrew and Latin letters")
        << std::string("\u05d0a") << std::string("\u05d0a");
    QTest::newRow("refused by SASLprep: a tabulator") << std::string("a\tb") << std::string("a\tb");
    QTest::newRow("nothing but what SASLprep takes away: a soft hyphen")
        << std::string("\u00ad") << std::string("\u00ad");
    QTest::newRow("127 bytes count") << std::string(130, 'x') << std::string(127, 'x');
}

void PdftkRulesTest::passwordsAreNormalized()
{
    QFETCH(std::string, typed);
    QFETCH(std::string, normalized);
    const std::optional<Encryption> encryption =
        encryptionBy({"owner_pw", typed, "user_pw", "user " + typed});
    QVERIFY(encryption);
    QCOMPARE(encryption->ownerPassword, normalized);
}

void PdftkRulesTest::passwordsAreReadAsUtf8OrElseInTheLocalesCharset()
{
    const std::optional<Encryption> encryption =
        encryptionBy({"owner_pw", "\xC3\xA9", "user_pw", "\xE8"}, "ISO-8859-1");
    QVERIFY(encryption);
    QCOMPARE(encryption->ownerPassword, std::string("\xC3\xA9"));
    QCOMPARE(encryption->userPassword, std::string("\xC3\xA8"));
}

// As it was typed, for readers that do not normalize what is typed there.
void PdftkRulesTest::userPasswordAloneIsTheOwnersToo()
{
    const std::optional<Encryption> encryption = encryptionBy({"user_pw", "5\u00b5"});
    QVERIFY(encryption);
    QCOMPARE(encryption->ownerPassword, std::string("5\u00b5"));
    QCOMPARE(encryption->userPassword, std::string("5\u03bc"));
}

void PdftkRulesTest::nothingIsEncryptedWithoutAPassword()
{
    QVERIFY(!encryptionBy({"allow", "printing"}));
    QVERIFY(encryptionBy({"owner_pw", "a", "allow", "printing"})->allowed.printing);
}

void PdftkRulesTest::passwordsWithLineBreaksAreRefused_data()
{
    QTest::addColumn<std::string>("password");
    QTest::addColumn<std::string>("charset");
    const std::string utf8 = "UTF-8";
    QTest::newRow("a line feed") << std::string("a\nb") << utf8;
    QTest::newRow("a carriage return at the end") << std::string("ab\r") << utf8;
    QTest::newRow("a next line") << std::string("a\xC2\x85z") << utf8;
    QTest::newRow("a next line in Latin-1") << std::string("a\x85z") << std::string("ISO-8859-1");
    QTest::newRow("a line separator") << std::string("\xE2\x80\xA8") << utf8;
    QTest::newRow("a paragraph separator") << std::string("\xE2\x80\xA9") << utf8;
}

void PdftkRulesTest::passwordsWithLineBreaksAreRefused()
{
    QFETCH(std::string, password);
    QFETCH(std::string, charset);
    QVERIFY_THROWS_EXCEPTION(ToolError, encryptionBy({"user_pw", password}, charset));
}

void PdftkRulesTest::equalPasswordsAreRefused()
{
    QVERIFY_THROWS_EXCEPTION(ToolError, encryptionBy({"owner_pw", "a", "user_pw", "a"}));
    QVERIFY_THROWS_EXCEPTION(ToolError, encryptionBy({"owner_pw", "\ufb01", "user_pw", "fi"}));
}

void PdftkRulesTest::infoFileIsRead_data()
{
    QTest::addColumn<std::string>("content");
    QTest::addColumn<std::string>("charset");
    QTest::addColumn<Words>("entries");
    const std::string utf8 = "UTF-8";
    QTest::newRow("as the application writes it")
        << std::string("InfoKey:Title\nInfoValue:a\nInfoKey:Author\nInfoValue:\n") << utf8
        << Words{"Title", "a", "Author", ""};
    QTest::newRow("blanks and special characters")
        << std::string("InfoKey:Title\nInfoValue:  &amp;<\t\"'> \n") << utf8
        << Words{"Title", "  &amp;<\t\"'> "};
    QTest::newRow("no line feed at the end")
        << std::string("InfoKey:Title\nInfoValue:a") << utf8 << Words{"Title", "a"};
    QTest::newRow("in the locale's charset")
        << std::string("InfoKey:Title\nInfoValue:\xFC\xA4\n") << std::string("ISO-8859-15")
        << Words{"Title", "\u00fc\u20ac"};
    QTest::newRow("a byte order mark says UTF-8")
        << std::string("\xEF\xBB\xBFInfoKey:Title\nInfoValue:\u20ac\n")
        << std::string("ISO-8859-15") << Words{"Title", "\u20ac"};
    QTest::newRow("lines that end in CR LF")
        << std::string("InfoKey:Title\r\nInfoValue:a\r\nInfoKey:Author\r\nInfoValue:b\r\n") << utf8
        << Words{"Title", "a", "Author", "b"};
    QTest::newRow("labels as lines of a value")
        << std::string("InfoKey:Title\nInfoValue:a\nInfoBegin\nInfoKey:x\n"
                       "InfoKey:Author\nInfoValue:b\n\n")
        << utf8 << Words{"Title", "a\nInfoBegin\nInfoKey:x", "Author", "b\n"};
    QTest::newRow("malformed text")
        << std::string("InfoKey:Title\nInfoValue:a\xFFz\n") << utf8 << Words{"Title", "a\uFFFDz"};
    QTest::newRow("empty") << std::string() << utf8 << Words{};
}

void PdftkRulesTest::infoFileIsRead()
{
    QFETCH(std::string, content);
    QFETCH(std::string, charset);
    QFETCH(Words, entries);
    const std::optional<std::vector<InfoEntry>> read = infoEntries(content, charset);
    QVERIFY(read);
    Words found;
    for (const InfoEntry &entry : *read)
        found.insert(found.end(), {entry.key, entry.value});
    QCOMPARE(found, entries);
}

void PdftkRulesTest::otherFilesAreNoInfoFiles()
{
    for (const char *content :
         {"InfoBegin\nInfoKey: Title\nInfoValue: a\n", "PageMediaBegin\n", "InfoKey:Title\n", "\n"})
        QVERIFY(!infoEntries(content, "UTF-8"));
}

QTEST_APPLESS_MAIN(PdftkRulesTest)
#include "pdftkrules_test.moc"

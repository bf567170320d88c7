// The rules of our pdftk that need neither the real tool nor a file.

#include "error.h"
#include "losslessinfo.h"
#include "pdftkcall.h"

#include <QTest>

using Words = std::vector<std::string>;

Q_DECLARE_METATYPE(std::string)
Q_DECLARE_METATYPE(Words)

class PdftkRulesTest : public QObject
{
    Q_OBJECT

private slots:
    void pdftkTailHidesPasswords_data();
    void pdftkTailHidesPasswords();
    void passwordsAreReadAsUtf8OrElseInTheLocalesCharset();
    void otherPdftkCallsAreNotOurs_data();
    void otherPdftkCallsAreNotOurs();
    void passwordsElsewhereAreRefused_data();
    void passwordsElsewhereAreRefused();
    void passwordsWithLineBreaksAreRefused_data();
    void passwordsWithLineBreaksAreRefused();
    void loggedArgumentsAreMasked_data();
    void loggedArgumentsAreMasked();
    void infoFileBecomesLossless_data();
    void infoFileBecomesLossless();
};

void PdftkRulesTest::pdftkTailHidesPasswords_data()
{
    QTest::addColumn<Words>("tail");
    QTest::addColumn<Words>("shown");
    QTest::addColumn<Words>("answers");
    QTest::newRow("nothing") << Words{} << Words{} << Words{};
    QTest::newRow("both passwords and permissions")
        << Words{"owner_pw", "a", "user_pw", "b", "allow", "printing", "allow", "copycontents"}
        << Words{"owner_pw", "PROMPT",   "user_pw", "PROMPT",
                 "allow",    "printing", "allow",   "copycontents"}
        << Words{"a", "b"};
    QTest::newRow("a keyword as a password")
        << Words{"user_pw", "allow"} << Words{"user_pw", "PROMPT"} << Words{"allow"};
    QTest::newRow("a blank in a password")
        << Words{"owner_pw", "se", "cret", "allow", "printing"}
        << Words{"owner_pw", "PROMPT", "********", "allow", "printing"} << Words{"se"};
    QTest::newRow("33 characters: the tool would drop and print the last")
        << Words{"user_pw", std::string(32, 'x') + "y"} << Words{"user_pw", "PROMPT"}
        << Words{std::string(32, 'x')};
    QTest::newRow("equal passwords, which the tool refuses")
        << Words{"owner_pw", "a", "user_pw", "a"}
        << Words{"owner_pw", "********", "user_pw", "********"} << Words{};
    QTest::newRow("a keyword without a password")
        << Words{"user_pw"} << Words{"user_pw"} << Words{};
    QTest::newRow("keywords in capitals")
        << Words{"OWNER_PW", "a", "User_Pw", "b"}
        << Words{"OWNER_PW", "PROMPT", "User_Pw", "PROMPT"} << Words{"a", "b"};
    QTest::newRow("an input's password, which the tool refuses there")
        << Words{"input_pw", "a"} << Words{"input_pw", "********"} << Words{};
    QTest::newRow("32 characters of more than one byte")
        << Words{"user_pw", std::string(QString(40, QChar(0xFC)).toUtf8())}
        << Words{"user_pw", "PROMPT"} << Words{std::string(QString(32, QChar(0xFC)).toUtf8())};
}

void PdftkRulesTest::pdftkTailHidesPasswords()
{
    QFETCH(Words, tail);
    QFETCH(Words, shown);
    QFETCH(Words, answers);
    Words arguments = {"in.pdf", "update_info", "info", "output", "out.pdf"};
    arguments.insert(arguments.end(), tail.begin(), tail.end());
    const std::optional<PdftkCall> call = parsePdftkCall(arguments, "UTF-8");
    QVERIFY(call);
    QCOMPARE(call->input, std::string("in.pdf"));
    QCOMPARE(call->infoFile, std::string("info"));
    QCOMPARE(call->output, std::string("out.pdf"));
    QCOMPARE(call->tail, shown);
    Words given;
    for (const Prompt &prompt : call->passwords)
        given.push_back(prompt.answer);
    QCOMPARE(given, answers);
}

void PdftkRulesTest::passwordsAreReadAsUtf8OrElseInTheLocalesCharset()
{
    const std::optional<PdftkCall> call = parsePdftkCall(
        {"in.pdf", "output", "out.pdf", "owner_pw", "\xC3\xA9", "user_pw", "\xE8"}, "ISO-8859-1");
    QVERIFY(call);
    QCOMPARE(call->passwords.size(), size_t{2});
    QCOMPARE(call->passwords[0].answer, std::string("\xC3\xA9"));
    QCOMPARE(call->passwords[1].answer, std::string("\xC3\xA8"));
}

void PdftkRulesTest::otherPdftkCallsAreNotOurs_data()
{
    QTest::addColumn<Words>("arguments");
    QTest::newRow("no arguments") << Words{};
    QTest::newRow("a question for the version") << Words{"--version"};
    QTest::newRow("another operation") << Words{"a.pdf", "cat", "1", "output", "o.pdf"};
    QTest::newRow("no output") << Words{"a.pdf", "update_info", "i"};
    QTest::newRow("standard output") << Words{"a.pdf", "output", "-"};
}

void PdftkRulesTest::otherPdftkCallsAreNotOurs()
{
    QFETCH(Words, arguments);
    QVERIFY(!parsePdftkCall(arguments, "UTF-8"));
}

void PdftkRulesTest::passwordsElsewhereAreRefused_data()
{
    QTest::addColumn<Words>("arguments");
    QTest::newRow("an input's password") << Words{"a.pdf", "input_pw", "x", "output", "o.pdf"};
    QTest::newRow("another operation")
        << Words{"a.pdf", "cat", "1", "output", "o.pdf", "owner_pw", "x"};
    QTest::newRow("to standard output") << Words{"a.pdf", "output", "-", "user_pw", "x"};
    QTest::newRow("keywords in capitals") << Words{"a.pdf", "dump_data", "INPUT_PW", "x"};
}

void PdftkRulesTest::passwordsElsewhereAreRefused()
{
    QFETCH(Words, arguments);
    QVERIFY(!parsePdftkCall(arguments, "UTF-8"));
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
    const Words arguments = {"in.pdf", "output", "o.pdf", "user_pw", password};
    QVERIFY_THROWS_EXCEPTION(ToolError, parsePdftkCall(arguments, charset));
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
    QTest::newRow("an input's password")
        << Words{"a.pdf", "input_pw", "A=x", "output", "b.pdf"}
        << Words{"a.pdf", "input_pw", "********", "output", "********"};
    QTest::newRow("files that are called as keywords are")
        << Words{"owner_pw", "output", "o.pdf", "USER_PW", "x"}
        << Words{"owner_pw", "output", "o.pdf", "USER_PW", "********"};
}

void PdftkRulesTest::loggedArgumentsAreMasked()
{
    QFETCH(Words, arguments);
    QFETCH(Words, masked);
    QCOMPARE(maskedPdftkArguments(arguments), masked);
}

void PdftkRulesTest::infoFileBecomesLossless_data()
{
    QTest::addColumn<std::string>("content");
    QTest::addColumn<std::string>("charset");
    QTest::addColumn<std::string>("lossless");
    QTest::newRow("every pair gets its beginning")
        << std::string("InfoKey:Title\nInfoValue:a\nInfoKey:Author\nInfoValue:\n")
        << std::string("UTF-8")
        << std::string("InfoBegin\nInfoKey: Title\nInfoValue: a\n"
                       "InfoBegin\nInfoKey: Author\nInfoValue: \n");
    QTest::newRow("blanks stay, special characters become entities")
        << std::string("InfoKey:Title\nInfoValue:  &amp;<\t\"'> \n") << std::string("UTF-8")
        << std::string("InfoBegin\nInfoKey: Title\n"
                       "InfoValue:   &#38;amp;&#60;&#9;&#34;&#39;&#62; \n");
    QTest::newRow("text beyond ASCII in UTF-8")
        << std::string("InfoKey:Title\nInfoValue:\xC3\xBC\xE2\x82\xAC\xF0\x9F\x98\x80\n")
        << std::string("UTF-8")
        << std::string("InfoBegin\nInfoKey: Title\nInfoValue: &#252;&#8364;&#128512;\n");
    QTest::newRow("text beyond ASCII in the locale's charset")
        << std::string("InfoKey:Title\nInfoValue:\xFC\xA4\n") << std::string("ISO-8859-15")
        << std::string("InfoBegin\nInfoKey: Title\nInfoValue: &#252;&#8364;\n");
    QTest::newRow("labels as lines of a value")
        << std::string("InfoKey:Title\nInfoValue:a\nInfoBegin\nInfoKey:x\n"
                       "InfoKey:Author\nInfoValue:b\n\n")
        << std::string("UTF-8")
        << std::string("InfoBegin\nInfoKey: Title\nInfoValue: a&#10;InfoBegin&#10;InfoKey:x\n"
                       "InfoBegin\nInfoKey: Author\nInfoValue: b&#10;\n");
    QTest::newRow("a file in the newer form is left to the tool")
        << std::string("InfoBegin\nInfoKey: Title\nInfoValue: &#252;\n") << std::string("UTF-8")
        << std::string();
    QTest::newRow("another file is left to the tool")
        << std::string("PageMediaBegin\n") << std::string("UTF-8") << std::string();
}

void PdftkRulesTest::infoFileBecomesLossless()
{
    QFETCH(std::string, content);
    QFETCH(std::string, charset);
    QFETCH(std::string, lossless);
    QCOMPARE(losslessInfo(content, charset), lossless);
}

QTEST_APPLESS_MAIN(PdftkRulesTest)
#include "pdftkrules_test.moc"

// Passwords stay where they belong: while the real tools work and after it, no file and no
// environment holds one, nor does the real tools' command line. Only the user may change what the
// program writes.

#include "files.h"
#include "pdffacts.h"
#include "regularfile.h"
#include "startup.h"
#include "windowdriver.h"

#include <QApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QRandomGenerator>
#include <QStringEncoder>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <fcntl.h>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int runTimeout = 120000; // ms
// Random in each run, so that no file of the build holds one.
const QString ownerPassword = u"Zebra-%1-owner"_s.arg(QRandomGenerator::global()->generate());
const QString userPassword = u"Okapi-%1-user"_s.arg(QRandomGenerator::global()->generate());
const auto allFiles = QDir::Files | QDir::Hidden | QDir::System;

/// Each password in each form that a file could hold it in.
QList<QByteArray> needles()
{
    QList<QByteArray> result;
    for (const QString &password : {ownerPassword, userPassword}) {
        result << password.toUtf8() << password.toUtf8().toHex() << password.toUtf8().toBase64();
        for (const auto encoding : {QStringConverter::Utf16LE, QStringConverter::Utf16BE})
            result << QByteArray(QStringEncoder(encoding).encode(password));
    }
    return result;
}

bool holdsSecret(const QByteArray &content)
{
    static const QList<QByteArray> secrets = needles();
    return std::ranges::any_of(
        secrets, [&content](const QByteArray &secret) { return content.contains(secret); });
}

/// The processes below `pid`, by number.
QStringList descendants(const QString &pid)
{
    QStringList result;
    QDirIterator threads(u"/proc/%1/task"_s.arg(pid), QDir::Dirs | QDir::NoDotAndDotDot);
    while (threads.hasNext()) {
        const QByteArray children = contentOf(threads.next() + u"/children"_s);
        const auto numbers =
            QString::fromLatin1(children).split(QLatin1Char(' '), Qt::SkipEmptyParts);
        for (const QString &child : numbers)
            result << child << descendants(child);
    }
    return result;
}

int modeOf(const QString &path)
{
    struct stat status = {};
    return lstat(QFile::encodeName(path).constData(), &status) == 0 ? int(status.st_mode & 07777)
                                                                    : -1;
}

} // namespace

class SecretsTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void passwordsAppearInNoFileAndNoEnvironment_data();
    void passwordsAppearInNoFileAndNoEnvironment();
    void searchFindsAPasswordWhereThereIsOne();
    void filesAreNoWiderThanTheUsersMask_data();
    void filesAreNoWiderThanTheUsersMask();
    void bundleIsWritableByItsOwnerAlone();

private:
    QString place(const QString &name) const { return folder->filePath(name); }
    void inspectProcesses();
    void inspectOpenFiles(const QString &process);
    void inspectFiles(const QString &root);

    std::unique_ptr<QTemporaryDir> folder;
    QStringList finds;
    int toolsSeen = 0;
};

void SecretsTest::init()
{
    // Below the bundle's folder, which holds nothing but what this test makes: of a remembered
    // folder that is gone, the file dialog shows the one above, and what lies there may get chosen.
    folder = std::make_unique<QTemporaryDir>(QDir::currentPath() + u"/secrets-XXXXXX"_s);
    QVERIFY(folder->isValid());
    QFile::remove(u"setting.ini"_s);
    for (const char *name : {"out", "tmp", "home"})
        QVERIFY(QDir(folder->path()).mkdir(QLatin1String(name)));
    qputenv("TMPDIR", place(u"tmp"_s).toUtf8());
    qputenv("HOME", place(u"home"_s).toUtf8());
    qputenv("TESSARO_TOOL_LOG", place(u"log"_s).toUtf8());
    for (const char *name : {"XDG_CACHE_HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME"})
        qunsetenv(name); // they lie below the home then
    finds.clear();
    toolsSeen = 0;
}

void SecretsTest::inspectProcesses()
{
    const QStringList processes = descendants(u"self"_s);
    for (const QString &pid : processes) {
        const QString process = u"/proc/"_s + pid;
        const QString program = QFile::symLinkTarget(process + u"/exe"_s);
        if (holdsSecret(contentOf(process + u"/environ"_s)))
            finds << u"environment of "_s + program;
        // The programs of the bundle are given the password, and wipe it.
        const QString name = QFileInfo(program).fileName();
        if (name == QLatin1String("convert") || name == QLatin1String("pdftk"))
            continue;
        ++toolsSeen;
        inspectOpenFiles(process);
        if (holdsSecret(contentOf(process + u"/cmdline"_s)))
            finds << u"command line of "_s + program;
    }
}

/// The files that a process has open for writing, removed ones included.
void SecretsTest::inspectOpenFiles(const QString &process)
{
    QDirIterator files(process + u"/fd"_s, allFiles);
    while (files.hasNext()) {
        const QString file = files.next();
        const QString flags = QString::fromLatin1(
            contentOf(process + u"/fdinfo/"_s + files.fileName()).split('\n').value(1));
        const bool writable = flags.section(u'\t', 1).toInt(nullptr, 8) & O_ACCMODE;
        if (!writable)
            continue;
        RegularFile opened(file);
        if (opened.isOpen() && holdsSecret(opened.readAll()))
            finds << QFile::symLinkTarget(file);
    }
}

void SecretsTest::inspectFiles(const QString &root)
{
    QDirIterator files(root, allFiles, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QFileInfo file(files.next());
        if (file.isFile() && !file.isSymLink() && holdsSecret(contentOf(file.filePath())))
            finds << file.filePath();
    }
}

void SecretsTest::passwordsAppearInNoFileAndNoEnvironment_data()
{
    QTest::addColumn<bool>("merged");
    QTest::addColumn<QString>("owner");
    QTest::addColumn<bool>("succeeds");
    QTest::newRow("one by one") << false << ownerPassword << true;
    QTest::newRow("merged") << true << ownerPassword << true;
    QTest::newRow("a password with a blank, which is refused")
        << false << ownerPassword + u" "_s + ownerPassword << false;
}

void SecretsTest::passwordsAppearInNoFileAndNoEnvironment()
{
    QFETCH(bool, merged);
    QFETCH(QString, owner);
    QFETCH(bool, succeeds);
    WindowDriver driver;
    QVERIFY(driver.show());
    QVERIFY(driver.type("outputfolderEdit", place(u"out"_s)));
    QVERIFY(driver.tick("checkBox_joinpdf", merged));
    QVERIFY(driver.click("pushButton_PDFSetting") && driver.type("lineEdit_title", u"T"_s));
    QVERIFY(driver.click("pushButton_Security") && driver.type("lineEdit_ownerpwd", owner) &&
            driver.type("lineEdit_userpwd", userPassword));
    QVERIFY(driver.click("pushButton_Inout"));
    QVERIFY(driver.openFiles({makeImage(place(u"a.bmp"_s)), makeImage(place(u"b.bmp"_s))}));

    QTimer inspector;
    connect(&inspector, &QTimer::timeout, this, [this] {
        inspectProcesses();
        inspectFiles(folder->path());
    });
    inspector.start(10);
    QVERIFY(driver.convert(runTimeout));
    inspector.stop();
    QCOMPARE(readPdf(place(u"out/a.pdf"_s), userPassword.toUtf8()).pages,
             succeeds ? (merged ? 2 : 1) : -1);
    QVERIFY(toolsSeen > 0);

    for (const QString &root : {folder->path(), QDir::currentPath(), QStringLiteral(BUNDLE)})
        inspectFiles(root);
    QVERIFY(!holdsSecret(contentOf(u"/proc/self/environ"_s)));
    QCOMPARE(finds, QStringList());
    QVERIFY(contentOf(place(u"log"_s)).contains("pdftk"));
}

void SecretsTest::searchFindsAPasswordWhereThereIsOne()
{
    QFile file(place(u"tmp/careless"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("x" + ownerPassword.toUtf8() + "y");
    QVERIFY(file.flush());
    inspectFiles(folder->path());
    QCOMPARE(finds, QStringList(file.fileName()));

    finds.clear();
    QVERIFY(QFile::remove(file.fileName())); // it stays open
    inspectOpenFiles(u"/proc/self"_s);
    QCOMPARE(finds, QStringList(file.fileName() + u" (deleted)"_s));
}

void SecretsTest::filesAreNoWiderThanTheUsersMask_data()
{
    QTest::addColumn<int>("mask");
    QTest::newRow("nothing for others") << 077;
    QTest::newRow("reading for others") << 022;
    QTest::newRow("writing for the group") << 002;
}

void SecretsTest::filesAreNoWiderThanTheUsersMask()
{
    QFETCH(int, mask);
    QFile::remove(u"pdfa.txt"_s);
    const mode_t usual = umask(static_cast<mode_t>(mask));
    WindowDriver driver;
    const bool shown = driver.show() && driver.chooseFolder(place(u"out"_s)) &&
                       driver.click("pushButton_PDFSetting") &&
                       driver.type("lineEdit_title", u"T"_s) && driver.click("pushButton_Inout") &&
                       driver.openFiles({makeImage(place(u"a.png"_s))}) &&
                       driver.convert(runTimeout);
    umask(usual);
    QVERIFY(shown);
    QCOMPARE(modeOf(u"pdfa.txt"_s), 0666 & ~mask);
    const int settings = modeOf(u"setting.ini"_s);
    QVERIFY(settings >= 0);
    QCOMPARE(settings & (mask | 0111), 0);
    QCOMPARE(readPdf(place(u"out/a.pdf"_s)).title, u"T"_s);
    QCOMPARE(modeOf(place(u"out/a.pdf"_s)) & mask, 0);
}

void SecretsTest::bundleIsWritableByItsOwnerAlone()
{
    QDirIterator files(QStringLiteral(BUNDLE), allFiles | QDir::Dirs | QDir::NoDotAndDotDot,
                       QDirIterator::Subdirectories);
    int count = 0;
    while (files.hasNext()) {
        const QString path = files.next();
        if (QFileInfo(path).isSymLink())
            continue; // Qt's plug-ins, which are the system's
        ++count;
        QVERIFY2((modeOf(path) & 022) == 0, qPrintable(path));
    }
    QVERIFY(count > 8);
    QCOMPARE(modeOf(QStringLiteral(BUNDLE)) & 022, 0);
}

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    setUpApplication(application);
    SecretsTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "secrets_test.moc"

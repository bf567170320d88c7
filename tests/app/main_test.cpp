// The program's main(): its exit status.

#include <QApplication>
#include <QTest>
#include <QTimer>

#include <array>

int programMain(int argc, char *argv[]); // app/main.cpp, under another name

namespace {

constexpr int exitCode = 7;

void leaveAtOnce()
{
    QTimer::singleShot(0, qApp, [] { QCoreApplication::exit(exitCode); });
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(leaveAtOnce)

class MainTest : public QObject
{
    Q_OBJECT

private slots:
    void endsWithTheEventLoopsCode();
};

void MainTest::endsWithTheEventLoopsCode()
{
    std::array name{'t', 'e', 's', 's', 'a', 'r', 'o', '\0'};
    std::array<char *, 2> arguments{name.data(), nullptr};
    QCOMPARE(programMain(1, arguments.data()), exitCode);
}

QTEST_APPLESS_MAIN(MainTest)
#include "main_test.moc"

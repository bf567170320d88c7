// The program's main(): its exit status.

#include <QApplication>
#include <QTest>
#include <QTimer>

#include <array>

#include <sys/resource.h>

int programMain(int argc, char *argv[]); // app/main.cpp, under another name

namespace {

constexpr int exitCode = 7;

int runProgram()
{
    std::array name{'t', 'e', 's', 's', 'a', 'r', 'o', '\0'};
    std::array<char *, 2> arguments{name.data(), nullptr};
    return programMain(1, arguments.data());
}

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
    void argumentLimitIsRaised();
};

void MainTest::endsWithTheEventLoopsCode()
{
    QCOMPARE(runProgram(), exitCode);
}

void MainTest::argumentLimitIsRaised()
{
    rlimit stack = {};
    QCOMPARE(getrlimit(RLIMIT_STACK, &stack), 0);
    stack.rlim_cur = rlim_t(8) * 1024 * 1024;
    QCOMPARE(setrlimit(RLIMIT_STACK, &stack), 0);
    QCOMPARE(runProgram(), exitCode);
    QCOMPARE(getrlimit(RLIMIT_STACK, &stack), 0);
    QVERIFY(stack.rlim_cur > rlim_t(8) * 1024 * 1024 || stack.rlim_cur == stack.rlim_max);
}

QTEST_APPLESS_MAIN(MainTest)
#include "main_test.moc"

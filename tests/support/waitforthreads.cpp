// Part of every sanitized test with a window. Qt scales pictures in threads of a pool; one
// that is just ending holds its data where the leak check at exit no longer looks, which made tests
// fail now and then. So the program's end waits for the other threads, 10 seconds at most.

#include <chrono>
#include <filesystem>
#include <iterator>
#include <thread>

namespace {

struct WaitForThreads
{
    ~WaitForThreads()
    {
        using namespace std::chrono_literals;
        for (int tries = 0; tries < 1000 && otherThreads() > 0; ++tries)
            std::this_thread::sleep_for(10ms);
    }

    static long otherThreads()
    {
        std::error_code ignored;
        const std::filesystem::directory_iterator threads("/proc/self/task", ignored);
        return std::distance(begin(threads), end(threads)) - 1;
    }
};

const WaitForThreads waitForThreads;

} // namespace

// Part of every sanitized test with a window. Qt scales pictures in a thread pool, and the leak
// check at exit does not see the data of a thread that is just ending. So the exit waits for the
// other threads, at most 10 seconds.

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

#pragma once

#include <chrono>
#include <cstdio>
#include <functional>
#include <vector>

/// Milliseconds that `work` takes.
inline double millisecondsOf(const std::function<void()> &work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
        .count();
}

/// What one row of the table measures: ours, and what it is compared with.
struct Samples
{
    std::vector<double> ours;
    std::vector<double> against;

    /// Takes one sample of each in turn (A B B A ...), `turns` times.
    void takeInTurn(int turns, const std::function<double()> &first,
                    const std::function<double()> &second)
    {
        for (int turn = 0; turn < turns; ++turn) {
            if (turn % 2 == 0)
                ours.push_back(first());
            against.push_back(second());
            if (turn % 2 != 0)
                ours.push_back(first());
        }
    }

    /// Prints them as one line of JSON for bench/run.
    void print() const
    {
        std::printf("{");
        printList("ours", ours, ", ");
        printList("against", against, "}\n");
    }

private:
    static void printList(const char *name, const std::vector<double> &values, const char *end)
    {
        std::printf("\"%s\": [", name);
        for (std::size_t i = 0; i < values.size(); ++i)
            std::printf("%s%.4f", i == 0 ? "" : ", ", values[i]);
        std::printf("]%s", end);
    }
};

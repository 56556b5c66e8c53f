#pragma once

// What the ratio benchmarks share: the fastest of several repetitions of every benchmark (or of a
// timed call), which is the one least disturbed by other work on the (shared) machine.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <functional>
#include <map>
#include <string>
#include <time.h>
#include <vector>

class BestTimesReporter : public benchmark::ConsoleReporter
{
public:
    // Plain text: the output ends up in CI logs, not on a terminal.
    BestTimesReporter()
        : ConsoleReporter(OO_Tabular)
    {
    }
    void ReportRuns(const std::vector<Run>& runs) override
    {
        for (const Run& r : runs) {
            if (r.run_type != Run::RT_Iteration || r.error_occurred)
                continue;
            const std::string name = r.run_name.function_name;
            const double t = r.GetAdjustedCPUTime();
            if (!m_times.count(name) || t < m_times[name])
                m_times[name] = t;
        }
        ConsoleReporter::ReportRuns(runs);
    }
    // The fastest CPU time of the benchmark; 0 when it did not run.
    double time(const char* name) const
    {
        const auto it = m_times.find(name);
        return it == m_times.end() ? 0.0 : it->second;
    }

private:
    std::map<std::string, double> m_times;
};

// Runs the benchmarks the command line selects, five repetitions each unless it says otherwise.
// False on an argument the library does not know.
inline bool runBenchmarks(int argc, char** argv, BestTimesReporter& reporter)
{
    std::vector<char*> args(argv, argv + argc);
    bool repetitionsGiven = false;
    for (char* a : args)
        repetitionsGiven = repetitionsGiven || std::string(a).rfind("--benchmark_repetitions", 0) == 0;
    char repetitions[] = "--benchmark_repetitions=5";
    if (!repetitionsGiven)
        args.push_back(repetitions);
    argc = int(args.size());
    args.push_back(nullptr);
    benchmark::Initialize(&argc, args.data());
    if (benchmark::ReportUnrecognizedArguments(argc, args.data()))
        return false;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return true;
}

// The fastest wall time of f over runs calls, in seconds, for the benchmarks that time whole files
// by hand.
inline double bestSeconds(int runs, const std::function<void()>& f)
{
    double best = 1e30;
    for (int i = 0; i < runs; ++i) {
        const auto t0 = std::chrono::steady_clock::now();
        f();
        best = std::min(best, std::chrono::duration<double>(std::chrono::steady_clock::now() - t0).count());
    }
    return best;
}

// The fastest CPU time of this thread in f over runs calls, in seconds: what other processes on the
// machine take does not count.
inline double bestCpuSeconds(int runs, const std::function<void()>& f)
{
    auto now = [] {
        timespec t {};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &t);
        return double(t.tv_sec) + double(t.tv_nsec) / 1e9;
    };
    double best = 1e30;
    for (int i = 0; i < runs; ++i) {
        const double t0 = now();
        f();
        best = std::min(best, now() - t0);
    }
    return best;
}

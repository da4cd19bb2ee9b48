// SPDX-License-Identifier: MIT
#include "bench/ratioreport.h"

#include <algorithm>
#include <cstdio>

void RatioReporter::ReportRuns(const std::vector<Run> &runs)
{
    for (const Run &run : runs) {
        if (run.run_type != Run::RT_Iteration || run.error_occurred)
            continue;
        const double time = run.cpu_accumulated_time / double(run.iterations) * 1e9;
        const auto entry = m_nanoseconds.emplace(run.run_name.function_name, time).first;
        entry->second = std::min(entry->second, time);
    }
    ConsoleReporter::ReportRuns(runs);
}

bool RatioReporter::printRatios(const std::vector<RatioTarget> &targets) const
{
    bool isKept = true;
    std::printf("\n%-28s %10s %10s %8s %8s\n", "against its twin", "ns", "twin ns", "ratio", "target");
    for (const RatioTarget &target : targets) {
        const auto time = m_nanoseconds.find(target.benchmark);
        const auto twin = m_nanoseconds.find(target.twin);
        if (time == m_nanoseconds.end() || twin == m_nanoseconds.end())
            continue;
        const double ratio = time->second / twin->second;
        const bool isWithin = ratio <= target.mostTimes;
        std::printf("%-28s %10.1f %10.1f %8.2f %8.2f%s\n", target.benchmark.c_str(), time->second, twin->second, ratio,
                    target.mostTimes, isWithin ? "" : "  too slow");
        isKept = isKept && isWithin;
    }
    return isKept;
}

int runWithRatios(int argc, char **argv, const std::vector<RatioTarget> &targets)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 2;
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return reporter.printRatios(targets) ? 0 : 1;
}

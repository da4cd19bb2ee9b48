// SPDX-License-Identifier: MIT
#include "bench/ratioreport.h"

#include <algorithm>
#include <cstdio>

void RatioReporter::ReportRuns(const std::vector<Run> &runs)
{
    for (const Run &run : runs) {
        m_hasErrors = m_hasErrors || run.error_occurred;
        if (run.run_type != Run::RT_Iteration || run.error_occurred)
            continue;
        const double time = run.cpu_accumulated_time / double(run.iterations) * 1e9;
        const auto entry = m_nanoseconds.emplace(run.run_name.function_name, time).first;
        entry->second = std::min(entry->second, time);
    }
    ConsoleReporter::ReportRuns(runs);
}

bool RatioReporter::find(const std::string &benchmark, const std::string &twin, double *time, double *twinTime) const
{
    const auto found = m_nanoseconds.find(benchmark);
    const auto foundTwin = m_nanoseconds.find(twin);
    if (found == m_nanoseconds.end() || foundTwin == m_nanoseconds.end())
        return false;
    *time = found->second;
    *twinTime = foundTwin->second;
    return true;
}

bool RatioReporter::printRatios(const std::vector<RatioTarget> &targets) const
{
    bool isKept = true;
    std::printf("\n%-28s %10s %10s %8s %8s\n", "against its twin", "ns", "twin ns", "ratio", "target");
    for (const RatioTarget &target : targets) {
        double time = 0;
        double twin = 0;
        if (!find(target.benchmark, target.twin, &time, &twin))
            continue;
        const double ratio = time / twin;
        const bool isWithin = ratio <= target.mostTimes;
        std::printf("%-28s %10.1f %10.1f %8.2f %8.2f%s\n", target.benchmark.c_str(), time, twin, ratio,
                    target.mostTimes, isWithin ? "" : "  too slow");
        isKept = isKept && isWithin;
    }
    return isKept;
}

bool RatioReporter::printExtras(const std::vector<ExtraTarget> &targets) const
{
    if (targets.empty())
        return true;
    bool isKept = true;
    std::printf("\n%-28s %10s %10s %8s %8s\n", "on top of its twin", "us", "twin us", "extra", "target");
    for (const ExtraTarget &target : targets) {
        double time = 0;
        double twin = 0;
        if (!find(target.benchmark, target.twin, &time, &twin))
            continue;
        const double extra = (time - twin) / 1e3;
        const bool isWithin = extra <= target.mostMicroseconds;
        std::printf("%-28s %10.2f %10.2f %8.2f %8.2f%s\n", target.benchmark.c_str(), time / 1e3, twin / 1e3, extra,
                    target.mostMicroseconds, isWithin ? "" : "  too slow");
        isKept = isKept && isWithin;
    }
    return isKept;
}

int runWithRatios(int argc, char **argv, const std::vector<RatioTarget> &targets,
                  const std::vector<ExtraTarget> &extras)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 2;
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    const bool areRatiosKept = reporter.printRatios(targets);
    const bool areExtrasKept = reporter.printExtras(extras);
    return areRatiosKept && areExtrasKept && !reporter.hasErrors() ? 0 : 1;
}

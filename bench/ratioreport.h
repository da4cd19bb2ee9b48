// SPDX-License-Identifier: MIT
#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

/// A benchmark and the twin that it is measured against, with the most that it may cost.
struct RatioTarget
{
    std::string benchmark;
    std::string twin;
    double mostTimes; ///< of the twin's time
};

/// Prints the usual report and remembers the times, so that ratios within the same run can be told: they hold on a slow
/// or shared machine too. Of repetitions, the fastest counts.
class RatioReporter : public benchmark::ConsoleReporter
{
public:
    void ReportRuns(const std::vector<Run> &runs) override;

    /// A short table of ratios beside their targets. False when one is above its target; what was not run is left out.
    bool printRatios(const std::vector<RatioTarget> &targets) const;

private:
    std::map<std::string, double> m_nanoseconds;
};

/// Runs the registered benchmarks. Returns the exit code of the program: 0 when every ratio keeps its target.
int runWithRatios(int argc, char **argv, const std::vector<RatioTarget> &targets);

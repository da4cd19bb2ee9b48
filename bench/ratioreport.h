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

/// A benchmark and the twin that does the same without the code in question, with the most that this code may add.
struct ExtraTarget
{
    std::string benchmark;
    std::string twin;
    double mostMicroseconds; ///< on top of the twin's time
};

/// Prints the usual report and remembers the times, so that ratios within the same run can be told: they hold on a slow
/// or shared machine too. Of repetitions, the fastest counts.
class RatioReporter : public benchmark::ConsoleReporter
{
public:
    void ReportRuns(const std::vector<Run> &runs) override;
    /// Whether a benchmark gave up.
    bool hasErrors() const { return m_hasErrors; }

    /// A short table of ratios beside their targets. False when one is above its target; what was not run is left out.
    bool printRatios(const std::vector<RatioTarget> &targets) const;
    /// The same for what a benchmark takes longer than its twin. Prints nothing without targets.
    bool printExtras(const std::vector<ExtraTarget> &targets) const;

private:
    /// Whether both times are known.
    bool find(const std::string &benchmark, const std::string &twin, double *time, double *twinTime) const;

    std::map<std::string, double> m_nanoseconds;
    bool m_hasErrors = false;
};

/// Runs the registered benchmarks. Returns the exit code of the program: 0 when every target is kept and none gave up.
int runWithRatios(int argc, char **argv, const std::vector<RatioTarget> &targets,
                  const std::vector<ExtraTarget> &extras = {});

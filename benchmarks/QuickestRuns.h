#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

namespace Norvane { namespace Benchmarks {

/// Prints nothing but what failed while benchmarks run, and remembers the quickest of repeated runs: a table
/// is for Finalize() to print.
class QuickestRuns : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context& context) override;
    void ReportRuns(const std::vector<Run>& runs) override;
    bool hasFailures() const;

protected:
    /// What counts of a run: its processor time.
    virtual double cost(const Run& run) const;
    /// The least cost by the name of the benchmark.
    const std::map<std::string, double>& costs() const;

private:
    std::map<std::string, double> m_costs;
    bool m_hasFailures = false;
};

/// Runs what is registered, by turns, so that what disturbs the machine for a while disturbs all alike.
/// Returns what main() does.
int runByTurns(int argc, char** argv, QuickestRuns* summary);

}} // namespace Norvane::Benchmarks

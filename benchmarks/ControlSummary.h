#pragma once

#include <benchmarks/ControlCase.h>

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

namespace Norvane { namespace Benchmarks {

/// Prints nothing but what failed while benchmarks run, and at the end one table: the processor time of a
/// step and how much longer others take, beside what is aimed at. Runs are named "task/contestant"; the
/// quickest of repeated ones counts.
class ControlSummary : public benchmark::BenchmarkReporter
{
public:
    explicit ControlSummary(const std::vector<ControlCase>& cases);
    bool ReportContext(const Context& context) override;
    void ReportRuns(const std::vector<Run>& runs) override;
    void Finalize() override;

    bool hasFailures() const { return m_hasFailures; }

private:
    void print(const ControlCase& control, double milliseconds);

    const std::vector<ControlCase>& m_cases;
    std::map<std::string, double> m_times; ///< milliseconds by name
    bool m_hasFailures = false;
};

}} // namespace Norvane::Benchmarks

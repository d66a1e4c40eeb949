#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>

namespace Norvane { namespace Benchmarks {

/// Prints nothing but what failed while benchmarks run, and at the end one table: nanoseconds per pixel and
/// their ratios, beside what is aimed at. Runs are named "decode CbYCrY8/row/core"; the quickest of repeated
/// ones counts.
class RowSummary : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context& context) override;
    void ReportRuns(const std::vector<Run>& runs) override;
    void Finalize() override;

    bool hasFailures() const { return m_hasFailures; }

private:
    using Contestants = std::map<std::string, double>;
    void printTask(const std::string& task, const std::string& size, const Contestants& times);

    std::map<std::string, std::map<std::string, Contestants>> m_times; ///< by task, size and contestant
    bool m_hasFailures = false;
};

}} // namespace Norvane::Benchmarks

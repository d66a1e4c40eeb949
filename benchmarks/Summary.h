#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

namespace Norvane { namespace Benchmarks {

/// The console output of the benchmarks, and afterwards how DockMainWindow compares with the other frameworks
/// and with itself.
class Summary : public benchmark::ConsoleReporter
{
public:
    Summary();
    void ReportRuns(const std::vector<Run>& runs) override;
    void Finalize() override;

    /// Whether a benchmark found its result to be wrong.
    bool hasFailures() const;

private:
    double figure(const std::string& task, const std::string& framework, int panels) const;
    void printPeers(const std::string& task, int panels);
    void printSelf();
    void print(const std::string& text, double value, const char* unit);

    struct Figure {
        double sum = 0;
        int count = 0;
    };
    /// By the name of the run, for example "restore/QDockWidget/400": milliseconds of processor time, or, for
    /// heap and growth, bytes. The mean where a run is repeated.
    std::map<std::string, Figure> m_figures;
    bool m_hasFailures = false;
};

}} // namespace Norvane::Benchmarks

#pragma once

#include <benchmarks/QuickestRuns.h>

namespace Norvane { namespace Benchmarks {

/// Prints at the end one table: nanoseconds per pixel and their ratios, beside what is aimed at. Runs are
/// named "decode CbYCrY8/row/core" and count their pixels.
class RowSummary : public QuickestRuns
{
public:
    void Finalize() override;

private:
    using Contestants = std::map<std::string, double>;
    double cost(const Run& run) const override;
    void printTask(const std::string& task, const std::string& size, const Contestants& times);
};

}} // namespace Norvane::Benchmarks

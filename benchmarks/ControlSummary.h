#pragma once

#include <benchmarks/ControlCase.h>
#include <benchmarks/QuickestRuns.h>

namespace Norvane { namespace Benchmarks {

/// Prints at the end one table: the processor time of a step in milliseconds and how much longer others take,
/// beside what is aimed at. Runs are named "task/contestant".
class ControlSummary : public QuickestRuns
{
public:
    explicit ControlSummary(const std::vector<ControlCase>& cases);
    void Finalize() override;

private:
    void print(const ControlCase& control, double milliseconds);

    const std::vector<ControlCase>& m_cases;
};

}} // namespace Norvane::Benchmarks

#include <benchmarks/ControlSummary.h>

#include <cstdio>
#include <ostream>

namespace Norvane { namespace Benchmarks {

Control::~Control() = default;

ControlSummary::ControlSummary(const std::vector<ControlCase>& cases)
    : m_cases(cases)
{
}

void ControlSummary::Finalize()
{
    GetOutputStream() << "\nProcessor time of one step, and how many times as long others take. In brackets "
                         "what is aimed at.\n\n";
    for (const ControlCase& control : m_cases) {
        const auto time = costs().find(control.task + '/' + control.contestant);
        if (time != costs().end())
            print(control, time->second);
    }
}

void ControlSummary::print(const ControlCase& control, double milliseconds)
{
    const bool isOurs = control.contestant == "core";
    const auto ours = costs().find(control.task + "/core");
    const double ratio = ours == costs().end() ? 0 : milliseconds / ours->second;
    const bool reached = isOurs ? milliseconds <= control.aim : ratio >= control.aim;
    char line[160];
    std::snprintf(line, sizeof line, "%-38s %-26s %9.4f ms %7.2f x", control.task.c_str(),
                  control.contestant.c_str(), milliseconds, ratio);
    GetOutputStream() << line;
    if (control.aim > 0) {
        std::snprintf(line, sizeof line, isOurs ? " (<= %g ms%s)" : " (>= %g x%s)", control.aim,
                      reached ? "" : " MISSED");
        GetOutputStream() << line;
    }
    GetOutputStream() << '\n';
}

}} // namespace Norvane::Benchmarks

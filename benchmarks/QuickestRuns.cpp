#include <benchmarks/QuickestRuns.h>

#include <algorithm>
#include <ostream>

namespace Norvane { namespace Benchmarks {

bool QuickestRuns::ReportContext(const Context& context)
{
    PrintBasicContext(&GetErrorStream(), context);
    return true;
}

void QuickestRuns::ReportRuns(const std::vector<Run>& runs)
{
    for (const Run& run : runs) {
        if (run.error_occurred) {
            GetErrorStream() << run.benchmark_name() << ": " << run.error_message << '\n';
            m_hasFailures = true;
        } else if (run.run_type == Run::RT_Iteration) {
            const double now = cost(run);
            double& least = m_costs.emplace(run.run_name.function_name, now).first->second;
            least = std::min(least, now);
        }
    }
}

bool QuickestRuns::hasFailures() const
{
    return m_hasFailures;
}

double QuickestRuns::cost(const Run& run) const
{
    return run.GetAdjustedCPUTime();
}

const std::map<std::string, double>& QuickestRuns::costs() const
{
    return m_costs;
}

int runByTurns(int argc, char** argv, QuickestRuns* summary)
{
    std::string turns = "--benchmark_enable_random_interleaving=true";
    std::vector<char*> arguments(argv, argv + argc);
    arguments.insert(arguments.begin() + 1, &turns[0]);
    int count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data()))
        return 1;
    benchmark::RunSpecifiedBenchmarks(summary);
    return summary->hasFailures() ? 1 : 0;
}

}} // namespace Norvane::Benchmarks

#include <benchmarks/Summary.h>

#include <cstdio>
#include <ostream>

namespace Norvane { namespace Benchmarks {

namespace {

const char kOurs[] = "DockMainWindow";

} // namespace

Summary::Summary()
    : ConsoleReporter(OO_None)
{
}

void Summary::ReportRuns(const std::vector<Run>& runs)
{
    ConsoleReporter::ReportRuns(runs);
    for (const Run& run : runs) {
        m_hasFailures = m_hasFailures || run.error_occurred;
        if (run.error_occurred || run.run_type != Run::RT_Iteration)
            continue;
        const auto heap = run.counters.find("heap");
        const bool isHeap = heap != run.counters.end();
        Figure& figure = m_figures[run.run_name.function_name + "/" + run.run_name.args];
        figure.sum += isHeap ? static_cast<double>(heap->second) : run.GetAdjustedCPUTime();
        ++figure.count;
    }
}

void Summary::Finalize()
{
    ConsoleReporter::Finalize();
    GetOutputStream() << "\nDockMainWindow compared, by processor time and heap of this run:\n";
    for (const char* const task : {"build", "save", "restore", "heap"}) {
        for (const int panels : {10, 100, 400})
            printPeers(task, panels);
    }
    printSelf();
}

bool Summary::hasFailures() const
{
    return m_hasFailures;
}

double Summary::figure(const std::string& task, const std::string& framework, int panels) const
{
    const auto found = m_figures.find(task + "/" + framework + "/" + std::to_string(panels));
    return found == m_figures.end() ? 0 : found->second.sum / found->second.count;
}

void Summary::printPeers(const std::string& task, int panels)
{
    const double ours = figure(task, kOurs, panels);
    for (const char* const peer : {"QDockWidget", "CDockManager", "CDockManager without style sheet"}) {
        const double theirs = figure(task, peer, panels);
        if (ours > 0 && theirs > 0)
            print(task + " of " + std::to_string(panels) + " panels: " + peer + " takes", theirs / ours,
                  "times as much");
    }
}

void Summary::printSelf()
{
    for (const char* const task : {"build", "save", "restore", "heap"}) {
        const double hundred = figure(task, kOurs, 100);
        const double fourHundred = figure(task, kOurs, 400);
        if (hundred > 0 && fourHundred > 0)
            print(std::string(task) + ": from 100 to 400 panels", fourHundred / hundred, "fold");
    }
    const double heap = figure("heap", kOurs, 400);
    if (heap > 0)
        print("heap of 400 panels", heap / 1e6, "MB");
}

void Summary::print(const std::string& text, double value, const char* unit)
{
    char line[160];
    std::snprintf(line, sizeof line, "  %-72s %8.2f %s\n", text.c_str(), value, unit);
    GetOutputStream() << line;
}

}} // namespace Norvane::Benchmarks

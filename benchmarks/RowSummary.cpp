#include <benchmarks/RowSummary.h>

#include <cstdio>
#include <ostream>

namespace Norvane { namespace Benchmarks {

namespace {

struct Aim {
    double mostTimesLimit; ///< 0 for none
    std::map<std::string, double> leastTimesFaster;
};

/// Others are compared where the processor counts, in a row, or where the memory does.
Aim aimOf(const std::string& task, const std::string& size)
{
    const bool row = size == "row";
    if (task == "decode CbYCrY8")
        return row ? Aim{3.2, {{"plain", 6}}} : Aim{1.2, {{"zimg", 2}}};
    if (task == "decode V210")
        return row ? Aim{4.2, {{"plain", 9}, {"ffmpeg", 3.5}}} : Aim{1.25, {{"ffmpeg", 3.5}}};
    if (task == "decode AYCbCr8")
        return row ? Aim{4.5, {{"OpenColorIO", 3.2}}} : Aim{1.2, {}};
    if (task == "encode CbYCrY8")
        return row ? Aim{0, {}} : Aim{1.3, {{"zimg", 2}}};
    if (task == "encode V210")
        return row ? Aim{0, {}} : Aim{1.35, {{"zimg", 1.8}}};
    return row ? Aim{5, {{"plain", 3}}} : Aim{1.4, {}};
}

std::string verdict(const char* sign, double aim, bool reached)
{
    char text[40];
    std::snprintf(text, sizeof text, " (%s %g%s)", sign, aim, reached ? "" : " MISSED");
    return text;
}

} // namespace

double RowSummary::cost(const Run& run) const
{
    return QuickestRuns::cost(run) / static_cast<double>(run.counters.at("pixels"));
}

void RowSummary::Finalize()
{
    GetOutputStream()
        << "\nProcessor time per pixel, to that of storing (decode) or loading (encode) the same floats,"
           "\nand how much longer others take. In brackets what is aimed at.\n\n";
    std::map<std::string, std::map<std::string, Contestants>> times; // by task, size and contestant
    for (const auto& run : costs()) {
        const std::string& name = run.first;
        const std::size_t first = name.find('/'), last = name.rfind('/');
        times[name.substr(0, first)][name.substr(first + 1, last - first - 1)][name.substr(last + 1)] =
            run.second;
    }
    for (const auto& task : times) {
        for (const auto& size : task.second)
            printTask(task.first, size.first, size.second);
    }
}

void RowSummary::printTask(const std::string& task, const std::string& size, const Contestants& times)
{
    const auto ours = times.find("core");
    const auto limit = times.find("limit");
    if (ours == times.end())
        return;
    const Aim aim = aimOf(task, size);
    char text[120];
    std::snprintf(text, sizeof text, "%-20s %-3s %6.3f ns", task.c_str(), size.c_str(), ours->second);
    std::string line = text;
    if (limit != times.end()) {
        const double ratio = ours->second / limit->second;
        std::snprintf(text, sizeof text, " = %5.2f x %.3f ns", ratio, limit->second);
        line += text;
        if (aim.mostTimesLimit > 0)
            line += verdict("<=", aim.mostTimesLimit, ratio <= aim.mostTimesLimit);
    }
    const auto wideLimit = times.find("limit in 64");
    if (wideLimit != times.end()) {
        std::snprintf(text, sizeof text, ", in 64 %.2f x", ours->second / wideLimit->second);
        line += text;
    }
    for (const auto& other : times) {
        if (other.first == "core" || other.first.compare(0, 5, "limit") == 0)
            continue;
        const double ratio = other.second / ours->second;
        std::snprintf(text, sizeof text, "; %s %.2f x", other.first.c_str(), ratio);
        line += text;
        const auto least = aim.leastTimesFaster.find(other.first);
        if (least != aim.leastTimesFaster.end())
            line += verdict(">=", least->second, ratio >= least->second);
    }
    GetOutputStream() << line << '\n';
}

}} // namespace Norvane::Benchmarks

// What an arrangement of panels costs, here and in other docking frameworks: to build, to save and to restore
// it, and to hold it in memory. All in one run, since only figures of one run can be compared.

#include <benchmarks/Stage.h>
#include <benchmarks/Summary.h>

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QStyleFactory>

namespace Norvane { namespace Benchmarks {

namespace {

const Framework kFrameworks[] = {
    {"DockMainWindow", arrangeDockMainWindow},
    {"QDockWidget", arrangeQDockWidgets},
#ifdef NORVANE_BENCHMARK_ADS
    {"CDockManager", arrangeAdsDockManager},
    {"CDockManager without style sheet", arrangePlainAdsDockManager},
#endif
};

const int kRestores = 400;
// Qt's tables, of widgets by accessible id for example, grow to their full size in the first few hundred.
const int kWarmUps = 400;

// Smaller than the smallest block that a heap hands out: not even one may be left over by each restore.
const long kSmallestBlock = 32;

bool failed(benchmark::State& state, const std::string& problem)
{
    if (!problem.empty())
        state.SkipWithError(problem.c_str());
    return !problem.empty();
}

void build(benchmark::State& state, Arrange arrange)
{
    while (state.KeepRunning()) {
        state.PauseTiming();
        std::unique_ptr<Arrangement> arrangement;
        const Panels panels(static_cast<int>(state.range(0)));
        state.ResumeTiming();
        arrangement = arrange(panels.inOrder());
        show(*arrangement);
        state.PauseTiming();
        if (failed(state, problemOf(*arrangement, panels.inOrder())))
            break;
        arrangement.reset();
        settle();
        state.ResumeTiming();
    }
}

void save(benchmark::State& state, Arrange arrange)
{
    const Panels panels(static_cast<int>(state.range(0)));
    const std::unique_ptr<Arrangement> arrangement = arrange(panels.inOrder());
    show(*arrangement);
    const QByteArray expected = arrangement->save();
    QByteArray layout;
    while (state.KeepRunning())
        layout = arrangement->save();
    if (layout != expected)
        state.SkipWithError("saving twice gives different bytes");
    state.counters["bytes"] = static_cast<double>(layout.size());
}

/// The saved layout of a window whose panes hold other panels than those of the benchmarks.
QByteArray dealtLayout(Arrange arrange, int count)
{
    const Panels panels(count);
    const std::unique_ptr<Arrangement> arrangement = arrange(panels.dealt());
    show(*arrangement);
    awaitDecoration(*arrangement);
    return arrangement->save();
}

void restore(benchmark::State& state, Arrange arrange)
{
    const Panels panels(static_cast<int>(state.range(0)));
    const std::unique_ptr<Arrangement> arrangement = arrange(panels.inOrder());
    show(*arrangement);
    awaitDecoration(*arrangement);
    const QByteArray layout = dealtLayout(arrange, static_cast<int>(state.range(0)));
    bool done = true;
    while (state.KeepRunning()) {
        done = arrangement->restore(layout) && done;
        settle();
    }
    if (!done)
        state.SkipWithError("a restore failed");
    failed(state, problemOf(*arrangement, panels.dealt()));
    const bool sameBytes = arrangement->save() == layout;
    state.counters["same bytes"] = sameBytes;
    if (arrange == arrangeDockMainWindow && !sameBytes)
        state.SkipWithError("saving after restoring gives other bytes");
}

/// The heap that a shown window without panels takes, with its backing store.
long emptyWindow(Arrange arrange)
{
    const long before = settledHeap();
    const std::unique_ptr<Arrangement> arrangement = arrange(QList<Pane>());
    show(*arrangement);
    return settledHeap() - before;
}

/// Makes Qt read and make what it keeps for all windows: fonts, the pictures of the style.
void warmUp(Arrange arrange)
{
    const Panels panels(8);
    show(*arrange(panels.inOrder()));
}

void heap(benchmark::State& state, Arrange arrange)
{
    warmUp(arrange);
    const Panels panels(static_cast<int>(state.range(0)));
    const long window = emptyWindow(arrange);
    const long before = settledHeap();
    std::unique_ptr<Arrangement> arrangement;
    while (state.KeepRunning()) {
        arrangement = arrange(panels.inOrder());
        show(*arrangement);
    }
    state.counters["heap"] = static_cast<double>(settledHeap() - before - window);
    failed(state, problemOf(*arrangement, panels.inOrder()));
}

/// Heap that is not given back by restoring one layout again and again.
void growth(benchmark::State& state, Arrange arrange)
{
    const Panels panels(static_cast<int>(state.range(0)));
    const std::unique_ptr<Arrangement> arrangement = arrange(panels.inOrder());
    show(*arrangement);
    const QByteArray layout = arrangement->save();
    bool done = true;
    const auto restore = [&] {
        done = arrangement->restore(layout) && done;
        settle();
    };
    for (int i = 0; i < kWarmUps; ++i)
        restore();
    const long before = settledHeap();
    while (state.KeepRunning())
        restore();
    const long grown = settledHeap() - before;
    state.counters["heap"] = static_cast<double>(grown);
    if (!done)
        state.SkipWithError("a restore failed");
    if (grown >= kSmallestBlock * kRestores)
        state.SkipWithError(("the heap has grown by " + std::to_string(grown) + " bytes").c_str());
    failed(state, problemOf(*arrangement, panels.inOrder()));
}

void registerBenchmark(const std::string& task, void (*run)(benchmark::State&, Arrange),
                       const Framework& framework, int iterations)
{
    const std::string name = task + "/" + framework.name;
    benchmark::internal::Benchmark* const registered =
        benchmark::RegisterBenchmark(name.c_str(), run, framework.arrange);
    registered->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime();
    for (const int panels : {10, 100, 400})
        registered->Arg(panels);
    if (iterations > 0)
        registered->Iterations(iterations);
}

void registerAll()
{
    // First: what other frameworks leave in Qt's caches would be cleared away meanwhile.
    registerBenchmark("growth", growth, kFrameworks[0], kRestores);
    for (const Framework& framework : kFrameworks) {
        registerBenchmark("build", build, framework, 0);
        registerBenchmark("save", save, framework, 0);
        registerBenchmark("restore", restore, framework, 0);
        registerBenchmark("heap", heap, framework, 1);
    }
}

} // namespace

int run(int argc, char** argv)
{
    // No desktop is needed, and none disturbs the figures. This platform warns of every window's size hints.
    if (qgetenv("QT_QPA_PLATFORM").isEmpty()) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        qputenv("QT_LOGGING_RULES", "default.warning=false");
    }
    QApplication application(argc, argv);
    QApplication::setStyle(QStyleFactory::create(QLatin1String("Fusion")));
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    registerAll();
    Summary summary;
    benchmark::RunSpecifiedBenchmarks(&summary);
    return summary.hasFailures() ? 1 : 0;
}

}} // namespace Norvane::Benchmarks

int main(int argc, char** argv)
{
    return Norvane::Benchmarks::run(argc, argv);
}

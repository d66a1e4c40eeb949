// What sliders and colour controls cost to repaint and to drag, here and in other libraries. All in one run,
// since only figures of one run can be compared.

#include <benchmarks/ControlCase.h>
#include <benchmarks/ControlSummary.h>

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QStyleFactory>

namespace Norvane { namespace Benchmarks { namespace {

void measure(benchmark::State& state, const ControlCase& control)
{
    const std::unique_ptr<Control> contestant = control.make();
    for (auto _ : state)
        contestant->step();
    const std::string problem = contestant->problem();
    if (!problem.empty())
        state.SkipWithError(problem.c_str());
}

int run(int argc, char** argv)
{
    std::vector<ControlCase> cases = wheelCases();
    for (const ControlCase& slider : sliderCases())
        cases.push_back(slider);
    for (const ControlCase& control : cases) {
        const std::string name = control.task + '/' + control.contestant;
        benchmark::RegisterBenchmark(name.c_str(), measure, control)
            ->Unit(benchmark::kMillisecond)
            ->MinTime(0.1)
            ->Repetitions(9);
    }
    ControlSummary summary(cases);
    return runByTurns(argc, argv, &summary);
}

}}} // namespace Norvane::Benchmarks

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QApplication::setStyle(QStyleFactory::create(QLatin1String("Fusion")));
    return Norvane::Benchmarks::run(argc, argv);
}

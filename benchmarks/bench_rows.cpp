// What rows of video cost: every layout to floats and back, beside the memory that this takes, the plain
// code, and other libraries. All in one run, taking turns, since only figures of one run can be compared.

#include <benchmarks/RowImage.h>
#include <benchmarks/RowSummary.h>

#include <benchmark/benchmark.h>

namespace Norvane { namespace Benchmarks {

using namespace Colour;

namespace {

struct Size {
    const char* name;
    int width;
    int height;
    /// Those rows of it that a contestant works on which takes row after row.
    int rows;
};

// A row that lies in the first cache with its floats; libraries that take frames get sixteen such rows.
const Size kSizes[] = {{"row", 960, 16, 1}, {"UHD", 3840, 2160, 2160}};

using Contestant = Work (*)(const RowImage& image, bool decoding, int rows);

Work rowWork(const RowImage& image, bool decoding, int rows, const RowLayout& functions)
{
    Work work;
    work.rows = rows;
    if (decoding) {
        work.run = [&image, &functions, rows] {
            for (int y = 0; y < rows; ++y)
                image.decodeRow(functions, y);
        };
        work.error = [&image, rows] { return image.decodingError(rows); };
    } else {
        work.run = [&image, &functions, rows] {
            for (int y = 0; y < rows; ++y)
                image.encodeRow(functions, y);
        };
        work.error = [&image, rows] { return image.encodingError(rows); };
    }
    return work;
}

Work coreWork(const RowImage& image, bool decoding, int rows)
{
    return rowWork(image, decoding, rows, image.layout());
}

Work plainWork(const RowImage& image, bool decoding, int rows)
{
    return rowWork(image, decoding, rows, plainRowLayouts()[static_cast<std::size_t>(image.number())]);
}

const std::pair<const char*, Contestant> kContestants[] = {
    {"core", coreWork},
    {"limit",
     [](const RowImage& image, bool decoding, int rows) { return limitWork(image, decoding, rows, 32); }},
    {"limit in 64",
     [](const RowImage& image, bool decoding, int rows) { return limitWork(image, decoding, rows, 64); }},
    {"plain", plainWork},
    {"zimg", [](const RowImage& image, bool decoding, int) { return zimgWork(image, decoding); }},
    {"ffmpeg", [](const RowImage& image, bool decoding, int) { return ffmpegWork(image, decoding); }},
    {"OpenColorIO", [](const RowImage& image, bool decoding, int) { return ocioWork(image, decoding); }},
};

void measure(benchmark::State& state, int layout, bool decoding, const Size& size, Contestant contestant)
{
    const RowImage image(layout, size.width, size.height);
    const Work work = contestant(image, decoding, size.rows);
    work.run();
    const double error = work.error();
    if (!(error <= work.tolerance))
        return state.SkipWithError(("wrong result, by " + std::to_string(error)).c_str());
    for (auto _ : state) {
        work.run();
        benchmark::ClobberMemory();
    }
    state.counters["pixels"] = size.width * work.rows;
}

void registerAll()
{
    for (const Size& size : kSizes) {
        for (int i = 0; i < 20; ++i) {
            const int layout = i / 2;
            const bool decoding = i % 2 == 0;
            const RowImage probe(layout, 96, 16);
            const std::string task = (decoding ? "decode " : "encode ") + std::string(probe.layout().name);
            for (const auto& contestant : kContestants) {
                if (!contestant.second(probe, decoding, 1).run)
                    continue;
                const std::string name = task + '/' + size.name + '/' + contestant.first;
                benchmark::RegisterBenchmark(name.c_str(), measure, layout, decoding, size, contestant.second)
                    ->MinTime(size.rows == 1 ? 0.01 : 0.05)
                    ->Repetitions(9);
            }
        }
    }
}

} // namespace

int run(int argc, char** argv)
{
    registerAll();
    RowSummary summary;
    return runByTurns(argc, argv, &summary);
}

}} // namespace Norvane::Benchmarks

int main(int argc, char** argv)
{
    return Norvane::Benchmarks::run(argc, argv);
}

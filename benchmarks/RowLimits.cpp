#include <benchmarks/RowImage.h>

#include <benchmark/benchmark.h>

#include <cstdint>
#include <cstring>

// Compiled for vectors of a given size where the machine has them. Without them, for the machine's common
// ones.
#if defined(__x86_64__)
#define NORVANE_VECTORS_OF_32 __attribute__((target_clones("avx2", "default")))
#define NORVANE_VECTORS_OF_64 __attribute__((target_clones("avx512f", "avx2", "default")))
#else
#define NORVANE_VECTORS_OF_32
#define NORVANE_VECTORS_OF_64
#endif

namespace Norvane { namespace Benchmarks {

namespace {

const float kStored = 0.75f;

[[gnu::always_inline]] inline void store(const RowImage& image, int y)
{
    const std::size_t size = image.floatsInPiece();
    float* __restrict const a = image.plane(0, y);
    if (image.pieces() == 1) {
        for (std::size_t i = 0; i < size; ++i)
            a[i] = kStored;
        return;
    }
    float* __restrict const b = image.plane(1, y);
    float* __restrict const c = image.plane(2, y);
    for (std::size_t i = 0; i < size; ++i) {
        a[i] = kStored;
        b[i] = kStored;
        c[i] = kStored;
    }
}

// Three sums, so that no addition has to wait for the one before.
[[gnu::always_inline]] inline std::uint32_t load(const RowImage& image, int y)
{
    const bool onePiece = image.pieces() == 1;
    const std::size_t size = onePiece ? image.floatsInPiece() / 3 : image.floatsInPiece();
    const float* const first = image.plane(0, y);
    const std::uint32_t* const a = reinterpret_cast<const std::uint32_t*>(first);
    const std::uint32_t* const b =
        reinterpret_cast<const std::uint32_t*>(onePiece ? first + size : image.plane(1, y));
    const std::uint32_t* const c =
        reinterpret_cast<const std::uint32_t*>(onePiece ? first + 2 * size : image.plane(2, y));
    std::uint32_t sumA = 0, sumB = 0, sumC = 0;
    for (std::size_t i = 0; i < size; ++i) {
        sumA += a[i];
        sumB += b[i];
        sumC += c[i];
    }
    return sumA + sumB + sumC;
}

NORVANE_VECTORS_OF_32 void store32(const RowImage& image, int y)
{
    store(image, y);
}
NORVANE_VECTORS_OF_64 void store64(const RowImage& image, int y)
{
    store(image, y);
}
NORVANE_VECTORS_OF_32 std::uint32_t load32(const RowImage& image, int y)
{
    return load(image, y);
}
NORVANE_VECTORS_OF_64 std::uint32_t load64(const RowImage& image, int y)
{
    return load(image, y);
}

} // namespace

Work limitWork(const RowImage& image, bool decoding, int rows, int vectorBytes)
{
    Work work;
    work.rows = rows;
    if (decoding) {
        const auto storeRow = vectorBytes == 64 ? store64 : store32;
        work.run = [&image, rows, storeRow] {
            for (int y = 0; y < rows; ++y)
                storeRow(image, y);
        };
        work.error = [&image, rows] {
            const float* const last = image.plane(image.pieces() - 1, rows - 1) + image.floatsInPiece() - 1;
            return *last == kStored ? 0 : 1;
        };
    } else {
        const auto loadRow = vectorBytes == 64 ? load64 : load32;
        work.run = [&image, rows, loadRow] {
            std::uint32_t sum = 0;
            for (int y = 0; y < rows; ++y)
                sum += loadRow(image, y);
            benchmark::DoNotOptimize(sum);
        };
        work.error = [] { return 0; };
    }
    return work;
}

}} // namespace Norvane::Benchmarks

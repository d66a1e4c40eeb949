#include <colour/rows/PlainRows.h>
#include <colour/rows/VectorRows.h>
#include <colour/rows/VectorTargets.h>

#include <tests/colour/Floats.h>
#include <tests/colour/Planes.h>

#include <hwy/targets.h>

#include <QtTest>

#include <cmath>
#include <numeric>
#include <random>
#include <set>

using namespace Norvane::Colour;
using namespace Norvane::Colour::Rows;
using namespace NorvaneTest;

/// The rows of every instruction set that this processor has, beside the plain rows.
class tst_YCbCrRowTargets : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void targetsDiffer();
    void everyCodeIsReadAlike_data() { addRows(); }
    void everyCodeIsReadAlike() { run(&Check::readCodes); }
    void everyLengthIsReadAlike_data() { addRows(); }
    void everyLengthIsReadAlike() { run(&Check::readLengths); }
    void everyValueIsWrittenAlike_data() { addRows(); }
    void everyValueIsWrittenAlike() { run(&Check::writeValues); }
    void everyLengthIsWrittenAlike_data() { addRows(); }
    void everyLengthIsWrittenAlike() { run(&Check::writeLengths); }
    void cleanupTestCase() { choose(0); }

private:
    struct Check {
        const char* name;
        void (*readCodes)();
        void (*readLengths)();
        void (*writeValues)();
        void (*writeLengths)();
    };
    static const Check kChecks[11];
    static void choose(std::int64_t target);
    static void addRows();
    static void run(void (*Check::*check)());
};

namespace {

using NorvaneTest::Planes;

const std::size_t kGroups = 65536;
const int kMostPixels = 97;
const InverseCoefficients& kInverse = inverseCoefficients(kRec709);

bool alike(float a, float b)
{
    return sameBits(a, b) || (std::isnan(a) && std::isnan(b));
}

template <typename T>
bool alike(T a, T b)
{
    return a == b;
}

/// The first place where two ranges differ, or -1.
template <typename T>
int difference(const std::vector<T>& a, const std::vector<T>& b)
{
    if (std::memcmp(a.data(), b.data(), a.size() * sizeof(T)) == 0)
        return -1;
    const auto found = std::mismatch(a.begin(), a.end(), b.begin(), [](T x, T y) { return alike(x, y); });
    return found.first == a.end() ? -1 : static_cast<int>(found.first - a.begin());
}

#define VERIFY_ALIKE(a, b)                                                                                   \
    do {                                                                                                     \
        const int at = difference(a, b);                                                                     \
        QVERIFY2(at < 0, qPrintable(QString::fromLatin1("differs at %1").arg(at)));                          \
    } while (false)

/// Any float that there is.
float anyFloat(std::mt19937& random)
{
    const std::uint32_t bits = static_cast<std::uint32_t>(random());
    float value;
    std::memcpy(&value, &bits, sizeof value);
    return value;
}

/// Values at and beside the step from one code to the next of some quantiser.
float stepValue(std::mt19937& random)
{
    static const float scales[] = {219, 218, 224, 255, 876, 896, 56064, 57344, 65535};
    const float scale = scales[random() % 9];
    const float step = (static_cast<float>(random() % 1000) / 500 - 0.5f) * scale;
    const float value = (std::floor(step) + 0.5f) / scale;
    switch (random() % 4) {
    case 0:
        return std::nextafter(value, 9.0f);
    case 1:
        return std::nextafter(value, -9.0f);
    default:
        return value;
    }
}

template <class Layout>
using Row = std::vector<typename Layout::Sample>;

template <class Layout>
Row<Layout> emptyRow(std::size_t groups)
{
    return Row<Layout>(bytesOf<Layout>(static_cast<int>(groups * Layout::pixels)) /
                       sizeof(typename Layout::Sample));
}

/// Groups of samples in which every place has every code of up to sixteen bits, in any order. Of floats, the
/// second half is anything.
template <class Layout>
Row<Layout> everyCode()
{
    std::mt19937 random(4);
    Row<Layout> row = emptyRow<Layout>(kGroups);
    for (std::size_t place = 0; place < 4; ++place) {
        std::vector<std::uint16_t> codes(kGroups);
        std::iota(codes.begin(), codes.end(), std::uint16_t(0));
        std::shuffle(codes.begin(), codes.end(), random);
        for (std::size_t group = 0; group < kGroups; ++group) {
            const std::uint32_t code = codes[group];
            Layout::write(row.data(), group * 4 + place, kIsPacked<Layout> ? code % 1024 : code);
        }
    }
    return row;
}

template <>
Row<AYCbCrF> everyCode<AYCbCrF>()
{
    std::mt19937 random(4);
    Row<AYCbCrF> row(kGroups * 4);
    std::uniform_real_distribution<float> value(-0.5f, 1.5f);
    std::generate(row.begin(), row.begin() + kGroups * 2, [&] { return value(random); });
    std::generate(row.begin() + kGroups * 2, row.end(), [&] { return anyFloat(random); });
    return row;
}

/// Four planes, or pixels of four floats: where the pixels of a row go and come from.
struct Buffer {
    explicit Buffer(std::size_t pixels)
        : values(4 * pixels, -77.0f)
    {
    }
    Rows::Planes planes(bool interleaved, bool alpha)
    {
        const std::ptrdiff_t next = interleaved ? 1 : static_cast<std::ptrdiff_t>(values.size() / 4);
        float* const p = values.data();
        return {alpha ? p + 3 * next : nullptr, p, p + next, p + 2 * next, interleaved ? 4 : 1};
    }
    std::vector<float> values;
};

ConstPlanes asConst(const Rows::Planes& p)
{
    return {p.alpha, p.x, p.y, p.z, p.stride};
}

template <class Layout>
std::size_t readVectors(const typename Layout::Sample* row, const Rows::Planes& planes, std::size_t pixels,
                        bool unpack)
{
    const DecodeFunctions<Layout>& vectors = *decodeTable();
    return unpack ? vectors.unpack(row, planes, pixels) : vectors.decode(row, planes, pixels, kInverse);
}

template <class Layout>
void readPlainly(const typename Layout::Sample* row, const Rows::Planes& planes, std::size_t begin,
                 std::size_t end, bool unpack)
{
    if (unpack)
        readPixels<Layout>(row, planes, begin, end, Layout::unpack, Unchanged{});
    else
        readPixels<Layout>(row, planes, begin, end, Layout::decode, ToRgb{kInverse});
}

template <class Layout>
void readRow(const Row<Layout>& row, std::size_t pixels, std::size_t leastPixels)
{
    for (int i = 0; i < 6; ++i) {
        const bool interleaved = i % 3 == 2, alpha = i % 3 != 0, unpack = i >= 3;
        Buffer plain(pixels), fast(pixels);
        readPlainly<Layout>(row.data(), plain.planes(interleaved, alpha), 0, pixels, unpack);
        const std::size_t done =
            readVectors<Layout>(row.data(), fast.planes(interleaved, alpha), pixels, unpack);
        QVERIFY(done >= leastPixels && done <= pixels);
        readPlainly<Layout>(row.data(), fast.planes(interleaved, alpha), done, pixels, unpack);
        VERIFY_ALIKE(plain.values, fast.values);
    }
}

template <class Layout>
void readCodes()
{
    Row<Layout> row = everyCode<Layout>();
    const std::size_t pixels = kGroups * Layout::pixels;
    readRow<Layout>(row, pixels, pixels - 100);
    if (!std::is_same<Layout, AYCbCr32>::value)
        return;
    // Words that hold more than sixteen bits.
    std::mt19937 random(5);
    for (std::size_t i = kGroups; i < row.size(); i += 1 + random() % 500)
        Layout::write(row.data(), i, static_cast<std::uint32_t>(random()) >> random() % 16);
    readRow<Layout>(row, pixels, 0);
}

template <class Layout>
void readLengths()
{
    const Row<Layout> codes = everyCode<Layout>();
    const std::size_t sample = sizeof(typename Layout::Sample);
    GuardedMemory source(kMostPixels * 4 * 4);
    for (const int arrangement : {0, 1, 2}) {
        Planes planes(kArrangements[arrangement], kMostPixels);
        for (int pixels = 0; pixels <= kMostPixels; ++pixels) {
            const std::size_t bytes = bytesOf<Layout>(pixels);
            auto* const row = reinterpret_cast<typename Layout::Sample*>(source.place(bytes, true));
            std::memcpy(row, codes.data() + codes.size() / 3 / 4 * 4, bytes / sample * sample);
            for (const bool unpack : {false, true}) {
                planes.place(pixels, true);
                const Rows::Planes p = {planes[3], planes[0], planes[1], planes[2], planes.stride()};
                const std::size_t end = static_cast<std::size_t>(pixels);
                readPlainly<Layout>(row, p, 0, end, unpack);
                planes.expectThis();
                readPlainly<Layout>(row, p, readVectors<Layout>(row, p, end, unpack), end, unpack);
                QVERIFY2(planes.isAsExpected(), QByteArray::number(pixels).constData());
            }
        }
    }
}

template <class Layout>
Row<Layout> written(const ConstPlanes& planes, std::size_t pixels, const ForwardMatrix& matrix, bool vectors,
                    std::size_t leastPixels)
{
    Row<Layout> row = emptyRow<Layout>((pixels + Layout::pixels - 1) / Layout::pixels);
    const EncodeFunctions<Layout>& functions = *encodeTable();
    const std::size_t done = vectors ? functions.encode(planes, row.data(), pixels, matrix) : 0;
    if (vectors && (done < leastPixels || done > pixels))
        return Row<Layout>(row.size());
    writePixels<Layout>(planes, row.data(), done, pixels, matrix);
    return row;
}

template <class Layout>
void writeValues()
{
    const ForwardMatrix identity = {{1, 0, 0, 0, 1, 0, 0, 0, 1}};
    const std::size_t pixels = 40000;
    Buffer values(pixels);
    std::mt19937 random(6);
    std::generate(values.values.begin(), values.values.end(),
                  [&] { return random() % 8 ? stepValue(random) : anyFloat(random); });
    for (const ForwardMatrix& matrix : {forwardMatrix(kRec709), forwardMatrix(kMoskLegacy), identity}) {
        for (int i = 0; i < 3; ++i) {
            const ConstPlanes planes = asConst(values.planes(i == 2, i != 0));
            VERIFY_ALIKE(written<Layout>(planes, pixels, matrix, false, 0),
                         written<Layout>(planes, pixels, matrix, true, pixels - 100));
        }
    }
}

template <class Layout>
void writeLengths()
{
    std::mt19937 random(7);
    GuardedMemory destination(kMostPixels * 4 * 4);
    for (const int arrangement : {0, 1, 2}) {
        Planes planes(kArrangements[arrangement], kMostPixels);
        for (int pixels = 0; pixels <= kMostPixels; ++pixels) {
            planes.place(pixels, true);
            for (int i = 0; i < pixels * 4; ++i) {
                if (i % 4 < 3 || planes[3])
                    planes.at(i % 4, i / 4) = stepValue(random);
            }
            const ConstPlanes p = {planes[3], planes[0], planes[1], planes[2], planes.stride()};
            const std::size_t end = static_cast<std::size_t>(pixels);
            auto* const row =
                reinterpret_cast<typename Layout::Sample*>(destination.place(bytesOf<Layout>(pixels), true));
            destination.fill();
            writePixels<Layout>(p, row, 0, end, forwardMatrix());
            const std::vector<unsigned char> expected(destination.begin(), destination.end());
            destination.fill();
            const EncodeFunctions<Layout>& vectors = *encodeTable();
            writePixels<Layout>(p, row, vectors.encode(p, row, end, forwardMatrix()), end, forwardMatrix());
            QVERIFY2(std::equal(expected.begin(), expected.end(), destination.begin()),
                     QByteArray::number(pixels).constData());
        }
    }
}

} // namespace

#define ALL_CHECKS(Layout)                                                                                   \
    {                                                                                                        \
#Layout, readCodes < Layout>, readLengths < Layout>, writeValues < Layout>, writeLengths < Layout>   \
    }

const tst_YCbCrRowTargets::Check tst_YCbCrRowTargets::kChecks[11] = {
    ALL_CHECKS(CbYCrY8),
    ALL_CHECKS(CbYCrY8MPEG),
    ALL_CHECKS(YCbYCr8),
    ALL_CHECKS(AYCbCr8),
    ALL_CHECKS(CbYCrA8),
    ALL_CHECKS(AYCbCrF),
    ALL_CHECKS(V210),
    ALL_CHECKS(CbYCrY16),
    ALL_CHECKS(AYCbCr16),
    ALL_CHECKS(AYCbCr32),
    {"AYCbCr8In16", nullptr, nullptr, writeValues<AYCbCr8In16>, writeLengths<AYCbCr8In16>},
};

/// The instruction set that rows use from now on; 0 for the processor's best.
void tst_YCbCrRowTargets::choose(std::int64_t target)
{
    hwy::SetSupportedTargetsForTest(target);
    hwy::GetChosenTarget().Update(hwy::SupportedTargets());
}

void tst_YCbCrRowTargets::addRows()
{
    QTest::addColumn<qint64>("target");
    QTest::addColumn<int>("layout");
    choose(0);
    for (const std::int64_t target : hwy::SupportedAndGeneratedTargets()) {
        for (int i = 0; i < 11; ++i) {
            const QByteArray name = QByteArray(hwy::TargetName(target)) + ", " + kChecks[i].name;
            QTest::newRow(name.constData()) << qint64(target) << i;
        }
    }
}

void tst_YCbCrRowTargets::run(void (*Check::*check)())
{
    QFETCH(qint64, target);
    QFETCH(int, layout);
    choose(target);
    if (decodeTable() && kChecks[layout].*check)
        (kChecks[layout].*check)();
}

// Otherwise a target that is compared with the plain rows might be another one.
void tst_YCbCrRowTargets::targetsDiffer()
{
    std::set<const void*> tables;
    choose(0);
    const std::vector<std::int64_t> targets = hwy::SupportedAndGeneratedTargets();
    for (const std::int64_t target : targets) {
        choose(target);
        tables.insert(decodeTable());
        tables.insert(encodeTable());
        QVERIFY((decodeTable() == nullptr) == (target == HWY_EMU128 || target == HWY_SCALAR));
    }
    QVERIFY(tables.size() >= 2 * targets.size() - 1);
}

QTEST_APPLESS_MAIN(tst_YCbCrRowTargets)
#include "tst_YCbCrRowTargets.moc"

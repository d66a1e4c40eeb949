#include <colour/YCbCrRows.h>

#include <tests/colour/Planes.h>
#include <tests/colour/RowExpectation.h>

#include <QtTest>

#include <random>

using namespace Norvane::Colour;
using namespace NorvaneTest;

/// Every layout in every arrangement of planes and at every length, beside forbidden pages.
class tst_YCbCrRows : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void tableNamesLayouts();
    void rowIsDecoded_data() { addRows(10); }
    void rowIsDecoded();
    void rowIsUnpacked_data() { addRows(10); }
    void rowIsUnpacked();
    void rowIsEncoded_data() { addRows(11); }
    void rowIsEncoded();

private:
    void addRows(int layouts);
    template <typename Convert, typename Expect>
    void readRows(const RowExpectation& layout, const Arrangement& arrangement, Convert convert,
                  Expect expect);
};

namespace {

// Two vectors and one pixel of the layout that takes the most at once: ten-bit pixels, three vectors of 16 together.
const int kMostPixels = 97;

/// Neither matrix has two coefficients alike, so that none can stand in for another.
const InverseCoefficients kInverse = {{1.5f, -0.4375f, -0.203125f, 1.84765625f}};
const ForwardMatrix kForward = {
    {0.2126f, 0.7152f, 0.0722f, -0.1146f, -0.3854f, 0.5f, 0.501f, -0.4542f, -0.0458f}};

std::mt19937 seeded()
{
    return std::mt19937(20);
}

void fillWithCodes(const RowExpectation& layout, GuardedMemory& memory)
{
    std::mt19937 random = seeded();
    std::uniform_real_distribution<float> value(-0.5f, 1.5f);
    for (unsigned char* p = memory.begin(); p != memory.end(); p += 4) {
        const float number = value(random);
        // Mostly codes of the sixteen bits that a sample of 32 should have.
        std::uint32_t word = static_cast<std::uint32_t>(random());
        if (layout.type == kSample32 && word % 8 != 0)
            word >>= 16;
        std::memcpy(p, layout.type == kSampleFloat ? static_cast<const void*>(&number) : &word, 4);
    }
}

void encode(std::size_t layout, const Planes& planes, void* row, int count)
{
    if (layout < rowLayouts().size())
        rowLayouts()[layout].encode(planes[3], planes[0], planes[1], planes[2], planes.stride(), row, count,
                                    kForward);
    else
        encodeAYCbCr8In16(planes[3], planes[0], planes[1], planes[2], planes.stride(),
                          static_cast<std::uint16_t*>(row), count, kForward);
}

QByteArray told(const char* where, int count, bool atEnd)
{
    return QByteArray(where) + ", count " + QByteArray::number(count) +
           (atEnd ? ", at the end" : ", at the start");
}

} // namespace

void tst_YCbCrRows::addRows(int layouts)
{
    QTest::addColumn<int>("layout");
    QTest::addColumn<int>("arrangement");
    for (int layout = 0; layout < layouts; ++layout) {
        for (std::size_t i = 0; i < sizeof kArrangements / sizeof *kArrangements; ++i) {
            const QByteArray name = QByteArray(kExpectations[layout].name) + ", " + kArrangements[i].name;
            QTest::newRow(name.constData()) << layout << static_cast<int>(i);
        }
    }
}

void tst_YCbCrRows::tableNamesLayouts()
{
    for (std::size_t i = 0; i < rowLayouts().size(); ++i) {
        const RowLayout& layout = rowLayouts()[i];
        const RowExpectation& expected = kExpectations[i];
        QCOMPARE(layout.name, expected.name);
        QCOMPARE(static_cast<int>(layout.sampleType), static_cast<int>(expected.type));
        QCOMPARE(layout.countsBytes, expected.countsBytes);
        QCOMPARE(layout.bytes(-1), std::size_t(0));
        for (int pixels = 0; pixels < 40; ++pixels) {
            const std::size_t groups = static_cast<std::size_t>((pixels + 5) / 6) * 16;
            QCOMPARE(layout.bytes(pixels), expected.type == kSample10 ? groups : expected.bytesRead(pixels));
        }
    }
}

/// Decodes or unpacks rows that lie in memory exactly as long as they are.
template <typename Convert, typename Expect>
void tst_YCbCrRows::readRows(const RowExpectation& layout, const Arrangement& arrangement, Convert convert,
                             Expect expect)
{
    GuardedMemory source(layout.bytesRead(kMostPixels));
    fillWithCodes(layout, source);
    Planes planes(arrangement, kMostPixels);
    const int most = layout.countsBytes ? kMostPixels * 2 : kMostPixels;
    for (const int count : {-1, -1000})
        convert(nullptr, planes, count);
    for (int count = 0; count <= most; ++count) {
        const int pixels = layout.pixels(count);
        const std::size_t bytes =
            layout.countsBytes ? static_cast<std::size_t>(count) : layout.bytesRead(pixels);
        for (const bool atEnd : {false, true}) {
            const void* const row = source.place(bytes, atEnd);
            planes.place(pixels, atEnd);
            for (int pixel = 0; pixel < pixels; ++pixel) {
                float values[4];
                expect(row, pixel, values);
                planes.set(pixel, values);
            }
            planes.expectThis();
            convert(row, planes, count);
            QVERIFY2(planes.isAsExpected(), told("planes differ", count, atEnd).constData());
        }
    }
}

void tst_YCbCrRows::rowIsDecoded()
{
    QFETCH(int, layout);
    QFETCH(int, arrangement);
    const RowLayout& converter = rowLayouts()[static_cast<std::size_t>(layout)];
    readRows(
        kExpectations[layout], kArrangements[arrangement],
        [&](const void* row, const Planes& p, int count) {
            converter.decode(row, p[3], p[0], p[1], p[2], p.stride(), count, kInverse);
        },
        [&](const void* row, int pixel, float* values) {
            kExpectations[layout].decode(row, pixel, kInverse.c, values);
        });
}

void tst_YCbCrRows::rowIsUnpacked()
{
    QFETCH(int, layout);
    QFETCH(int, arrangement);
    const RowLayout& converter = rowLayouts()[static_cast<std::size_t>(layout)];
    readRows(
        kExpectations[layout], kArrangements[arrangement],
        [&](const void* row, const Planes& p, int count) {
            converter.unpack(row, p[3], p[0], p[1], p[2], p.stride(), count);
        },
        [&](const void* row, int pixel, float* values) { kExpectations[layout].unpack(row, pixel, values); });
}

void tst_YCbCrRows::rowIsEncoded()
{
    QFETCH(int, layout);
    QFETCH(int, arrangement);
    const RowExpectation& expectation = kExpectations[layout];
    const bool isPacked = expectation.type == kSample10;
    Planes planes(kArrangements[arrangement], kMostPixels);
    GuardedMemory destination(expectation.bytesRead(kMostPixels + 6));
    std::mt19937 random = seeded();
    std::uniform_real_distribution<float> component(-0.5f, 1.5f);
    encode(static_cast<std::size_t>(layout), planes, nullptr, -1);
    for (int count = 0; count <= kMostPixels; ++count) {
        const std::size_t bytes = expectation.bytesRead(isPacked ? (count + 5) / 6 * 6 : count);
        for (const bool atEnd : {false, true}) {
            std::vector<float> pixels;
            planes.place(count, atEnd);
            for (int pixel = 0; pixel < count; ++pixel) {
                const float alpha = planes[3] ? component(random) : 1;
                const float rgba[] = {component(random), component(random), component(random), alpha};
                pixels.insert(pixels.end(), rgba, rgba + 4);
                planes.set(pixel, rgba);
            }
            unsigned char* const row = destination.place(bytes, atEnd);
            destination.fill();
            if (isPacked)
                std::memset(row, 0, bytes);
            expectation.encode(pixels.data(), count, kForward.m, row);
            const std::vector<unsigned char> expected(destination.begin(), destination.end());
            destination.fill();
            encode(static_cast<std::size_t>(layout), planes, row, count);
            QVERIFY2(std::equal(expected.begin(), expected.end(), destination.begin()),
                     told("rows differ", count, atEnd).constData());
        }
    }
}

QTEST_APPLESS_MAIN(tst_YCbCrRows)
#include "tst_YCbCrRows.moc"

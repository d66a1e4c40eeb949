#include <colour/YCbCrRows.h>

#include <tests/colour/RowExpectation.h>

#include <QtTest>

#include <random>
#include <vector>

using namespace Norvane::Colour;
using namespace NorvaneTest;

/// Codes that come back, and the functions that have their matrix bound.
class tst_YCbCrRowValues : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void everyCodeComesBack_data();
    void everyCodeComesBack();
    void boundMatrices_data();
    void boundMatrices();
};

namespace {

int countOf(const RowExpectation& layout, int pixels)
{
    return layout.countsBytes ? static_cast<int>(layout.bytesRead(pixels)) : pixels;
}

template <typename Sample,
          void (*function)(const Sample*, float*, float*, float*, float*, std::ptrdiff_t, int)>
void boundDecode(const void* row, float* rgba, int count)
{
    function(static_cast<const Sample*>(row), rgba + 3, rgba, rgba + 1, rgba + 2, 4, count);
}

template <typename Sample, void (*function)(const float*, const float*, const float*, const float*,
                                            std::ptrdiff_t, Sample*, int)>
void boundEncode(const float* rgba, void* row, int count)
{
    function(rgba + 3, rgba, rgba + 1, rgba + 2, 4, static_cast<Sample*>(row), count);
}

struct Bound {
    void (*decode)(const void* row, float* rgba, int count);
    YCbCrMatrix matrix;
    void (*encode)(const float* rgba, void* row, int count);
};

typedef std::uint8_t U8;
typedef std::uint16_t U16;
typedef std::uint32_t U32;

const Bound kBound[] = {
    {boundDecode<U8, decodeCbYCrY8>, kMoskLegacy, boundEncode<U8, encodeCbYCrY8>},
    {boundDecode<U8, decodeCbYCrY8MPEG>, kMoskLegacyMPEG, boundEncode<U8, encodeCbYCrY8MPEG>},
    {boundDecode<U8, decodeYCbYCr8>, kMoskLegacy, boundEncode<U8, encodeYCbYCr8>},
    {boundDecode<U8, decodeAYCbCr8>, kMoskLegacy, boundEncode<U8, encodeAYCbCr8>},
    {boundDecode<U8, decodeCbYCrA8>, kMoskLegacy, boundEncode<U8, encodeCbYCrA8>},
    {boundDecode<float, decodeAYCbCrF>, kMoskLegacy, boundEncode<float, encodeAYCbCrF>},
    {boundDecode<U32, decodeV210>, kMoskLegacy, boundEncode<U32, encodeV210>},
    {boundDecode<U16, decodeCbYCrY16>, kMoskLegacy, boundEncode<U16, encodeCbYCrY16>},
    {boundDecode<U16, decodeAYCbCr16>, kMoskLegacy, boundEncode<U16, encodeAYCbCr16>},
    {boundDecode<U32, decodeAYCbCr32>, kMoskLegacy, boundEncode<U32, encodeAYCbCr32>},
    {nullptr, kRec709, boundEncode<U16, encodeAYCbCr8In16>},
};

} // namespace

void tst_YCbCrRowValues::everyCodeComesBack_data()
{
    QTest::addColumn<int>("layout");
    for (int i = 0; i < 10; ++i) {
        if (kExpectations[i].type != kSampleFloat)
            QTest::newRow(kExpectations[i].name) << i;
    }
}

// Decoded, nothing is clamped, so that encoding finds every code again that it can give at all.
void tst_YCbCrRowValues::everyCodeComesBack()
{
    QFETCH(int, layout);
    const RowExpectation& l = kExpectations[layout];
    const int codes = l.type == kSample8 ? 256 : l.type == kSample10 ? 1024 : 65536;
    const int pixels = 65538;
    std::vector<unsigned char> row(static_cast<std::size_t>(pixels) * 16), back(row.size());
    const auto code = [&](int i) { return static_cast<float>(i % codes); };
    for (int i = 0; i < pixels; ++i) {
        const Coding& y = l.codedLuma;
        l.setSample(row.data(), l.index(i, l.y), std::min(std::max(code(i), y.low), y.high));
        if (!l.pairs)
            l.setSample(row.data(), l.index(i, l.a), code(i * 5));
        if (l.pairs && i % 2 == 1)
            continue;
        l.setSample(row.data(), l.index(i, l.cb), code(i * 3 + (i / codes)));
        l.setSample(row.data(), l.index(i, l.cr), code(i * 7 + 1 + (i / codes)));
    }
    std::vector<float> p(static_cast<std::size_t>(pixels) * 4);
    const RowLayout& converter = rowLayouts()[static_cast<std::size_t>(layout)];
    for (const YCbCrMatrix matrix : {kRec709, kRec601}) {
        converter.decode(row.data(), &p[3], &p[0], &p[1], &p[2], 4, countOf(l, pixels),
                         inverseCoefficients(matrix));
        converter.encode(&p[3], &p[0], &p[1], &p[2], 4, back.data(), pixels, forwardMatrix(matrix));
        int same = 0;
        while (same < l.samples(pixels) && l.sample(back.data(), same) == l.sample(row.data(), same))
            ++same;
        QCOMPARE(same, l.samples(pixels));
    }
}

void tst_YCbCrRowValues::boundMatrices_data()
{
    QTest::addColumn<int>("layout");
    for (int i = 0; i < 11; ++i)
        QTest::newRow(kExpectations[i].name) << i;
}

void tst_YCbCrRowValues::boundMatrices()
{
    QFETCH(int, layout);
    const RowExpectation& l = kExpectations[layout];
    const Bound& bound = kBound[layout];
    std::mt19937 random(3);
    std::uniform_real_distribution<float> component(-0.2f, 1.2f);
    std::vector<float> rgba(4 * 50), decoded(4 * 50), expected(4 * 50);
    std::generate(rgba.begin(), rgba.end(), [&] { return component(random); });
    std::vector<unsigned char> row(rgba.size() * 4), coded(row.size());
    l.encode(rgba.data(), 50, forwardMatrix(kRec601).m, row.data());
    bound.encode(rgba.data(), coded.data(), 50);
    for (int i = 0; i < l.samples(50); ++i)
        QCOMPARE(l.sample(coded.data(), i), l.sample(row.data(), i));
    if (!bound.decode)
        return;
    bound.decode(row.data(), decoded.data(), countOf(l, 50));
    for (int i = 0; i < 50; ++i)
        l.decode(row.data(), i, inverseCoefficients(bound.matrix).c,
                 &expected[static_cast<std::size_t>(i) * 4]);
    QVERIFY(decoded == expected);
}

QTEST_APPLESS_MAIN(tst_YCbCrRowValues)
#include "tst_YCbCrRowValues.moc"

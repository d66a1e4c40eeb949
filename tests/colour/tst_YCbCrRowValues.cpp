#include <colour/YCbCrRows.h>

#include <tests/colour/Floats.h>
#include <tests/colour/RowExpectation.h>

#include <QtTest>

#include <limits>
#include <random>
#include <vector>

using namespace Norvane::Colour;
using namespace NorvaneTest;

typedef QList<double> Numbers;
Q_DECLARE_METATYPE(Numbers)

/// Samples whose values are known by number.
class tst_YCbCrRowValues : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void sampleHasValue_data();
    void sampleHasValue();
    void valueHasCode_data();
    void valueHasCode();
    void everyCodeComesBack_data();
    void everyCodeComesBack();
    void pairHasMeanChroma();
    void boundMatrices_data();
    void boundMatrices();
};

namespace {

const float kNaN = std::numeric_limits<float>::quiet_NaN();
const float kInfinity = std::numeric_limits<float>::infinity();

/// Codes red as luma, green as Cb and blue as Cr.
const ForwardMatrix kIdentity = {{1, 0, 0, 0, 1, 0, 0, 0, 1}};

std::size_t find(const char* name)
{
    std::size_t i = 0;
    while (std::strcmp(kExpectations[i].name, name) != 0)
        ++i;
    return i;
}

/// A row of the samples, in their order in memory.
std::vector<unsigned char> rowOf(const RowExpectation& layout, const Numbers& samples)
{
    std::vector<unsigned char> row(static_cast<std::size_t>(samples.size()) * 4 + 16);
    for (int i = 0; i < samples.size(); ++i)
        layout.setSample(row.data(), i, static_cast<float>(samples[i]));
    return row;
}

/// Encodes pixels of four floats, R G B A.
std::vector<unsigned char> encoded(const char* name, const std::vector<float>& rgba,
                                   const ForwardMatrix& matrix)
{
    const float* const p = rgba.data();
    const int count = static_cast<int>(rgba.size() / 4);
    std::vector<unsigned char> row(rgba.size() * 4 + 16);
    if (find(name) < rowLayouts().size()) {
        rowLayouts()[find(name)].encode(p + 3, p, p + 1, p + 2, 4, row.data(), count, matrix);
    } else {
        std::vector<std::uint16_t> words(rgba.size());
        encodeAYCbCr8In16(p + 3, p, p + 1, p + 2, 4, words.data(), count, matrix);
        std::memcpy(row.data(), words.data(), words.size() * 2);
    }
    return row;
}

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

void tst_YCbCrRowValues::sampleHasValue_data()
{
    QTest::addColumn<QByteArray>("layout");
    QTest::addColumn<Numbers>("samples");
    QTest::addColumn<double>("first");
    QTest::addColumn<double>("second");
    QTest::addColumn<double>("alpha");
    const auto add = [](const char* layout, const char* name, std::initializer_list<double> samples,
                        double first, double second, double alpha) {
        QTest::newRow((QByteArray(layout) + ": " + name).constData())
            << QByteArray(layout) << Numbers(samples) << first << second << alpha;
    };
    const double code = 1 / 255.0;
    add("CbYCrY8", "black and white", {128, 16, 128, 235}, 0, 1, 1);
    add("CbYCrY8", "beyond both", {128, 0, 128, 255}, -16 / 219.0, 239 / 219.0, 1);
    add("CbYCrY8MPEG", "black and white", {128, 16, 128, 234}, 0, 1, 1);
    add("YCbYCr8", "grey has Cb one code below Cr", {16, 127, 234, 128}, 0, 1, 1);
    add("AYCbCr8", "black has no offset", {255, 0, 128, 128, 0, 219, 128, 128}, 0, 1, 1);
    add("AYCbCr8", "the video range's black is grey", {51, 16, 128, 128, 0, 235, 128, 128}, 16 / 219.0,
        235 / 219.0, 0.2);
    add("CbYCrA8", "alpha coded like luma", {128, 16, 128, 235, 128, 235, 128, 16}, 0, 1, 1);
    add("CbYCrA8", "alpha below and above", {128, 16, 128, 0, 128, 235, 128, 255}, 0, 1, -16 / 219.0);
    add("AYCbCrF", "black keeps its offset",
        {0.25, 16 * code, 0.50371776, 0.50371776, 1, 235 * code, 0.50371776, 0.50371776},
        16 * code * 1.1643835, 235 * code * 1.1643835, 0.25);
    add("V210", "black and white", {512, 64, 512, 940}, 0, 1, 1);
    add("CbYCrY16", "black and white", {32768, 4096, 32768, 60160}, 0, 1, 1);
    add("AYCbCr16", "black and white", {65535, 4096, 32768, 32768, 0, 60160, 32768, 32768}, 0, 1, 1);
    add("AYCbCr32", "black and white", {0, 4096, 32768, 32768, 0, 60160, 32768, 32768}, 0, 1, 0);
}

// Greys: no matrix may tint them. Where they are to be 0 or 1 they are so exactly, except where the scaling
// is kept as a product.
void tst_YCbCrRowValues::sampleHasValue()
{
    QFETCH(QByteArray, layout);
    QFETCH(Numbers, samples);
    QFETCH(double, first);
    QFETCH(double, second);
    QFETCH(double, alpha);
    const RowExpectation& expectation = kExpectations[find(layout.constData())];
    const std::vector<unsigned char> row = rowOf(expectation, samples);
    const bool exact = !layout.startsWith("AYCbCrF") && layout != "CbYCrY8MPEG" && layout != "YCbYCr8";
    for (int matrix = 0; matrix < 5; ++matrix) {
        float rgba[8] = {};
        rowLayouts()[find(layout.constData())].decode(row.data(), rgba + 3, rgba, rgba + 1, rgba + 2, 4,
                                                      countOf(expectation, 2),
                                                      inverseCoefficients(static_cast<YCbCrMatrix>(matrix)));
        for (int i = 0; i < 3; ++i) {
            const double black = static_cast<double>(rgba[i]), white = static_cast<double>(rgba[4 + i]);
            QVERIFY2(isClose(black, first) && isClose(white, second), qPrintable(told(i, black, white)));
            QVERIFY(!exact || first != 0 || black == 0);
            QVERIFY(!exact || second != 1 || white == 1);
        }
        QVERIFY(isClose(static_cast<double>(rgba[3]), alpha));
    }
}

void tst_YCbCrRowValues::valueHasCode_data()
{
    for (const char* const kind : {"luma", "cb", "cr", "alpha"})
        QTest::addColumn<Numbers>(kind);
    const Numbers none, alpha8{0, 0, 128, 255, 255}, alpha16{0, 0, 32768, 65535, 65535};
    const Numbers luma16{0, 4096, 32128, 60160, 65535}, chroma16{0, 4096, 32768, 61440, 65535};
    const Numbers luma8{1, 16, 126, 235, 254}, chroma8{0, 16, 128, 240, 255}, chroma10{0, 64, 512, 960, 1023};
    const Numbers lumaMPEG{1, 16, 125, 234, 254}, chromaMPEG{0, 1, 128, 255, 255};
    const Numbers luma8In16{0, 4080, 32003, 59925, 65535}, chroma8In16{0, 4080, 32640, 61200, 65535};
    QTest::newRow("CbYCrY8") << luma8 << chroma8 << chroma8 << none;
    QTest::newRow("CbYCrY8MPEG") << lumaMPEG << chromaMPEG << chromaMPEG << none;
    QTest::newRow("YCbYCr8") << lumaMPEG << Numbers{0, 0, 127, 255, 255} << chromaMPEG << none;
    QTest::newRow("AYCbCr8") << Numbers{0, 0, 110, 219, 238} << chroma8 << chroma8 << alpha8;
    QTest::newRow("CbYCrA8") << luma8 << chroma8 << chroma8 << Numbers{0, 16, 126, 235, 255};
    QTest::newRow("V210") << Numbers{0, 64, 502, 940, 1023} << chroma10 << chroma10 << none;
    QTest::newRow("CbYCrY16") << luma16 << chroma16 << chroma16 << none;
    QTest::newRow("AYCbCr16") << luma16 << chroma16 << chroma16 << alpha16;
    QTest::newRow("AYCbCr32") << luma16 << chroma16 << chroma16 << alpha16;
    QTest::newRow("AYCbCr8In16") << luma8In16 << chroma8In16 << chroma8In16 << alpha16;
}

// The codes of far too little, 0, a half, 1 and far too much; of chroma those of -0.5, 0 and 0.5.
void tst_YCbCrRowValues::valueHasCode()
{
    QFETCH(Numbers, luma);
    QFETCH(Numbers, cb);
    QFETCH(Numbers, cr);
    QFETCH(Numbers, alpha);
    const RowExpectation& layout = kExpectations[find(QTest::currentDataTag())];
    // The luma row of the matrix first: only red counts, and only for one kind of sample.
    const int places[] = {layout.y, layout.cb, layout.cr};
    for (int i = 0; i < 3; ++i) {
        ForwardMatrix matrix = {};
        matrix.m[3 * i] = 1;
        const float middle = i == 0 ? 0.5f : 0.0f;
        const float values[] = {-1e9f, middle - 0.5f, middle,     middle + 0.5f,
                                1e9f,  kNaN,          -kInfinity, kInfinity};
        const Numbers& codes = i == 0 ? luma : i == 1 ? cb : cr;
        for (int j = 0; j < 8; ++j) {
            const int code = j < 5 ? j : j == 7 ? 4 : 0;
            // Alpha goes through the same values, whichever sample is looked at.
            const float all = values[j] + (0.5f - middle);
            const std::vector<unsigned char> row = encoded(layout.name, {values[j], 0, 0, all}, matrix);
            QCOMPARE(static_cast<double>(layout.sample(row.data(), places[i])), codes[code]);
            if (!layout.pairs)
                QCOMPARE(static_cast<double>(layout.sample(row.data(), layout.a)), alpha[code]);
        }
    }
}

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

void tst_YCbCrRowValues::pairHasMeanChroma()
{
    const float amounts[] = {0.5f, 0.25f, -0.5f, 0, 0.25f};
    std::vector<float> rgba;
    for (const float amount : amounts) {
        const float pixel[] = {0, amount, -amount, 1};
        rgba.insert(rgba.end(), pixel, pixel + 4);
    }
    const std::vector<unsigned char> row = encoded("CbYCrY8", rgba, kIdentity);
    // 128 + 224 times 0.375, -0.25 and, for the last one alone, 0.25
    const unsigned char expected[] = {212, 16, 44, 16, 72, 16, 184, 16, 184, 16, 72};
    QVERIFY(std::equal(expected, expected + 11, row.begin()));
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
    const std::vector<unsigned char> row = encoded(l.name, rgba, forwardMatrix(kRec601));
    std::vector<unsigned char> coded(row.size());
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

#include <colour/YCbCrRows.h>

#include <tests/colour/RowExpectation.h>
#include <tests/support/Waiting.h>

#include <zimg.h>

#include <QtTest>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <vector>

using namespace Norvane::Colour;
using namespace NorvaneTest;

/// Frames made by one foreign program and decoded by another.
class tst_VideoFrames : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void framesAgree_data();
    void framesAgree();
};

namespace {

// Neither whole groups of v210 nor whole vectors.
const int kWidth = 1270;
const int kHeight = 96;

QByteArray outputOf(const QByteArray& command)
{
    QByteArray output;
    FILE* const pipe = popen(command.constData(), "r");
    char buffer[65536];
    while (const std::size_t size = pipe ? std::fread(buffer, 1, sizeof buffer, pipe) : 0)
        output.append(buffer, static_cast<int>(size));
    return pipe && pclose(pipe) == 0 ? output : QByteArray();
}

/// A plane with the alignment of rows that zimg asks for.
class Plane
{
public:
    Plane(int width, std::size_t sampleBytes)
        : m_stride((static_cast<std::size_t>(width) * sampleBytes + sizeof(Block) - 1) / sizeof(Block))
        , m_blocks(m_stride * kHeight)
    {
    }
    template <typename T>
    T* row(int y)
    {
        return reinterpret_cast<T*>(&m_blocks[m_stride * static_cast<std::size_t>(y)]);
    }
    std::ptrdiff_t stride() const { return static_cast<std::ptrdiff_t>(m_stride * sizeof(Block)); }

private:
    struct alignas(64) Block {
        unsigned char bytes[64];
    };
    std::size_t m_stride;
    std::vector<Block> m_blocks;
};

std::vector<Plane> samplePlanes(const RowExpectation& layout, const QByteArray& frame)
{
    const int widths[] = {kWidth, layout.pairs ? kWidth / 2 : kWidth, layout.pairs ? kWidth / 2 : kWidth};
    const int places[] = {layout.y, layout.cb, layout.cr};
    std::vector<Plane> planes;
    for (int i = 0; i < 3; ++i) {
        planes.emplace_back(widths[i], layout.type == kSample8 ? 1 : 2);
        for (int y = 0; y < kHeight; ++y) {
            const char* const row = frame.constData() + frame.size() / kHeight * y;
            for (int x = 0; x < widths[i]; ++x) {
                const float code = layout.sample(row, layout.index(x * kWidth / widths[i], places[i]));
                if (layout.type == kSample8)
                    planes.back().row<std::uint8_t>(y)[x] = static_cast<std::uint8_t>(code);
                else
                    planes.back().row<std::uint16_t>(y)[x] = static_cast<std::uint16_t>(code);
            }
        }
    }
    return planes;
}

/// Red, green and blue as zimg has them; empty when it reports an error.
std::vector<Plane> decodedByZimg(const RowExpectation& layout, std::vector<Plane> samples, YCbCrMatrix matrix)
{
    zimg_image_format from, to;
    zimg_image_format_default(&from, ZIMG_API_VERSION);
    zimg_image_format_default(&to, ZIMG_API_VERSION);
    from.width = to.width = kWidth;
    from.height = to.height = kHeight;
    from.pixel_type = layout.type == kSample8 ? ZIMG_PIXEL_BYTE : ZIMG_PIXEL_WORD;
    from.depth = layout.type == kSample8 ? 8 : layout.type == kSample10 ? 10 : 16;
    from.subsample_w = layout.pairs ? 1 : 0;
    from.color_family = ZIMG_COLOR_YUV;
    from.matrix_coefficients = matrix == kRec709 ? ZIMG_MATRIX_BT709 : ZIMG_MATRIX_ST170_M;
    from.pixel_range = ZIMG_RANGE_LIMITED;
    // Midway between the two pixels, so that the nearest chroma is the one of the pair.
    from.chroma_location = ZIMG_CHROMA_CENTER;
    to.pixel_type = ZIMG_PIXEL_FLOAT;
    to.color_family = ZIMG_COLOR_RGB;
    to.matrix_coefficients = ZIMG_MATRIX_RGB;
    zimg_graph_builder_params parameters;
    zimg_graph_builder_params_default(&parameters, ZIMG_API_VERSION);
    parameters.resample_filter_uv = ZIMG_RESIZE_POINT;

    zimg_image_buffer_const source = {ZIMG_API_VERSION, {}};
    zimg_image_buffer destination = {ZIMG_API_VERSION, {}};
    std::vector<Plane> rgb(3, Plane(kWidth, sizeof(float)));
    for (std::size_t i = 0; i < 3; ++i) {
        source.plane[i] = {samples[i].row<void>(0), samples[i].stride(), ZIMG_BUFFER_MAX};
        destination.plane[i] = {rgb[i].row<void>(0), rgb[i].stride(), ZIMG_BUFFER_MAX};
    }
    zimg_filter_graph* const graph = zimg_filter_graph_build(&from, &to, &parameters);
    std::size_t size = 0;
    bool done = graph && zimg_filter_graph_get_tmp_size(graph, &size) == ZIMG_ERROR_SUCCESS;
    Plane scratch(static_cast<int>(size / kHeight + 1), 1);
    done = done && zimg_filter_graph_process(graph, &source, &destination, scratch.row<void>(0), nullptr,
                                             nullptr, nullptr, nullptr) == ZIMG_ERROR_SUCCESS;
    zimg_filter_graph_free(graph);
    return done ? rgb : std::vector<Plane>();
}

} // namespace

void tst_VideoFrames::framesAgree_data()
{
    QTest::addColumn<QByteArray>("source");
    QTest::addColumn<QByteArray>("format");
    QTest::addColumn<int>("layout");
    QTest::addColumn<int>("matrix");
    const QByteArray formats[] = {"-pix_fmt uyvy422", "-codec v210", "-pix_fmt ayuv64le"};
    const int layouts[] = {0, 6, 8};
    for (const QByteArray source : {"smptehdbars", "testsrc2"}) {
        for (int i = 0; i < 3; ++i) {
            for (const YCbCrMatrix matrix : {kRec709, kRec601}) {
                const QByteArray name =
                    source + ", " + formats[i].mid(formats[i].indexOf(' ') + 1) + ", " + matrixName(matrix);
                QTest::newRow(name.constData()) << source << formats[i] << layouts[i] << int(matrix);
            }
        }
    }
}

void tst_VideoFrames::framesAgree()
{
    QFETCH(QByteArray, source);
    QFETCH(QByteArray, format);
    QFETCH(int, layout);
    QFETCH(int, matrix);
    if (outputOf("command -v ffmpeg").isEmpty())
        NORVANE_SKIP("needs the program ffmpeg");
    const QByteArray size = QByteArray::number(kWidth) + 'x' + QByteArray::number(kHeight);
    const QByteArray frame = outputOf("ffmpeg -v error -f lavfi -i " + source + "=size=" + size +
                                      " -frames:v 1 " + format + " -f rawvideo -");
    QVERIFY(!frame.isEmpty() && frame.size() % kHeight == 0);

    const RowExpectation& expectation = kExpectations[layout];
    const RowLayout& converter = rowLayouts()[static_cast<std::size_t>(layout)];
    const YCbCrMatrix asked = static_cast<YCbCrMatrix>(matrix);
    std::vector<Plane> expected = decodedByZimg(expectation, samplePlanes(expectation, frame), asked);
    QVERIFY(!expected.empty());
    std::vector<float> rgba(4 * kWidth);
    float least = 1, most = 0;
    int wrong = 0;
    for (int y = 0; y < kHeight; ++y) {
        const char* const row = frame.constData() + frame.size() / kHeight * y;
        const int count = converter.countsBytes ? static_cast<int>(converter.bytes(kWidth)) : kWidth;
        converter.decode(row, &rgba[3], &rgba[0], &rgba[1], &rgba[2], 4, count, inverseCoefficients(asked));
        for (int i = 0; i < kWidth * 4; ++i) {
            const float value = rgba[static_cast<std::size_t>(i)];
            const float other =
                i % 4 < 3 ? expected[static_cast<std::size_t>(i % 4)].row<float>(y)[i / 4] : 1;
            least = std::min(least, value);
            most = std::max(most, value);
            wrong += std::fabs(value - other) <= 1e-6f ? 0 : 1;
        }
    }
    QCOMPARE(wrong, 0);
    QVERIFY2(least < 0.01f && most > 0.7f, "the frame is no test picture");
}

QTEST_APPLESS_MAIN(tst_VideoFrames)
#include "tst_VideoFrames.moc"

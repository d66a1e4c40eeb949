#include <colour/SampleRange.h>
#include <colour/YCbCrMatrix.h>

#include <tests/colour/Floats.h>

#include <QtTest>

using namespace Norvane::Colour;
using namespace NorvaneTest;

class tst_YCbCrMatrix : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void unknownMatrixIsRec709_data();
    void unknownMatrixIsRec709();
    void matricesAreInverse_data();
    void matricesAreInverse();
    void legacyMatricesAsTheyAre_data();
    void legacyMatricesAsTheyAre();
    void legalRangeOfSamples_data();
    void legalRangeOfSamples();
};

typedef QList<float> Floats;
Q_DECLARE_METATYPE(Floats)

void tst_YCbCrMatrix::unknownMatrixIsRec709_data()
{
    QTest::addColumn<int>("matrix");
    QTest::addColumn<QByteArray>("name");
    QTest::newRow("0") << 0 << QByteArray("Rec 709");
    QTest::newRow("1") << 1 << QByteArray("Rec 601");
    QTest::newRow("2") << 2 << QByteArray("Mosk Legacy");
    QTest::newRow("3") << 3 << QByteArray("Mosk Legacy MPEG");
    QTest::newRow("4") << 4 << QByteArray("Mosk Legacy YUVS");
    for (const int unknown : {5, -1})
        QTest::newRow(QByteArray::number(unknown).constData()) << unknown << QByteArray("Rec 709");
}

void tst_YCbCrMatrix::unknownMatrixIsRec709()
{
    QFETCH(int, matrix);
    QFETCH(QByteArray, name);
    const YCbCrMatrix asked = static_cast<YCbCrMatrix>(matrix);
    QCOMPARE(QByteArray(matrixName(asked)), name);
    const bool isRec709 = name == "Rec 709";
    QCOMPARE(&inverseCoefficients(asked) == &inverseCoefficients(), isRec709);
    QCOMPARE(&forwardMatrix(asked) == &forwardMatrix(), isRec709);
    QCOMPARE(QByteArray(matrixName()), QByteArray("Rec 709"));
}

void tst_YCbCrMatrix::matricesAreInverse_data()
{
    QTest::addColumn<int>("matrix");
    QTest::addColumn<double>("weightOfRed");
    QTest::addColumn<double>("weightOfBlue");
    QTest::newRow("Rec 709") << int(kRec709) << 0.2126 << 0.0722;
    QTest::newRow("Rec 601") << int(kRec601) << 0.299 << 0.114;
}

// Both directions follow from the weights of red and blue.
void tst_YCbCrMatrix::matricesAreInverse()
{
    QFETCH(int, matrix);
    QFETCH(double, weightOfRed);
    QFETCH(double, weightOfBlue);
    const double r = weightOfRed, b = weightOfBlue, g = 1 - r - b;
    const double forward[] = {
        r, g, b, -r / (2 - 2 * b), -g / (2 - 2 * b), 0.5, 0.5, -g / (2 - 2 * r), -b / (2 - 2 * r)};
    const double inverse[] = {2 - 2 * r, -(2 - 2 * r) * r / g, -(2 - 2 * b) * b / g, 2 - 2 * b};
    const float* const m = forwardMatrix(static_cast<YCbCrMatrix>(matrix)).m;
    const float* const c = inverseCoefficients(static_cast<YCbCrMatrix>(matrix)).c;
    for (int i = 0; i < 9; ++i)
        QVERIFY2(std::fabs(m[i] - forward[i]) < 1e-7, qPrintable(told(i, m[i], forward[i])));
    for (int i = 0; i < 4; ++i)
        QVERIFY2(std::fabs(c[i] - inverse[i]) < 1e-7, qPrintable(told(i, c[i], inverse[i])));
    // 1 - 0.299 - 0.114 in single precision is not 0.587.
    QVERIFY(matrix != kRec601 || m[1] == 1 - 0.299f - 0.114f);
}

void tst_YCbCrMatrix::legacyMatricesAsTheyAre_data()
{
    QTest::addColumn<int>("matrix");
    QTest::addColumn<Floats>("inverse");
    QTest::addColumn<Floats>("forward");
    QTest::newRow("Mosk Legacy") << int(kMoskLegacy) << Floats{1.5966f, -0.813202f, -0.391998f, 2.0184f}
                                 << Floats{0.29898438f, 0.5870109f,  0.11400471f, -0.14812939f, -0.29082984f,
                                           0.4389592f,  0.43906778f, -0.3676631f, -0.07140467f};
    QTest::newRow("Mosk Legacy MPEG")
        << int(kMoskLegacyMPEG) << Floats{1.5883f, -0.813202f, -0.391998f, 2.0457f}
        << Floats{0.30053446f, 0.58698684f, 0.11247869f,  -0.14691032f, -0.2869369f,
                  0.43384725f, 0.4403863f,  -0.36956927f, -0.07081703f};
    QTest::newRow("Mosk Legacy YUVS")
        << int(kMoskLegacyYUVS) << Floats{1.596f, -0.81511f, -0.37294f, 2.0472f}
        << Floats{0.30168536f, 0.59070534f, 0.10760925f,  -0.14736488f, -0.28854308f,
                  0.43590793f, 0.4375405f,  -0.37011614f, -0.06742434f};
}

void tst_YCbCrMatrix::legacyMatricesAsTheyAre()
{
    QFETCH(int, matrix);
    QFETCH(Floats, inverse);
    QFETCH(Floats, forward);
    const float* const m = forwardMatrix(static_cast<YCbCrMatrix>(matrix)).m;
    const float* const c = inverseCoefficients(static_cast<YCbCrMatrix>(matrix)).c;
    QVERIFY(std::equal(inverse.begin(), inverse.end(), c));
    QVERIFY(std::equal(forward.begin(), forward.end(), m));
}

void tst_YCbCrMatrix::legalRangeOfSamples_data()
{
    QTest::addColumn<int>("range");
    QTest::addColumn<Floats>("legal");
    QTest::newRow("16 bits") << 0 << Floats{4096, 56064, 4096, 57344};
    QTest::newRow("8 in 16 bits") << 1 << Floats{4080, 55845, 4080, 57120};
    QTest::newRow("10 bits") << 2 << Floats{64, 876, 64, 896};
    QTest::newRow("8 bits") << 3 << Floats{16, 219, 16, 224};
    QTest::newRow("full") << 4 << Floats{0, 255, 0, 255};
    QTest::newRow("no offset, normalised") << 5 << Floats{0, 219 / 255.0f, 16 / 255.0f, 224 / 255.0f};
    QTest::newRow("no offset") << 6 << Floats{0, 219, 16, 224};
    for (const int unknown : {7, -1})
        QTest::newRow(QByteArray::number(unknown).constData()) << unknown << Floats{0, 0, 0, 0};
}

void tst_YCbCrMatrix::legalRangeOfSamples()
{
    QFETCH(int, range);
    QFETCH(Floats, legal);
    float out[4] = {9, 9, 9, 9};
    legalRange(static_cast<SampleRange>(range), out);
    for (int i = 0; i < 4; ++i)
        QCOMPARE(out[i], legal[i]);
}

QTEST_APPLESS_MAIN(tst_YCbCrMatrix)
#include "tst_YCbCrMatrix.moc"

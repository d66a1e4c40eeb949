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
    void weightsAreThoseOfTheStandards();
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
    QTest::addColumn<double>("tolerance");
    QTest::newRow("Rec 709") << int(kRec709) << 1e-6;
    QTest::newRow("Rec 601") << int(kRec601) << 1e-6;
    // Their inverses are given with fewer digits.
    for (const YCbCrMatrix legacy : {kMoskLegacy, kMoskLegacyMPEG, kMoskLegacyYUVS})
        QTest::newRow(matrixName(legacy)) << int(legacy) << 1e-4;
}

void tst_YCbCrMatrix::matricesAreInverse()
{
    QFETCH(int, matrix);
    QFETCH(double, tolerance);
    const float* const m = forwardMatrix(static_cast<YCbCrMatrix>(matrix)).m;
    const float* const c = inverseCoefficients(static_cast<YCbCrMatrix>(matrix)).c;
    for (int primary = 0; primary < 3; ++primary) {
        const float y = m[primary], cb = m[3 + primary], cr = m[6 + primary];
        const float rgb[] = {y + c[0] * cr, y + c[1] * cr + c[2] * cb, y + c[3] * cb};
        for (int i = 0; i < 3; ++i)
            QVERIFY2(std::fabs(rgb[i] - (i == primary)) < tolerance, qPrintable(told(primary, i, rgb[i])));
    }
}

// The standards give the weights of red and blue; the rest follows from them and the range of chroma.
void tst_YCbCrMatrix::weightsAreThoseOfTheStandards()
{
    const struct {
        YCbCrMatrix matrix;
        float red, blue;
    } standards[] = {{kRec709, 0.2126f, 0.0722f}, {kRec601, 0.299f, 0.114f}};
    for (const auto& standard : standards) {
        const float* const m = forwardMatrix(standard.matrix).m;
        QCOMPARE(m[0], standard.red);
        QCOMPARE(m[2], standard.blue);
        QCOMPARE(m[5], 0.5f);
        QCOMPARE(m[6], 0.5f);
    }
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

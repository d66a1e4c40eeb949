#include <colour/YCbCrRows.h>

#include <tests/colour/RowChecks.h>
#include <tests/colour/RowExpectation.h>

#include <QtTest>

using namespace Norvane::Colour;
using namespace NorvaneTest;

/// Every layout in every arrangement of planes and at every length, beside forbidden pages.
class tst_YCbCrRows : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void tableNamesLayouts();
    void rowIsConverted_data();
    void rowIsConverted();
};

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

void tst_YCbCrRows::rowIsConverted_data()
{
    QTest::addColumn<int>("layout");
    QTest::addColumn<int>("arrangement");
    for (int layout = 0; layout < 11; ++layout) {
        for (std::size_t i = 0; i < sizeof kArrangements / sizeof *kArrangements; ++i) {
            const QByteArray name = QByteArray(kExpectations[layout].name) + ", " + kArrangements[i].name;
            QTest::newRow(name.constData()) << layout << static_cast<int>(i);
        }
    }
}

void tst_YCbCrRows::rowIsConverted()
{
    QFETCH(int, layout);
    QFETCH(int, arrangement);
    const std::size_t number = static_cast<std::size_t>(layout);
    const Arrangement& planes = kArrangements[arrangement];
    QCOMPARE(writeLengths(number, planes), QByteArray());
    for (const bool unpack : {false, true})
        QCOMPARE(readLengths(number, planes, unpack), QByteArray());
}

QTEST_APPLESS_MAIN(tst_YCbCrRows)
#include "tst_YCbCrRows.moc"

#include <colour/rows/VectorRows.h>
#include <colour/rows/VectorTargets.h>

#include <tests/colour/RowChecks.h>
#include <tests/colour/RowExpectation.h>

#include <hwy/targets.h>

#include <QtTest>

#include <set>

using namespace Norvane::Colour;
using namespace Norvane::Colour::Rows;
using namespace NorvaneTest;

/// The rows of every instruction set that this processor has.
class tst_YCbCrRowTargets : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void targetsDiffer();
    void rowIsConverted_data();
    void rowIsConverted();
    void cleanupTestCase();
};

namespace {

/// The instruction set that rows use from now on; 0 for the processor's best.
void choose(std::int64_t target)
{
    hwy::SetSupportedTargetsForTest(target);
    hwy::GetChosenTarget().Update(hwy::SupportedTargets());
}

/// Whether vectors take all of a long row but what is left behind the last of them.
template <class... Layouts>
bool takeWholeRows(const Table<DecodeFunctions, Layouts...>& decode, const EncodeTable& encode)
{
    const std::size_t pixels = 1000;
    std::vector<float> plane(pixels);
    std::vector<std::uint32_t> row(pixels * 4);
    float* const p = plane.data();
    const std::size_t least =
        std::min({static_cast<const DecodeFunctions<Layouts>&>(decode).decode(
                      reinterpret_cast<typename Layouts::Sample*>(row.data()), {p, p, p, p, 1}, pixels,
                      inverseCoefficients())...,
                  static_cast<const DecodeFunctions<Layouts>&>(decode).unpack(
                      reinterpret_cast<typename Layouts::Sample*>(row.data()), {p, p, p, p, 1}, pixels)...,
                  static_cast<const EncodeFunctions<Layouts>&>(encode).encode(
                      {p, p, p, p, 1}, reinterpret_cast<typename Layouts::Sample*>(row.data()), pixels,
                      forwardMatrix())...});
    return least >= pixels - 100;
}

} // namespace

// Otherwise a target that is tested might be another one, or none at all.
void tst_YCbCrRowTargets::targetsDiffer()
{
    std::set<const void*> tables;
    choose(0);
    const std::vector<std::int64_t> targets = hwy::SupportedAndGeneratedTargets();
    for (const std::int64_t target : targets) {
        choose(target);
        tables.insert(decodeTable());
        tables.insert(encodeTable());
        QCOMPARE(decodeTable() == nullptr, target == HWY_EMU128 || target == HWY_SCALAR);
        QVERIFY(!decodeTable() || takeWholeRows(*decodeTable(), *encodeTable()));
    }
    QVERIFY(tables.size() >= 2 * targets.size() - 1);
}

void tst_YCbCrRowTargets::rowIsConverted_data()
{
    QTest::addColumn<qint64>("target");
    QTest::addColumn<int>("layout");
    choose(0);
    for (const std::int64_t target : hwy::SupportedAndGeneratedTargets()) {
        for (int i = 0; i < 11; ++i) {
            const QByteArray name = QByteArray(hwy::TargetName(target)) + ", " + kExpectations[i].name;
            QTest::newRow(name.constData()) << qint64(target) << i;
        }
    }
}

void tst_YCbCrRowTargets::rowIsConverted()
{
    QFETCH(qint64, target);
    QFETCH(int, layout);
    choose(target);
    const std::size_t number = static_cast<std::size_t>(layout);
    QCOMPARE(writeValues(number, kArrangements[0]), QByteArray());
    for (const bool unpack : {false, true})
        QCOMPARE(readCodes(number, kArrangements[0], unpack), QByteArray());
    // The first three are those that vectors read and write.
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(writeLengths(number, kArrangements[i]), QByteArray());
        for (const bool unpack : {false, true})
            QCOMPARE(readLengths(number, kArrangements[i], unpack), QByteArray());
    }
}

void tst_YCbCrRowTargets::cleanupTestCase()
{
    choose(0);
}

QTEST_APPLESS_MAIN(tst_YCbCrRowTargets)
#include "tst_YCbCrRowTargets.moc"

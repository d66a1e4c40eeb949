#include <examples/host/FrameDialog.h>
#include <examples/host/FrameSaveDialog.h>

#include <ui/widgets/FilenameField.h>

#include <tests/support/MessageBoxCloser.h>

#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTemporaryFile>
#include <QtTest>

using namespace Norvane;
using namespace Norvane::Host;

class tst_FrameDialog : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void fileSuggestsItsFormat_data();
    void fileSuggestsItsFormat();
    void problemIsToldUntilItIsMended();
    void savedFileHasTheSuffixOfItsLayout();
    void otherFilesAreNotReplacedUnasked();
};

namespace {

/// A file of \a bytes in all.
class EmptyFrame
{
public:
    EmptyFrame(const QString& suffix, int bytes)
        : m_file(QDir::temp().filePath(QLatin1String("tst_FrameDialog-XXXXXX.") + suffix))
    {
        m_file.open();
        m_file.resize(bytes);
    }
    QString path() const { return m_file.fileName(); }

private:
    QTemporaryFile m_file;
};

} // namespace

void tst_FrameDialog::fileSuggestsItsFormat_data()
{
    QTest::addColumn<QString>("suffix");
    QTest::addColumn<int>("bytes");
    QTest::addColumn<QString>("format");
    QTest::newRow("layout's name, padded rows") << "v210" << 3456 * 720 << "V210:1280x720:Rec 709";
    QTest::newRow("rows without padding") << "V210" << 3424 * 720 << "V210:1280x720:Rec 709";
    QTest::newRow("known suffix") << "uyvy" << 720 * 576 * 2 << "CbYCrY8:720x576:Rec 601";
    QTest::newRow("only the size is known") << "raw" << 1920 * 1080 * 2 << "CbYCrY8:1920x1080:Rec 709";
    QTest::newRow("only the suffix is known") << "aycbcr16" << 8 << "AYCbCr16:1920x1080:Rec 709";
}

void tst_FrameDialog::fileSuggestsItsFormat()
{
    QFETCH(QString, suffix);
    QFETCH(int, bytes);
    const EmptyFrame file(suffix, bytes);
    FrameDialog dialog(QString(), nullptr);
    dialog.findChild<UI::FilenameField*>()->setFilename(file.path());
    QTEST(dialog.address().format, "format");
    QCOMPARE(dialog.address().path, file.path());
}

void tst_FrameDialog::problemIsToldUntilItIsMended()
{
    const EmptyFrame file(QLatin1String("uyvy"), 64);
    FrameDialog dialog(QString(), nullptr);
    QPushButton* const open = dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Open);
    QCOMPARE(open->toolTip(), QString::fromLatin1("Choose a file."));
    dialog.findChild<UI::FilenameField*>()->setFilename(file.path());
    QVERIFY(!open->isEnabled());
    QVERIFY(
        open->toolTip().startsWith(QLatin1String("The file has 64 bytes; a frame of 1920 x 1080 pixels")));
    const QList<QSpinBox*> sides = dialog.findChildren<QSpinBox*>();
    sides[0]->setValue(8);
    sides[1]->setValue(4);
    QVERIFY(open->isEnabled());
    QCOMPARE(open->toolTip(), QString());
    // Another layout, another size; the matrix is the user's choice from now on.
    QComboBox* const layout = dialog.findChildren<QComboBox*>()[0];
    QComboBox* const matrix = dialog.findChildren<QComboBox*>()[1];
    QTest::keyClicks(layout, QLatin1String("AYCbCr8"));
    QVERIFY(!open->isEnabled());
    sides[1]->setValue(2);
    QVERIFY(open->isEnabled());
    matrix->setCurrentIndex(1);
    QCOMPARE(dialog.address().format, QString::fromLatin1("AYCbCr8:8x2:Rec 709"));
}

void tst_FrameDialog::savedFileHasTheSuffixOfItsLayout()
{
    FrameSaveDialog dialog(QDir::tempPath(), &frameLayouts()[6], nullptr);
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.selectFile(QLatin1String("frame"));
    QCOMPARE(QFileInfo(dialog.selectedFiles().first()).fileName(), QString::fromLatin1("frame.v210"));
    dialog.show();
    QTest::keyClicks(dialog.findChild<QComboBox*>(QLatin1String("fileTypeCombo")), QLatin1String("AYCbCr16"));
    QCOMPARE(dialog.frameLayout().name(), QString::fromLatin1("AYCbCr16"));
    dialog.selectFile(QLatin1String("frame"));
    QCOMPARE(QFileInfo(dialog.selectedFiles().first()).fileName(), QString::fromLatin1("frame.aycbcr16"));
}

void tst_FrameDialog::otherFilesAreNotReplacedUnasked()
{
    const EmptyFrame file(QLatin1String("v210"), 1);
    const QFileInfo info(file.path());
    FrameSaveDialog dialog(info.path(), &frameLayouts()[6], nullptr);
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.show();
    // Its suffix is added.
    dialog.findChild<QLineEdit*>(QLatin1String("fileNameEdit"))->setText(info.completeBaseName());
    NorvaneTest::MessageBoxCloser boxes;
    QMetaObject::invokeMethod(&dialog, "accept");
    QCOMPARE(boxes.count(), 1);
    QVERIFY(boxes.lastText().contains(info.fileName()));
    QVERIFY(dialog.isVisible());
}

QTEST_MAIN(tst_FrameDialog)
#include "tst_FrameDialog.moc"

#include <examples/host/CommandLine.h>
#include <examples/host/FrameDialog.h>
#include <examples/host/FrameInspector.h>
#include <examples/host/FrameSaveDialog.h>
#include <examples/host/Pictures.h>
#include <examples/host/PictureView.h>
#include <examples/host/VideoFrames.h>
#include <examples/host/ViewerPanel.h>

#include <tests/support/Desk.h>
#include <tests/support/MessageBoxCloser.h>

#include <ui/widgets/FilenameField.h>

#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTemporaryFile>

using namespace NorvaneTest;
using namespace Norvane;
using namespace Norvane::Host;

class tst_HostFrames : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void wrongFramesAreExplained_data();
    void wrongFramesAreExplained();
    void writtenFramesAreRead_data();
    void writtenFramesAreRead();
    void frameOfAnotherProgramLooksRight_data();
    void frameOfAnotherProgramLooksRight();
    void chosenMatrixIsUsed();
    void fileSuggestsItsFormat();
    void problemIsToldUntilItIsMended();
    void savedFileHasTheSuffixOfItsLayout();
};

namespace {

/// A file that is gone with the object.
class FrameFile
{
public:
    explicit FrameFile(const QByteArray& bytes, const QString& suffix = QString())
        : m_file(QDir::temp().filePath(latin1("tst_HostFrames-XXXXXX.") + suffix))
    {
        m_file.open();
        m_file.write(bytes);
        m_file.flush();
    }
    QString path() const { return m_file.fileName(); }
    FrameAddress as(const QString& format) const
    {
        return FrameAddress::fromString(latin1("frame:%1|%2").arg(format, path()));
    }

private:
    QTemporaryFile m_file;
};

/// One frame of ffmpeg's test pattern \a source, made with \a options; empty if that fails.
QByteArray ffmpegFrame(const QByteArray& source, const QByteArray& options)
{
    const QByteArray arguments =
        "-v error -f lavfi -i " + source + "=size=1270x720 -vf " + options + " -frames:v 1 -f rawvideo -";
    QProcess ffmpeg;
    ffmpeg.start(latin1("ffmpeg"), QString::fromLatin1(arguments).split(QLatin1Char(' ')));
    return ffmpeg.waitForFinished() && ffmpeg.exitCode() == 0 ? ffmpeg.readAllStandardOutput() : QByteArray();
}

int difference(QRgb one, QRgb other)
{
    return qMax(qAbs(qRed(one) - qRed(other)),
                qMax(qAbs(qGreen(one) - qGreen(other)), qAbs(qBlue(one) - qBlue(other))));
}

} // namespace

void tst_HostFrames::wrongFramesAreExplained_data()
{
    QTest::addColumn<QString>("problem");
    QTest::newRow("v410:4x2") << "There is no layout \"v410\"";
    for (const char* const format : {"v210", "v210:4xlots", "v210:-4x-2"})
        QTest::newRow(format) << "such as v210:1920x1080";
    QTest::newRow("AYCbCrF:32767x32767") << "The file has 16 bytes";
    QTest::newRow("CbYCrY8:4x3") << "The file has 16 bytes; a frame of 4 x 3 pixels";
    QTest::newRow("CbYCrY8:2x2") << "in CbYCrY8 has 8";
    QTest::newRow("AYCbCr8In16:2x1") << "can be written, but not read";
    QTest::newRow("CbYCrY8:4x2:Rec 7") << "no matrix \"Rec 7\"";
    QTest::newRow("cbycry8:4x2:rec 601") << "";
}

void tst_HostFrames::wrongFramesAreExplained()
{
    QFETCH(QString, problem);
    const FrameFile file(QByteArray(16, '\x80'));
    const CommandLine line = CommandLine::parse(QStringList() << latin1("host") << latin1("--frame")
                                                              << latin1(QTest::currentDataTag())
                                                              << file.path() << latin1("other.png"));
    QCOMPARE(int(line.pictures.size()), 2);
    QCOMPARE(Pictures::nameOf(line.pictures[0]), QFileInfo(file.path()).fileName());
    QString told;
    const QImage picture = Pictures::read(Pictures::canonicalPath(line.pictures[0]), QSize(), &told);
    QCOMPARE(picture.isNull(), !problem.isEmpty());
    QVERIFY2(told.contains(problem), qPrintable(told));
}

void tst_HostFrames::writtenFramesAreRead_data()
{
    QTest::addColumn<int>("layout");
    for (int i = 0; i < frameLayouts().size(); ++i)
        QTest::newRow(frameLayouts()[i].rows.name) << i;
}

void tst_HostFrames::writtenFramesAreRead()
{
    QFETCH(int, layout);
    // Pairs of the same colour, which halved chroma keeps.
    QImage picture(14, 3, QImage::Format_RGB32);
    for (int i = 0; i < 14 * 3; ++i)
        picture.setPixel(i % 14, i / 14, qRgb(i % 14 / 2 * 40, 250 - i / 14 * 100, 90));
    const FrameFile file("what was there before, and more of it than the frame has");
    FrameFormat format;
    format.layout = &frameLayouts()[layout];
    format.matrix = format.layout->usualMatrix(3);
    QString problem;
    QVERIFY2(VideoFrames::write(picture, format, file.path(), &problem), qPrintable(problem));
    format.width = 14;
    format.height = 3;
    if (!format.layout->hasDecoder()) {
        QCOMPARE(QFileInfo(file.path()).size(), qint64(14 * 3 * 8));
        return;
    }
    const QImage read = VideoFrames::read(file.as(format.toString()), &problem);
    QVERIFY2(!read.isNull(), qPrintable(problem));
    for (int i = 0; i < 14 * 3; ++i)
        QVERIFY(difference(read.pixel(i % 14, i / 14), picture.pixel(i % 14, i / 14)) <= 3);
    QVERIFY(!VideoFrames::write(picture, format, latin1("/no/such/folder/frame"), &problem));
    const FrameFile former("former");
    QVERIFY(
        !VideoFrames::write(picture, format, former.path(), &problem, [](qint64, qint64) { return false; }));
    QCOMPARE(int(QFileInfo(former.path()).size()), 6);
}

void tst_HostFrames::frameOfAnotherProgramLooksRight_data()
{
    QTest::addColumn<QByteArray>("source");
    QTest::addColumn<QByteArray>("coding");
    QTest::addColumn<QString>("layout");
    for (const char* const source : {"smptehdbars", "testsrc2"}) {
        const auto row = [source](const char* layout, const char* coding) {
            QTest::newRow((QByteArray(source) + ", " + layout).constData())
                << QByteArray(source) << QByteArray(coding) << latin1(layout);
        };
        row("v210", "bt709,format=yuv422p10 -c:v v210");
        row("CbYCrY8", "bt709,format=uyvy422");
        // Whose usual matrix is one for Rec 601.
        row("YCbYCr8", "bt601,format=yuyv422");
    }
}

// 1270 pixels are neither whole groups of v210 nor is a row of them without padding.
void tst_HostFrames::frameOfAnotherProgramLooksRight()
{
    QFETCH(QByteArray, source);
    QFETCH(QByteArray, coding);
    QFETCH(QString, layout);
    const FrameFile file(ffmpegFrame(source, "scale=1270:720:out_color_matrix=" + coding));
    const QByteArray rgb = ffmpegFrame(source, "format=rgb24");
    QString problem;
    const QImage picture = VideoFrames::read(file.as(layout + latin1(":1270x720")), &problem);
    QVERIFY2(!picture.isNull(), qPrintable(problem));
    QCOMPARE(int(rgb.size()), 1270 * 720 * 3);
    int same = 0;
    for (int i = 0; i < 1270 * 720; ++i) {
        const QRgb expected = qRgb(uchar(rgb[3 * i]), uchar(rgb[3 * i + 1]), uchar(rgb[3 * i + 2]));
        same += difference(picture.pixel(i % 1270, i / 1270), expected) <= 6;
    }
    // Halved chroma is another one at the edges of coloured areas.
    QVERIFY2(same > 1270 * 720 * 9 / 10, qPrintable(QString::number(same)));
}

void tst_HostFrames::chosenMatrixIsUsed()
{
    // Red in Rec 709.
    const FrameFile file(QByteArray("\x66\x3f\xf0\x3f", 4));
    ViewerPanel viewer(1);
    viewer.openPicture(file.as(latin1("CbYCrY8:2x1:Rec 709")).toString());
    viewer.show();
    WAIT_FOR(!viewer.picture().isNull());
    QVERIFY(difference(viewer.picture().pixel(0, 0), qRgb(255, 0, 0)) <= 1);
    const Facts facts = VideoFrames::rangeFacts(FrameAddress::fromString(viewer.picturePath()));
    QCOMPARE(facts[1].second, latin1("16 to 235"));
    QCOMPARE(facts[2].second, latin1("63 to 63"));
    FrameInspector inspector(nullptr);
    inspector.setPicture(viewer.picturePath());
    QSignalSpy changed(&inspector, SIGNAL(frameChanged(QString, QString)));
    QComboBox* const matrix = inspector.findChild<QComboBox*>();
    QCOMPARE(matrix->currentText(), latin1("Rec 709"));
    matrix->setFocus();
    QTest::keyClick(matrix, Qt::Key_Down);
    QCOMPARE(int(changed.size()), 1);
    QCOMPARE(changed[0][0].toString(), viewer.picturePath());
    viewer.view()->zoomTo(4);
    viewer.replacePicture(changed[0][1].toString());
    WAIT_FOR(!viewer.picture().isNull());
    QVERIFY(difference(viewer.picture().pixel(0, 0), qRgb(255, 0, 0)) > 10);
    QCOMPARE(viewer.view()->zoom(), 4.0);
    inspector.setPicture(latin1("/some/picture.png"));
    QVERIFY(!inspector.isShownWhenDisclosed());
}

void tst_HostFrames::fileSuggestsItsFormat()
{
    const auto formatOf = [](const char* suffix, int bytes) {
        const FrameFile file(QByteArray(bytes, 0), latin1(suffix));
        FrameDialog dialog(QString(), nullptr);
        dialog.findChild<UI::FilenameField*>()->setFilename(file.path());
        return dialog.address().path == file.path() ? dialog.address().format : QString();
    };
    // With padded rows.
    QCOMPARE(formatOf("v210", 3456 * 720), latin1("V210:1280x720:Rec 709"));
    QCOMPARE(formatOf("uyvy", 720 * 576 * 2), latin1("CbYCrY8:720x576:Rec 601"));
    QCOMPARE(formatOf("raw", 1920 * 1080 * 2), latin1("CbYCrY8:1920x1080:Rec 709"));
    QCOMPARE(formatOf("aycbcr16", 8), latin1("AYCbCr16:1920x1080:Rec 709"));
}

void tst_HostFrames::problemIsToldUntilItIsMended()
{
    const FrameFile file(QByteArray(64, 0), latin1("uyvy"));
    FrameDialog dialog(QString(), nullptr);
    QPushButton* const open = dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Open);
    QCOMPARE(open->toolTip(), latin1("Choose a file."));
    dialog.findChild<UI::FilenameField*>()->setFilename(file.path());
    QVERIFY(!open->isEnabled() && open->toolTip().startsWith(latin1("The file has 64 bytes")));
    const QList<QSpinBox*> sides = dialog.findChildren<QSpinBox*>();
    sides[0]->setValue(8);
    sides[1]->setValue(4);
    QVERIFY(open->isEnabled() && open->toolTip().isEmpty());
    // Another layout, another size; the matrix is the user's choice from now on.
    QComboBox* const layout = dialog.findChildren<QComboBox*>()[0];
    QComboBox* const matrix = dialog.findChildren<QComboBox*>()[1];
    QTest::keyClicks(layout, latin1("AYCbCr8"));
    QVERIFY(!open->isEnabled());
    sides[1]->setValue(2);
    QVERIFY(open->isEnabled());
    matrix->setCurrentIndex(1);
    QCOMPARE(dialog.address().format, latin1("AYCbCr8:8x2:Rec 709"));
}

void tst_HostFrames::savedFileHasTheSuffixOfItsLayout()
{
    const FrameFile file("a", latin1("aycbcr16"));
    const QFileInfo info(file.path());
    FrameSaveDialog dialog(info.path(), &frameLayouts()[6], nullptr);
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.selectFile(info.completeBaseName());
    QCOMPARE(QFileInfo(dialog.selectedFiles().first()).fileName(), info.completeBaseName() + latin1(".v210"));
    dialog.show();
    QTest::keyClicks(dialog.findChild<QComboBox*>(latin1("fileTypeCombo")), latin1("AYCbCr16"));
    QCOMPARE(dialog.frameLayout().name(), latin1("AYCbCr16"));
    // Another file is not replaced unasked.
    dialog.findChild<QLineEdit*>(latin1("fileNameEdit"))->setText(info.completeBaseName());
    MessageBoxCloser boxes;
    QMetaObject::invokeMethod(&dialog, "accept");
    QCOMPARE(boxes.count(), 1);
    QVERIFY(boxes.lastText().contains(info.fileName()));
    QVERIFY(dialog.isVisible());
}

QTEST_MAIN(tst_HostFrames)
#include "tst_HostFrames.moc"

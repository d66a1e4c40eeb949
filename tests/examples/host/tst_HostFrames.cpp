#include <examples/host/CommandLine.h>
#include <examples/host/FrameInspector.h>
#include <examples/host/Pictures.h>
#include <examples/host/PictureView.h>
#include <examples/host/VideoFrames.h>
#include <examples/host/ViewerPanel.h>

#include <tests/support/Waiting.h>

#include <QComboBox>
#include <QDir>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryFile>

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
    void barsHaveTheirColours_data();
    void barsHaveTheirColours();
    void picturesAreThoseOfTheDecoder_data();
    void picturesAreThoseOfTheDecoder();
    void chosenMatrixIsUsed();
};

namespace {

QString latin1(const char* text)
{
    return QLatin1String(text);
}

/// A file that is gone with the object.
class FrameFile
{
public:
    explicit FrameFile(const QByteArray& bytes)
        : m_file(QDir::temp().filePath(latin1("tst_HostFrames-XXXXXX")))
    {
        m_file.open();
        m_file.write(bytes);
        m_file.flush();
    }
    QString path() const { return m_file.fileName(); }
    FrameAddress as(const QString& format) const
    {
        FrameAddress address;
        address.format = format;
        address.path = path();
        return address;
    }

private:
    QTemporaryFile m_file;
};

/// One frame of a source of ffmpeg's, through its filters; empty if that fails.
QByteArray ffmpegFrame(const char* source, const char* filters, const char* output)
{
    QProcess ffmpeg;
    ffmpeg.start(latin1("ffmpeg"), QStringList()
                                       << latin1("-v") << latin1("error") << latin1("-f") << latin1("lavfi")
                                       << latin1("-i") << latin1(source) << latin1("-vf") << latin1(filters)
                                       << latin1("-frames:v") << latin1("1")
                                       << latin1(output).split(QLatin1Char(' ')) << latin1("-"));
    return ffmpeg.waitForFinished() && ffmpeg.exitCode() == 0 ? ffmpeg.readAllStandardOutput() : QByteArray();
}

int difference(QRgb one, QRgb other)
{
    return qMax(qAbs(qRed(one) - qRed(other)),
                qMax(qAbs(qGreen(one) - qGreen(other)), qAbs(qBlue(one) - qBlue(other))));
}

void addFfmpegRows()
{
    // 1270 pixels are neither whole groups of v210 nor is a row of them without padding.
    QTest::addColumn<QByteArray>("filters");
    QTest::addColumn<QByteArray>("output");
    QTest::addColumn<QString>("format");
    const QByteArray in709 = "scale=1270:720:out_color_matrix=bt709,format=";
    const QByteArray in601 = "scale=1270:720:out_color_matrix=bt601,format=";
    QTest::newRow("v210") << in709 + "yuv422p10" << QByteArray("-c:v v210 -f rawvideo") << "v210:1270x720";
    QTest::newRow("uyvy422") << in709 + "uyvy422" << QByteArray("-f rawvideo") << "CbYCrY8:1270x720";
    QTest::newRow("uyvy422, Rec 601")
        << in601 + "uyvy422" << QByteArray("-f rawvideo") << "CbYCrY8:1270x720:Rec 601";
    QTest::newRow("yuyv422") << in601 + "yuyv422" << QByteArray("-f rawvideo") << "YCbYCr8:1270x720";
}

} // namespace

void tst_HostFrames::wrongFramesAreExplained_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QString>("problem");
    QTest::newRow("unknown layout") << "v410:4x2"
                                    << "There is no layout \"v410\"";
    QTest::newRow("no size") << "v210"
                             << "such as v210:1920x1080";
    QTest::newRow("no number") << "v210:4xlots"
                               << "such as v210:1920x1080";
    QTest::newRow("negative") << "v210:-4x-2"
                              << "such as v210:1920x1080";
    QTest::newRow("too large for memory") << "AYCbCrF:32767x32767"
                                          << "The file has 16 bytes";
    QTest::newRow("short file") << "CbYCrY8:4x3"
                                << "The file has 16 bytes; a frame of 4 x 3 pixels";
    QTest::newRow("long file") << "CbYCrY8:2x2"
                               << "in CbYCrY8 has 8";
    QTest::newRow("cannot be read") << "AYCbCr8In16:2x1"
                                    << "can be written, but not read";
    QTest::newRow("unknown matrix") << "CbYCrY8:4x2:Rec 7"
                                    << "no matrix \"Rec 7\"";
    QTest::newRow("right") << "cbycry8:4x2:rec 601"
                           << "";
}

void tst_HostFrames::wrongFramesAreExplained()
{
    QFETCH(QString, format);
    QFETCH(QString, problem);
    const FrameFile file(QByteArray(16, '\x80'));
    const CommandLine line = CommandLine::parse(QStringList() << latin1("host") << latin1("--frame") << format
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

void tst_HostFrames::barsHaveTheirColours_data()
{
    addFfmpegRows();
}

void tst_HostFrames::barsHaveTheirColours()
{
    QFETCH(QByteArray, filters);
    QFETCH(QByteArray, output);
    QFETCH(QString, format);
    // The bars are defined as Rec 709; over RGB, so that another matrix is really applied.
    const FrameFile file(ffmpegFrame("smptehdbars=size=1270x720",
                                     "scale=in_color_matrix=bt709,format=gbrp," + filters, output));
    QString problem;
    const QImage picture = VideoFrames::read(file.as(format), &problem);
    QVERIFY2(!picture.isNull(), qPrintable(problem));
    // Seven bars of 75 % between two of grey, each an eighth of the width.
    const QRgb bars[] = {qRgb(191, 191, 191), qRgb(191, 191, 0), qRgb(0, 191, 191), qRgb(0, 191, 0),
                         qRgb(191, 0, 191),   qRgb(191, 0, 0),   qRgb(0, 0, 191)};
    for (int i = 0; i < 7; ++i) {
        const QRgb pixel = picture.pixel(160 + 136 * i + 68, 200);
        QVERIFY2(difference(pixel, bars[i]) <= 4,
                 qPrintable(QString::fromLatin1("bar %1: %2").arg(i).arg(pixel, 0, 16)));
    }
    const Facts facts = VideoFrames::rangeFacts(file.as(format));
    QCOMPARE(facts[1].second, latin1(format.startsWith(latin1("v210")) ? "64 to 940" : "16 to 235"));
    QCOMPARE(facts[2].first, latin1("Luma here"));
    // The bars go from below black to white.
    QVERIFY(facts[2].second.section(QLatin1Char(' '), 0, 0).toInt() <=
            (format[0] == QLatin1Char('v') ? 64 : 16));
}

void tst_HostFrames::picturesAreThoseOfTheDecoder_data()
{
    addFfmpegRows();
}

void tst_HostFrames::picturesAreThoseOfTheDecoder()
{
    QFETCH(QByteArray, filters);
    QFETCH(QByteArray, output);
    QFETCH(QString, format);
    const char* const source = "testsrc2=size=1270x720";
    const FrameFile file(ffmpegFrame(source, filters, output));
    const QByteArray rgb = ffmpegFrame(source, "format=rgb24", "-f rawvideo");
    QString problem;
    const QImage picture = VideoFrames::read(file.as(format), &problem);
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

QTEST_MAIN(tst_HostFrames)
#include "tst_HostFrames.moc"

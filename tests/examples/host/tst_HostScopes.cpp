#include <examples/host/PictureView.h>
#include <examples/host/ScopesPanel.h>
#include <examples/host/ScopeView.h>
#include <examples/host/ViewerPanel.h>

#include <tests/support/Waiting.h>
#include <ui/toolkit/Painting.h>

using namespace Norvane;
using namespace Norvane::Host;

class tst_HostScopes : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void levelsAreThoseOfTheComponent();
    void waveformHasColumnsAndLevels();
    void scopesFollowTheGrade();
};

namespace {

/// The left half black, the right one in \a colour.
QImage halves(QRgb colour)
{
    QImage picture(8, 4, QImage::Format_RGB32);
    picture.fill(qRgb(0, 0, 0));
    for (int i = 0; i < 16; ++i)
        picture.setPixel(4 + i % 4, i / 4, colour);
    return picture;
}

/// The pixels of \a view that are lighter than its ground and its lines.
QRect traceOf(QWidget* view)
{
    const QImage shown = UI::grabPixmap(view).toImage();
    QRect trace;
    // Beside the numbers: those lie left of the field and below it.
    for (int y = 0; y < shown.height(); ++y) {
        for (int x = shown.width() / 2; x < shown.width() - 8; ++x) {
            if (qGreen(shown.pixel(x, y)) > 150 && qRed(shown.pixel(x, y)) < 150)
                trace |= QRect(x, y, 1, 1);
        }
    }
    return trace;
}

} // namespace

void tst_HostScopes::levelsAreThoseOfTheComponent()
{
    const QRgb colour = qRgb(200, 100, 50);
    QCOMPARE(levelOf(colour, kRedComponent), 200);
    QCOMPARE(levelOf(colour, kGreenComponent), 100);
    QCOMPARE(levelOf(colour, kBlueComponent), 50);
    // 0.2126, 0.7152 and 0.0722 of them.
    QCOMPARE(levelOf(colour, kLumaComponent), 117);
    QCOMPARE(levelOf(qRgb(255, 255, 255), kLumaComponent), 255);
}

void tst_HostScopes::waveformHasColumnsAndLevels()
{
    const QImage picture = halves(qRgb(0, 255, 0));
    Waveform waveform(QSize(4, 256), kGreenComponent);
    for (int y = 0; y < picture.height(); ++y)
        waveform.addRow(picture, y);
    const QImage image = waveform.image();
    for (int x = 0; x < 4; ++x) {
        QCOMPARE(qAlpha(image.pixel(x, 0)) > 0, x >= 2);
        QCOMPARE(qAlpha(image.pixel(x, 255)) > 0, x < 2);
        QCOMPARE(qAlpha(image.pixel(x, 128)), 0);
    }
}

void tst_HostScopes::scopesFollowTheGrade()
{
    ViewerPanel viewer(1);
    viewer.view()->setPicture(halves(qRgb(255, 255, 255)));
    ScopesPanel panel(1);
    panel.resize(300, 500);
    panel.setViewer(&viewer);
    panel.show();
    WaveformView* const waveform = panel.findChild<WaveformView*>();
    WAIT_FOR(!traceOf(waveform).isNull());
    const int white = traceOf(waveform).top();
    QVERIFY(white < waveform->height() / 8);

    PictureGrade grade;
    grade.exposure = -2;
    viewer.view()->setGrade(grade);
    // A quarter of the light is the code 137 of sRGB: a bit above the middle.
    WAIT_FOR(qAbs(traceOf(waveform).top() - waveform->height() * (255 - 137) / 255) < 8);
    panel.setViewer(nullptr);
    WAIT_FOR(traceOf(waveform).isNull());
}

QTEST_MAIN(tst_HostScopes)
#include "tst_HostScopes.moc"

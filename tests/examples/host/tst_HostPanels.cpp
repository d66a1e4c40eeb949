#include <examples/host/BackgroundJob.h>
#include <examples/host/ColourPanel.h>
#include <examples/host/ControlsPanel.h>
#include <examples/host/NotesPanel.h>
#include <examples/host/PanelRegistry.h>
#include <examples/host/PictureList.h>
#include <examples/host/PictureView.h>
#include <examples/host/ScopesPanel.h>
#include <examples/host/ScopeView.h>
#include <examples/host/ScriptInterpreter.h>
#include <examples/host/ViewerPanel.h>
#include <examples/host/ViewerState.h>

#include <ui/colour/ColorWheel.h>
#include <ui/sliders/LogSlider.h>
#include <ui/sliders/Slider.h>
#include <ui/toolkit/Painting.h>

#include <tests/support/Waiting.h>

#include <QDir>
#include <QImage>
#include <QSignalSpy>

using namespace Norvane;
using namespace Norvane::Host;

class tst_HostPanels : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    // Thumbnails may still be made.
    void cleanupTestCase() { BackgroundJob::waitForAll(); }
    void viewerStateIsReadAndWritten_data();
    void viewerStateIsReadAndWritten();
    void controlsActOnTheirViewer();
    void colourGradesItsViewer();
    void levelsAreThoseOfTheComponent();
    void scopesFollowTheGrade();
    void notesKeepEveryCharacter();
    void idsNamePanels();
    void closedNotesWithTextStay();
};

namespace {

QString latin1(const char* text)
{
    return QLatin1String(text);
}

struct Panels {
    PictureList pictures;
    ScriptInterpreter scripts{&pictures};
    PanelRegistry registry{&pictures, &scripts};
};

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

void tst_HostPanels::viewerStateIsReadAndWritten_data()
{
    QTest::addColumn<QString>("written");
    const char* const rightTexts[] = {"fit|/a|b.png", "0.125 1000.5 -3|/a b", "fit|frame:v210:4x2|/a.yuv",
                                      "fit;-1.5 1 0.9 1.25|/a;b.png", "2 3 4;8 0 1 1|/a/b.png"};
    for (const char* const text : rightTexts)
        QTest::newRow(text) << latin1(text);
    const char* const wrongTexts[] = {
        "/a",           "big 1 2|/a",       "0 1 2|/a",        "inf 1 2|/a",      "fit;bright 1 1 1|/a",
        "fit;1 1 1|/a", "fit;inf 1 1 1|/a", "fit;1 -1 1 1|/a", "fit;1e6 1 1 1|/a"};
    for (const char* const text : wrongTexts)
        QTest::newRow(text) << latin1("fit|/a");
}

void tst_HostPanels::viewerStateIsReadAndWritten()
{
    QTEST(ViewerState::fromString(latin1(QTest::currentDataTag())).toString(), "written");
}

void tst_HostPanels::controlsActOnTheirViewer()
{
    const QDir samples(latin1(NORVANE_SAMPLES));
    const QString first = samples.absoluteFilePath(latin1("Dunes.png"));
    const QString second = samples.absoluteFilePath(latin1("StillLife.png"));
    PictureList pictures;
    ControlsPanel controls(&pictures, 1);
    const QScopedPointer<ViewerPanel> viewer(new ViewerPanel(1));
    viewer->resize(400, 300);
    viewer->show();
    viewer->openPicture(first);
    WAIT_FOR(!viewer->picture().isNull());
    pictures.addPicture(first);
    pictures.addPicture(second);
    controls.setViewer(viewer.data());
    const QList<UI::Slider*> sliders = controls.findChildren<UI::Slider*>();
    UI::LogSlider* const zoom = controls.findChild<UI::LogSlider*>();

    QTest::keyClick(sliders[0], Qt::Key_PageUp);
    QCOMPARE(viewer->view()->grade().exposure, 1.0);
    QImage grey(40, 20, QImage::Format_RGB32);
    grey.fill(qRgb(100, 100, 100));
    viewer->view()->setPicture(grey);
    // sRGB's 100 is 0.127 of the light of white; twice that is 138.
    const QImage shown = UI::grabPixmap(viewer.data()).toImage();
    QCOMPARE(shown.pixel(shown.width() / 2, shown.height() / 2 - 10), qRgb(138, 138, 138));
    QTest::keyClick(sliders[1], Qt::Key_Right);
    QCOMPARE(viewer->picturePath(), second);
    WAIT_FOR(!viewer->picture().isNull());
    zoom->setRealValue(10);
    QCOMPARE(viewer->view()->zoom(), 10.0);
    viewer->view()->zoomTo(1);
    QCOMPARE(zoom->value(), 0);

    controls.setViewer(nullptr);
    QTest::keyClick(sliders[0], Qt::Key_Home);
    QCOMPARE(viewer->view()->grade().exposure, 1.0);
    QVERIFY(!sliders[0]->isEnabled());
}

void tst_HostPanels::colourGradesItsViewer()
{
    ViewerPanel first(1);
    ViewerPanel second(2);
    ColourPanel panel(1);
    UI::ColorWheel* const wheel = panel.findChild<UI::ColorWheel*>();
    const auto value = [wheel] {
        float hsv[3];
        wheel->getHSV(hsv[0], hsv[1], hsv[2]);
        return hsv[2];
    };
    panel.setViewer(&first);
    QTest::keyClick(wheel, Qt::Key_PageDown);
    QCOMPARE(float(first.view()->grade().gain[2]), 0.9f);
    panel.setViewer(&second);
    QCOMPARE(value(), 1.0f);
    panel.setViewer(&first);
    QCOMPARE(value(), 0.9f);
    // A layout brings another grade.
    first.setLayoutState(latin1("fit;1 0.5 0.5 0.5|/no/such/Picture.png"));
    panel.setViewer(&first);
    QCOMPARE(value(), 0.5f);
    QCOMPARE(first.layoutState(), latin1("fit;1 0.5 0.5 0.5|/no/such/Picture.png"));
    first.setLayoutState(QString());
    panel.setViewer(&first);
    panel.resetToDefault();
    QVERIFY(first.view()->grade().isNeutral() && second.view()->grade().isNeutral());
}

void tst_HostPanels::levelsAreThoseOfTheComponent()
{
    const QRgb colour = qRgb(200, 100, 50);
    QCOMPARE(levelOf(colour, kRedComponent), 200);
    QCOMPARE(levelOf(colour, kGreenComponent), 100);
    QCOMPARE(levelOf(colour, kBlueComponent), 50);
    // 0.2126, 0.7152 and 0.0722 of them.
    QCOMPARE(levelOf(colour, kLumaComponent), 117);
    QCOMPARE(levelOf(qRgb(255, 255, 255), kLumaComponent), 255);
}

void tst_HostPanels::scopesFollowTheGrade()
{
    // The left half is black, the right one white.
    QImage picture(2, 1, QImage::Format_RGB32);
    picture.setPixel(0, 0, qRgb(0, 0, 0));
    picture.setPixel(1, 0, qRgb(255, 255, 255));
    ViewerPanel viewer(1);
    viewer.view()->setPicture(picture);
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

void tst_HostPanels::notesKeepEveryCharacter()
{
    // With a no-break space, a line separator, a letter written from the right and a surrogate pair.
    const QString text = QString::fromUtf8("\t<a b=\"c\">&amp;'\n\n \xc2\xa0|\xe2\x80\xa8|\xd7\xa9|"
                                           "\xf0\x9f\x98\x80\n");
    NotesPanel notes(1);
    QSignalSpy replaced(&notes, SIGNAL(textReplaced(QString)));
    notes.setLayoutState(text);
    notes.setLayoutState(text);
    QCOMPARE(notes.property("layoutState").toString(), text);
    QCOMPARE(int(replaced.size()), 0);
    notes.setLayoutState(latin1("second"));
    QCOMPARE(int(replaced.size()), 1);
    QCOMPARE(replaced[0][0].toString(), text);
}

void tst_HostPanels::idsNamePanels()
{
    Panels panels;
    for (const char* const id : {"Viewer.1", "Pictures.12", "Controls.2", "Colour.1", "Scopes.1", "Notes.3",
                                 "Files.1", "Inspector.2", "Script.1"}) {
        QWidget* const panel = panels.registry.panel(latin1(id));
        QVERIFY2(panel && panel->objectName() == latin1(id), id);
        QCOMPARE(panels.registry.panel(latin1(id)), panel);
    }
    for (const char* const id : {"Sounds.1", "Viewer.", "Viewer.0", "Viewer.01", "Viewer", ""})
        QVERIFY2(!panels.registry.panel(latin1(id)), id);
}

void tst_HostPanels::closedNotesWithTextStay()
{
    Panels panels;
    for (const char* const id : {"Viewer.1", "Notes.1", "Notes.2", "Notes.3"})
        panels.registry.panel(latin1(id));
    panels.registry.find(latin1("Notes.2"))->setProperty("layoutState", latin1("text"));
    panels.registry.find(latin1("Notes.3"))->show();
    panels.registry.deleteClosedPanels();
    QVERIFY(!panels.registry.find(latin1("Viewer.1")) && !panels.registry.find(latin1("Notes.1")));
    QVERIFY(panels.registry.find(latin1("Notes.2")) && panels.registry.find(latin1("Notes.3")));
}

QTEST_MAIN(tst_HostPanels)
#include "tst_HostPanels.moc"

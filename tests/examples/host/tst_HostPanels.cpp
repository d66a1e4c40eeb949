#include <examples/host/ColourPanel.h>
#include <examples/host/ControlsPanel.h>
#include <examples/host/NotesPanel.h>
#include <examples/host/PanelRegistry.h>
#include <examples/host/PictureList.h>
#include <examples/host/PictureView.h>
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
#include <QPointer>
#include <QSignalSpy>
#include <QTemporaryFile>

using namespace Norvane;
using namespace Norvane::Host;

class tst_HostPanels : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void viewerStateIsRead_data();
    void viewerStateIsRead();
    void viewerStateIsWrittenAsRead_data();
    void viewerStateIsWrittenAsRead();
    void impossibleGradeIsIgnored_data();
    void impossibleGradeIsIgnored();
    void viewerKeepsStateOfMissingPicture();
    void viewerShowsPictureWhenSeen();
    void controlsActOnTheirViewer();
    void colourGradesItsViewer();
    void notesKeepEveryCharacter_data();
    void notesKeepEveryCharacter();
    void replacedNotesAreReported();
    void idsNamePanels_data();
    void idsNamePanels();
    void freeNumbersAreUsedAgain();
    void closedNotesWithTextStay();
};

void tst_HostPanels::viewerStateIsRead_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("fitted");
    QTest::addColumn<double>("zoom");
    QTest::addColumn<QPointF>("center");
    QTest::addColumn<QString>("path");
    QTest::newRow("fitted") << "fit|/a/b.png" << true << 1.0 << QPointF() << "/a/b.png";
    QTest::newRow("zoomed") << "1.5 20.25 -3|/a b" << false << 1.5 << QPointF(20.25, -3) << "/a b";
    QTest::newRow("bar in path") << "fit|/a|b.png" << true << 1.0 << QPointF() << "/a|b.png";
    QTest::newRow("frame") << "fit|frame:v210:4x2|/a.yuv" << true << 1.0 << QPointF()
                           << "frame:v210:4x2|/a.yuv";
    QTest::newRow("only a path") << "/a/b.png" << true << 1.0 << QPointF() << "/a/b.png";
    QTest::newRow("no number") << "big 1 2|/a" << true << 1.0 << QPointF() << "/a";
    QTest::newRow("no zoom at all") << "0 1 2|/a" << true << 1.0 << QPointF() << "/a";
    QTest::newRow("infinite") << "inf 1 2|/a" << true << 1.0 << QPointF() << "/a";
    QTest::newRow("graded") << "1.5 20.25 -3;1 1 1 2|/a;b" << false << 1.5 << QPointF(20.25, -3) << "/a;b";
    QTest::newRow("empty") << "" << true << 1.0 << QPointF() << "";
}

void tst_HostPanels::viewerStateIsRead()
{
    QFETCH(QString, text);
    const ViewerState state = ViewerState::fromString(text);
    QTEST(state.fitted, "fitted");
    QTEST(state.zoom, "zoom");
    QTEST(state.center, "center");
    QTEST(state.path, "path");
}

void tst_HostPanels::viewerStateIsWrittenAsRead_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("fitted") << "fit|/a/b.png";
    QTest::newRow("zoomed") << "0.125 1000.5 20|/a/b|c.png";
    QTest::newRow("graded") << "fit;-1.5 1 0.9 1.25|/a;b.png";
    QTest::newRow("zoomed and graded") << "2 3 4;8 0 1 1|/a/b.png";
    QTest::newRow("nothing") << "";
}

void tst_HostPanels::impossibleGradeIsIgnored_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("no number") << "fit;bright 1 1 1|/a";
    QTest::newRow("a number is missing") << "fit;1 1 1|/a";
    QTest::newRow("not finite") << "fit;inf 1 1 1|/a";
    QTest::newRow("negative factor") << "fit;1 -1 1 1|/a";
    QTest::newRow("beyond all light") << "fit;1e6 1 1 1|/a";
}

void tst_HostPanels::impossibleGradeIsIgnored()
{
    QFETCH(QString, text);
    QCOMPARE(ViewerState::fromString(text).toString(), QString::fromLatin1("fit|/a"));
}

void tst_HostPanels::viewerStateIsWrittenAsRead()
{
    QFETCH(QString, text);
    QCOMPARE(ViewerState::fromString(text).toString(), text);
}

void tst_HostPanels::viewerKeepsStateOfMissingPicture()
{
    const QString state = QLatin1String("2.5 40 30|/no/such/Picture.png");
    ViewerPanel viewer(1);
    viewer.setLayoutState(state);
    QCOMPARE(viewer.windowTitle(), QString::fromLatin1("Picture.png"));
    QCOMPARE(viewer.layoutState(), state);
    viewer.show();
    QCOMPARE(viewer.layoutState(), state);
}

void tst_HostPanels::viewerShowsPictureWhenSeen()
{
    const QString path = QDir::temp().filePath(
        QString::fromLatin1("tst_HostPanels-%1.png").arg(QCoreApplication::applicationPid()));
    QImage picture(40, 20, QImage::Format_RGB32);
    picture.fill(qRgb(10, 20, 30));
    QVERIFY(picture.save(path));
    ViewerPanel viewer(1);
    QSignalSpy changes(&viewer, SIGNAL(pictureChanged()));
    viewer.openPicture(path);
    QCOMPARE(int(changes.size()), 1);
    viewer.resize(400, 300);
    QVERIFY(viewer.picture().isNull());
    viewer.show();
    QCOMPARE(viewer.findChild<PictureView*>()->accessibleDescription(), QFileInfo(path).fileName());
    WAIT_FOR(!viewer.picture().isNull());
    QCOMPARE(int(changes.size()), 2);
    QVERIFY(QFile::remove(path));
    const QImage shown = UI::grabPixmap(&viewer).toImage();
    QCOMPARE(shown.pixel(shown.width() / 2, shown.height() / 2 - 10), qRgb(10, 20, 30));
}

void tst_HostPanels::controlsActOnTheirViewer()
{
    QTemporaryFile first(QDir::temp().filePath(QLatin1String("tst_HostPanels-XXXXXX.png")));
    QTemporaryFile second(first.fileTemplate());
    QImage picture(40, 20, QImage::Format_RGB32);
    picture.fill(qRgb(100, 100, 100));
    QVERIFY(first.open() && second.open() && picture.save(&first, "PNG") && picture.save(&second, "PNG"));
    first.flush();
    second.flush();

    PictureList pictures;
    ControlsPanel controls(&pictures, 1);
    const QScopedPointer<ViewerPanel> viewer(new ViewerPanel(1));
    viewer->resize(400, 300);
    viewer->show();
    viewer->openPicture(first.fileName());
    WAIT_FOR(!viewer->picture().isNull());
    pictures.addPicture(first.fileName());
    pictures.addPicture(second.fileName());
    controls.setViewer(viewer.data());
    const QList<UI::Slider*> sliders = controls.findChildren<UI::Slider*>();
    UI::LogSlider* const zoom = controls.findChild<UI::LogSlider*>();

    QTest::keyClick(sliders[0], Qt::Key_PageUp);
    QCOMPARE(viewer->view()->grade().exposure, 1.0);
    // sRGB's 100 is 0.127 of the light of white; twice that is 138.
    const QImage shown = UI::grabPixmap(viewer.data()).toImage();
    QCOMPARE(shown.pixel(shown.width() / 2, shown.height() / 2 - 10), qRgb(138, 138, 138));
    QTest::keyClick(sliders[1], Qt::Key_Right);
    QCOMPARE(QFileInfo(viewer->picturePath()), QFileInfo(second.fileName()));
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
    QVERIFY(!panel.isEnabled());
    panel.setViewer(&first);
    QVERIFY(panel.isEnabled());
    QTest::keyClick(wheel, Qt::Key_PageDown);
    QCOMPARE(float(first.view()->grade().gain[2]), 0.9f);
    panel.setViewer(&second);
    float hue, saturation, value;
    wheel->getHSV(hue, saturation, value);
    QCOMPARE(value, 1.0f);
    panel.setViewer(&first);
    wheel->getHSV(hue, saturation, value);
    QCOMPARE(value, 0.9f);
    // A layout brings another grade.
    first.setLayoutState(QLatin1String("fit;1 0.5 0.5 0.5|/no/such/Picture.png"));
    panel.setViewer(&first);
    wheel->getHSV(hue, saturation, value);
    QCOMPARE(value, 0.5f);
    QCOMPARE(first.layoutState(), QString::fromLatin1("fit;1 0.5 0.5 0.5|/no/such/Picture.png"));
    first.setLayoutState(QString());
    panel.setViewer(&first);
    panel.resetToDefault();
    QVERIFY(first.view()->grade().isNeutral());
    QVERIFY(second.view()->grade().isNeutral());
}

void tst_HostPanels::notesKeepEveryCharacter_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("lines") << "one\ntwo\n\n\nthree\n";
    QTest::newRow("marks of XML") << "<a b=\"c\">&amp;</a>'";
    QTest::newRow("tabs and spaces") << "\t  a  \t";
    QTest::newRow("no-break space") << QString(QChar(0xa0)) + QLatin1String("x");
    QTest::newRow("line separator") << QString(QLatin1Char('a')) + QChar(0x2028) + QLatin1Char('b');
    QTest::newRow("right to left") << QString(QChar(0x5e9)) + QChar(0x5dc);
    QTest::newRow("surrogates") << QString(QChar(0xd83d)) + QChar(0xde00);
}

void tst_HostPanels::notesKeepEveryCharacter()
{
    QFETCH(QString, text);
    NotesPanel notes(1);
    QVERIFY(notes.setProperty("layoutState", text));
    QCOMPARE(notes.property("layoutState").toString(), text);
}

void tst_HostPanels::replacedNotesAreReported()
{
    NotesPanel notes(1);
    QSignalSpy replaced(&notes, SIGNAL(textReplaced(QString)));
    notes.setLayoutState(QLatin1String("first"));
    notes.setLayoutState(QLatin1String("first"));
    QCOMPARE(int(replaced.size()), 0);
    notes.setLayoutState(QLatin1String("second"));
    QCOMPARE(int(replaced.size()), 1);
    QCOMPARE(replaced.first().first().toString(), QString::fromLatin1("first"));
}

void tst_HostPanels::idsNamePanels_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<bool>("isId");
    QTest::newRow("viewer") << "Viewer.1" << true;
    QTest::newRow("pictures") << "Pictures.12" << true;
    QTest::newRow("controls") << "Controls.2" << true;
    QTest::newRow("colour") << "Colour.1" << true;
    QTest::newRow("scopes") << "Scopes.1" << true;
    QTest::newRow("notes") << "Notes.3" << true;
    QTest::newRow("files") << "Files.1" << true;
    QTest::newRow("inspector") << "Inspector.2" << true;
    QTest::newRow("unknown kind") << "Sounds.1" << false;
    QTest::newRow("no number") << "Viewer." << false;
    QTest::newRow("number zero") << "Viewer.0" << false;
    QTest::newRow("leading zero") << "Viewer.01" << false;
    QTest::newRow("no dot") << "Viewer" << false;
    QTest::newRow("empty") << "" << false;
}

void tst_HostPanels::idsNamePanels()
{
    QFETCH(QString, id);
    QFETCH(bool, isId);
    PictureList pictures;
    ScriptInterpreter scripts(&pictures);
    PanelRegistry registry(&pictures, &scripts);
    QCOMPARE(registry.find(id), static_cast<QWidget*>(nullptr));
    QWidget* const panel = registry.panel(id);
    QCOMPARE(panel != nullptr, isId);
    QCOMPARE(registry.panel(id), panel);
    if (isId)
        QCOMPARE(panel->objectName(), id);
}

void tst_HostPanels::freeNumbersAreUsedAgain()
{
    PictureList pictures;
    ScriptInterpreter scripts(&pictures);
    PanelRegistry registry(&pictures, &scripts);
    QPointer<QWidget> first = registry.createPanel(PanelRegistry::ViewerKind);
    registry.panel(QLatin1String("Viewer.3"));
    QCOMPARE(registry.createPanel(PanelRegistry::ViewerKind)->objectName(), QString::fromLatin1("Viewer.2"));
    QCOMPARE(registry.createPanel(PanelRegistry::ViewerKind)->objectName(), QString::fromLatin1("Viewer.4"));
    delete first;
    QCOMPARE(registry.createPanel(PanelRegistry::ViewerKind)->objectName(), QString::fromLatin1("Viewer.1"));
}

void tst_HostPanels::closedNotesWithTextStay()
{
    PictureList pictures;
    ScriptInterpreter scripts(&pictures);
    PanelRegistry registry(&pictures, &scripts);
    registry.panel(QLatin1String("Viewer.1"));
    registry.panel(QLatin1String("Notes.1"));
    registry.panel(QLatin1String("Notes.2"))->setProperty("layoutState", QLatin1String("text"));
    registry.panel(QLatin1String("Notes.3"))->show();
    registry.deleteClosedPanels();
    QVERIFY(!registry.find(QLatin1String("Viewer.1")));
    QVERIFY(!registry.find(QLatin1String("Notes.1")));
    QVERIFY(registry.find(QLatin1String("Notes.2")));
    QVERIFY(registry.find(QLatin1String("Notes.3")));
}

QTEST_MAIN(tst_HostPanels)
#include "tst_HostPanels.moc"

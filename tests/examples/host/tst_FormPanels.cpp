#include <examples/host/BackgroundJob.h>
#include <examples/host/ControlHelp.h>
#include <examples/host/FactsTable.h>
#include <examples/host/FilesPanel.h>
#include <examples/host/InspectorPanel.h>
#include <examples/host/PictureList.h>
#include <examples/host/PicturesPanel.h>

#include <tests/support/Desk.h>
#include <ui/widgets/BubbleWidget.h>
#include <ui/widgets/DropAcceptingListWidget.h>
#include <ui/widgets/FilenameField.h>
#include <ui/widgets/SearchField.h>

#include <QDir>
#include <QImage>
#include <QLabel>
#include <QListView>
#include <QSignalSpy>

using namespace NorvaneTest;
using namespace Norvane;
using namespace Norvane::Host;

class tst_FormPanels : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    // Thumbnails may still be made.
    void cleanupTestCase() { BackgroundJob::waitForAll(); }
    void searchFindsPictures();
    void filesPanelOpensWhatIsNamed();
    void inspectorShowsWhatThereIs();
    void clickedControlIsExplained();
};

namespace {

QString sampleFolder()
{
    return QDir(latin1(NORVANE_SAMPLES)).absolutePath();
}

QString sample(const char* name)
{
    return QDir(sampleFolder()).filePath(latin1(name));
}

/// How many of its tables \a inspector shows.
int shownTables(const InspectorPanel& inspector)
{
    int count = 0;
    const QList<FactsTable*> tables = inspector.findChildren<FactsTable*>();
    for (const FactsTable* const table : tables)
        count += table->isVisible();
    return count;
}

} // namespace

void tst_FormPanels::searchFindsPictures()
{
    PictureList pictures;
    for (const char* const name : {"Dunes.png", "StillLife.png", "TestChart.png"})
        pictures.addPicture(sample(name));
    PicturesPanel panel(&pictures, 1);
    QVERIFY(Desk::activate(&panel));
    UI::SearchField* const search = panel.findChild<UI::SearchField*>();
    QListView* const list = panel.findChild<QListView*>();
    QTest::keyClicks(search, latin1("ST"));
    QCOMPARE(list->model()->rowCount(), 2);

    QSignalSpy chosen(&panel, SIGNAL(pictureChosen(QString)));
    list->setCurrentIndex(list->model()->index(1, 0));
    QTest::keyClick(list, Qt::Key_Return);
    QCOMPARE(int(chosen.size()), 1);
    QCOMPARE(chosen.first().first().toString(), sample("TestChart.png"));
    list->setFocus();
    QTest::keyClick(list, Qt::Key_Delete);
    QCOMPARE(pictures.paths(), QStringList() << sample("Dunes.png") << sample("StillLife.png"));
    search->clear();
    QCOMPARE(list->model()->rowCount(), 2);
}

void tst_FormPanels::filesPanelOpensWhatIsNamed()
{
    FilesPanel panel(1);
    UI::FilenameField* const field = panel.findChild<UI::FilenameField*>();
    UI::DropAcceptingListWidget* const list = panel.findChild<UI::DropAcceptingListWidget*>();
    QSignalSpy chosen(&panel, SIGNAL(pictureChosen(QString)));
    panel.setLayoutState(sample("Dunes.png"));
    QCOMPARE(int(chosen.size()), 0);
    field->setFilename(sampleFolder());
    QCOMPARE(list->count(), 5);
    field->setFilename(sample("Dunes.png"));
    // As leaving the field does.
    field->setFilename(sample("Dunes.png"));
    QCOMPARE(int(chosen.size()), 1);
    QCOMPARE(panel.layoutState(), sample("Dunes.png"));
    field->setFilename(latin1("/no/such/folder"));
    QCOMPARE(list->count(), 0);

    QSignalSpy dropped(&panel, SIGNAL(picturesDropped(QStringList)));
    const QStringList paths = QStringList()
                              << sample("Dunes.png") << QString() << sampleFolder() << sample("Dunes.png");
    QMetaObject::invokeMethod(list, "droppedUrls", Q_ARG(QStringList, paths));
    QCOMPARE(list->count(), 5);
    QCOMPARE(int(dropped.size()), 1);
    QCOMPARE(panel.layoutState(), sampleFolder());
}

void tst_FormPanels::inspectorShowsWhatThereIs()
{
    InspectorPanel inspector(1);
    QImage picture(300, 2, QImage::Format_ARGB32);
    picture.fill(qRgb(10, 20, 30));
    inspector.setPicture(sample("Dunes.png"), picture);
    // While it is hidden, as by a layout.
    inspector.setLayoutState(latin1("0101"));
    inspector.show();
    QCOMPARE(inspector.layoutState(), latin1("0101"));
    QCOMPARE(shownTables(inspector), 1);
    inspector.setLayoutState(latin1("rubbish"));
    QCOMPARE(shownTables(inspector), 3);
    picture.setPixel(0, 0, qRgba(0, 0, 0, 0));
    inspector.setPicture(sample("Dunes.png"), picture);
    QCOMPARE(shownTables(inspector), 4);
    inspector.setPicture(QString(), QImage());
    QCOMPARE(shownTables(inspector), 0);
}

void tst_FormPanels::clickedControlIsExplained()
{
    QWidget window;
    window.setWhatsThis(latin1("The window."));
    window.setGeometry(300, 300, 300, 200);
    QLineEdit field(&window);
    QVERIFY(Desk::activate(&window));
    ControlHelp help(&window);
    const auto explanation = [] {
        QWidget* const bubble = QApplication::activePopupWidget();
        return bubble ? bubble->findChild<QLabel*>()->text() : QString();
    };
    help.ask();
    QTest::keyClick(&field, Qt::Key_Escape);
    QVERIFY(explanation().isEmpty());
    help.ask();
    QTest::mouseClick(&field, Qt::LeftButton);
    QCOMPARE(explanation(), latin1("The window."));
    QApplication::activePopupWidget()->close();
    field.setWhatsThis(latin1("A field."));
    help.ask();
    QTest::keyClick(&field, Qt::Key_Return);
    QCOMPARE(explanation(), latin1("A field."));
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
    QVERIFY(explanation().isEmpty());
    QVERIFY(!QApplication::overrideCursor());
}

QTEST_MAIN(tst_FormPanels)
#include "tst_FormPanels.moc"

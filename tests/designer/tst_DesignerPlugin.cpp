#include "ui_Controls.h"

#include <QFile>
#include <QFileInfo>
#include <QIcon>
#include <QPluginLoader>
#include <QScopedPointer>
#include <QtTest>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>
#include <QUiLoader>

using namespace Norvane::UI;

class tst_DesignerPlugin : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void widgetsArePresented();
    void formIsLoaded();
    void formIsCompiled();
};

namespace {

/// What the form says of its widgets, which are those called so in \a form.
void checkForm(const QWidget* form)
{
    const Slider* const exposure = form->findChild<Slider*>("exposure");
    const Slider* const frame = form->findChild<Slider*>("frame");
    const LogSlider* const zoom = form->findChild<LogSlider*>("zoom");
    const ColorWheel* const wheel = form->findChild<ColorWheel*>("wheel");
    const SearchField* const search = form->findChild<SearchField*>("search");
    const FilenameField* const folder = form->findChild<FilenameField*>("folder");
    const DropAcceptingListWidget* const files = form->findChild<DropAcceptingListWidget*>("files");
    QVERIFY(exposure && frame && zoom && wheel && search && folder && files);
    QVERIFY(form->findChild<FlatButton*>("star")->isCheckable());
    QVERIFY(form->findChild<DisclosureButton*>("more")->isChecked());

    QCOMPARE(exposure->mode(), Slider::LogMode);
    QCOMPARE(exposure->minimum(), -8.0);
    QCOMPARE(exposure->maximum(), -2.0);
    QCOMPARE(exposure->step(), 0.1);
    QCOMPARE(exposure->value(), -3.0);
    QCOMPARE(frame->type(), Slider::IntegerValue);
    QCOMPARE(frame->orientation(), Qt::Vertical);
    QCOMPARE(frame->minimum(), 100.0);
    QCOMPARE(frame->maximum(), 200.0);
    QCOMPARE(zoom->minimum(), 10);
    QCOMPARE(zoom->maximum(), 30);
    QCOMPARE(zoom->realValue(), 100.0);
    QCOMPARE(wheel->displayMode(), ColorWheel::kValueRing);
    QVERIFY(!wheel->getZoomEnabled());
    QCOMPARE(search->prompt(), QString("Find a picture"));
    QVERIFY(search->hasCancelButton());
    QCOMPARE(folder->prompt(), QString("A folder"));
    QCOMPARE(files->acceptsDropsFlags(), AcceptUrls);
}

} // namespace

void tst_DesignerPlugin::widgetsArePresented()
{
    QPluginLoader loader(NORVANE_PLUGIN);
    auto* const collection = qobject_cast<QDesignerCustomWidgetCollectionInterface*>(loader.instance());
    QVERIFY2(collection, qPrintable(loader.errorString()));
    const QList<QDesignerCustomWidgetInterface*> widgets = collection->customWidgets();
    QCOMPARE(int(widgets.size()), 8);
    for (QDesignerCustomWidgetInterface* const widget : widgets) {
        const QScopedPointer<QWidget> made(widget->createWidget(nullptr));
        QCOMPARE(widget->name(), QString(made->metaObject()->className()));
        QCOMPARE(widget->icon().availableSizes().size(), 2);
        QVERIFY(!widget->toolTip().isEmpty());
        // Designer reads them all.
        for (int i = 0; i < made->metaObject()->propertyCount(); ++i)
            QVERIFY(made->metaObject()->property(i).read(made.data()).isValid());
    }
}

void tst_DesignerPlugin::formIsLoaded()
{
    QUiLoader loader;
    loader.addPluginPath(QFileInfo(NORVANE_PLUGIN).path());
    QFile file(NORVANE_FORM);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QScopedPointer<QWidget> form(loader.load(&file));
    QVERIFY2(form, qPrintable(loader.errorString()));
    checkForm(form.data());
}

void tst_DesignerPlugin::formIsCompiled()
{
    QWidget form;
    Ui::Controls controls;
    controls.setupUi(&form);
    checkForm(&form);
}

QTEST_MAIN(tst_DesignerPlugin)
#include "tst_DesignerPlugin.moc"

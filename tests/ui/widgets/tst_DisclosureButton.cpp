#include <ui/widgets/DisclosureButton.h>

#include <tests/support/Waiting.h>
#include <ui/toolkit/Painting.h>
#include <ui/widgets/DisclosableWidget.h>

#include <QImage>
#include <QPointer>

#include <algorithm>
#include <functional>

using namespace Norvane::UI;

class tst_DisclosureButton : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void addedWidgetIsShownOrHidden_data();
    void addedWidgetIsShownOrHidden();
    void nestOpensTheSameAtAnyAddress_data();
    void nestOpensTheSameAtAnyAddress();
    void removedWidgetIsLeftAlone();
};

namespace {

/// A widget that is shown when all its buttons are checked and it wants to.
class Section : public QWidget, public DisclosableWidget
{
public:
    using QWidget::QWidget;
    bool isShownWhenDisclosed() const override { return wanted && isDisclosed(); }

    bool wanted = true;
};

/// A button as a form has it.
class Button : public DisclosureButton
{
public:
    explicit Button(QWidget* parent, bool showAddedWidgets = true)
        : DisclosureButton(parent, showAddedWidgets)
    {
        setChecked(true);
        connect(this, SIGNAL(toggled(bool)), this, SLOT(showOrHideWidgets()));
    }
};

void click(Button* button)
{
    QTest::mouseClick(button, Qt::LeftButton, Qt::NoModifier, QPoint(8, 7));
}

/// Buttons of \a form in the order of their addresses.
QList<Button*> buttonsOf(QWidget* form, int count)
{
    QList<Button*> buttons;
    while (buttons.size() < count)
        buttons.append(new Button(form));
    std::sort(buttons.begin(), buttons.end(), std::less<Button*>());
    return buttons;
}

QString visibleOf(const QList<QWidget*>& widgets)
{
    QString marks;
    for (const QWidget* widget : widgets)
        marks.append(QLatin1Char(widget->isVisible() ? '1' : '0'));
    return marks;
}

} // namespace

void tst_DisclosureButton::addedWidgetIsShownOrHidden_data()
{
    QTest::addColumn<bool>("checked");
    QTest::addColumn<bool>("showAddedWidgets");
    QTest::addColumn<bool>("wanted");
    QTest::addColumn<bool>("visible");
    QTest::newRow("open") << true << true << true << true;
    QTest::newRow("open, later") << true << false << true << false;
    QTest::newRow("closed") << false << true << true << false;
}

void tst_DisclosureButton::addedWidgetIsShownOrHidden()
{
    QFETCH(bool, checked);
    QFETCH(bool, showAddedWidgets);
    QFETCH(bool, wanted);
    QFETCH(bool, visible);
    QWidget form;
    QWidget plain(&form);
    Section section(&form);
    Button button(&form, showAddedWidgets);
    button.setChecked(checked);
    section.wanted = wanted;
    form.show();
    button.addWidget(&plain);
    button.addWidget(&section);
    QCOMPARE(plain.isVisible(), visible);
    QCOMPARE(section.isVisible(), visible && wanted);
    QCOMPARE(section.isDisclosed(), checked);
    click(&button);
    QCOMPARE(plain.isVisible(), !checked);
    QCOMPARE(section.isVisible(), !checked && wanted);
}

void tst_DisclosureButton::nestOpensTheSameAtAnyAddress_data()
{
    // Of the outer, the middle and the inner button.
    QTest::addColumn<QString>("places");
    QTest::newRow("outside in") << "012";
    QTest::newRow("inside out") << "210";
    QTest::newRow("crossed") << "102";
}

void tst_DisclosureButton::nestOpensTheSameAtAnyAddress()
{
    QFETCH(QString, places);
    QWidget form;
    const QList<Button*> buttons = buttonsOf(&form, 3);
    Button* const outer = buttons[places[0].digitValue()];
    Button* const middle = buttons[places[1].digitValue()];
    Button* const inner = buttons[places[2].digitValue()];
    QWidget* const widget = new QWidget(&form);
    Section* const shared = new Section(&form);
    form.show();
    outer->addWidget(middle);
    outer->addWidget(shared);
    middle->addWidget(widget);
    middle->addWidget(inner);
    inner->addWidget(widget);
    inner->addWidget(shared);
    const QList<QWidget*> all = QList<QWidget*>() << middle << inner << widget << shared;
    QCOMPARE(visibleOf(all), QString::fromLatin1("1111"));
    outer->hide();
    QCOMPARE(visibleOf(all), QString::fromLatin1("0000"));
    outer->show();
    QCOMPARE(visibleOf(all), QString::fromLatin1("1111"));
    click(inner);
    click(outer);
    click(outer);
    QCOMPARE(visibleOf(all), QString::fromLatin1("1100"));
    click(middle);
    inner->setChecked(true);
    click(outer);
    click(outer);
    // Every button of the shared section is checked, though one is not to be seen.
    QCOMPARE(visibleOf(all), QString::fromLatin1("1001"));
}

void tst_DisclosureButton::removedWidgetIsLeftAlone()
{
    QWidget form;
    Button button(&form);
    QWidget* const deleted = new QWidget(&form);
    Section section(&form);
    QWidget twice(&form);
    form.show();
    for (QWidget* const widget : {deleted, static_cast<QWidget*>(&section), &twice, &twice})
        button.addWidget(widget);
    button.removeWidget(&section);
    button.removeWidget(&twice);
    button.removeWidget(&form);
    delete deleted;
    click(&button);
    QVERIFY(section.isVisible());
    QVERIFY(section.isDisclosed());
    QVERIFY(!twice.isVisible());
}

QTEST_MAIN(tst_DisclosureButton)
#include "tst_DisclosureButton.moc"

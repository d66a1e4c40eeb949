#include <ui/widgets/SearchField.h>

#include <tests/support/Desk.h>
#include <ui/widgets/FlatButton.h>

#include <QLabel>
#include <QSignalSpy>

using namespace NorvaneTest;
using namespace Norvane::UI;

class tst_SearchField : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void controlsFollowTextAndFocus_data();
    void controlsFollowTextAndFocus();
    void textFromCodeWaitsForFocus();
    void cancelButtonClears();
    void cancelButtonStays();
};

namespace {

/// A window with a search field and another one to take the focus away.
struct Form {
    Form()
    {
        window.setGeometry(100, 100, 300, 120);
        field.setGeometry(10, 10, 200, 28);
        other.setGeometry(10, 60, 200, 28);
        field.setPrompt(latin1("Search"));
        field.setHasCancelButton(true);
        prompt = field.findChild<QLabel*>();
        cancel = field.findChild<FlatButton*>();
    }

    bool focus(QWidget* widget)
    {
        widget->setFocus();
        return Desk::activate(&window) && waitUntil([&] { return widget->hasFocus(); });
    }

    /// What is to be seen in the field: "p" the prompt, "c" the cancel button.
    QString controls() const
    {
        return latin1(prompt->isVisible() ? "p" : "") + latin1(cancel->isVisible() ? "c" : "");
    }

    QWidget window;
    SearchField field{&window};
    QLineEdit other{&window};
    QLabel* prompt;
    FlatButton* cancel;
};

} // namespace

void tst_SearchField::controlsFollowTextAndFocus_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("focused");
    QTest::addColumn<QString>("controls");
    QTest::newRow("empty") << "" << false << "p";
    QTest::newRow("empty, focused") << "" << true << "";
    QTest::newRow("text") << "abc" << false << "";
    QTest::newRow("text, focused") << "abc" << true << "c";
}

void tst_SearchField::controlsFollowTextAndFocus()
{
    QFETCH(QString, text);
    QFETCH(bool, focused);
    Form form;
    QVERIFY(form.focus(&form.field));
    QTest::keyClicks(&form.field, text);
    if (!focused) {
        QTest::keyClick(&form.field, Qt::Key_Tab);
        WAIT_FOR(form.other.hasFocus());
    }
    QTEST(form.controls(), "controls");
}

void tst_SearchField::textFromCodeWaitsForFocus()
{
    Form form;
    QVERIFY(form.focus(&form.other));
    form.field.setText(latin1("abc"));
    QCOMPARE(form.controls(), latin1("p"));
    QTest::mouseClick(&form.field, Qt::LeftButton);
    WAIT_FOR(form.field.hasFocus());
    QCOMPARE(form.controls(), latin1("c"));
}

void tst_SearchField::cancelButtonClears()
{
    Form form;
    QVERIFY(form.focus(&form.field));
    QTest::keyClicks(&form.field, latin1("abc"));
    QSignalSpy pressed(&form.field, SIGNAL(cancelPressed()));
    QSignalSpy edited(&form.field, SIGNAL(textEdited(QString)));
    QTest::mouseClick(form.cancel, Qt::LeftButton);
    QCOMPARE(form.field.text(), QString());
    QCOMPARE(int(pressed.size()), 1);
    QCOMPARE(int(edited.size()), 0);
    QVERIFY(form.field.hasFocus());
    QCOMPARE(form.controls(), QString());
}

void tst_SearchField::cancelButtonStays()
{
    SearchField field(nullptr);
    field.setHasCancelButton(false);
    QVERIFY(!field.hasCancelButton());
    QCOMPARE(field.textMargins(), QMargins(6, 0, 8, 0));
    field.setHasCancelButton(true);
    field.setHasCancelButton(true);
    field.setHasCancelButton(false);
    QVERIFY(field.hasCancelButton());
    QCOMPARE(int(field.findChildren<FlatButton*>().size()), 1);
}

QTEST_MAIN(tst_SearchField)
#include "tst_SearchField.moc"

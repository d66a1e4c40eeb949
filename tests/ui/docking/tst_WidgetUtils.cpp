#include <ui/docking/WidgetUtils.h>

#include <tests/support/Waiting.h>
#include <ui/docking/FloatingWindowRegistry.h>
#include <ui/toolkit/Screens.h>

using namespace Norvane::UI;

namespace {

/// A window that no window manager places or decorates.
class PopUp : public QWidget
{
public:
    explicit PopUp(const QRect& rect)
        : QWidget(nullptr, Qt::ToolTip)
    {
        setGeometry(rect);
    }
};

} // namespace

class tst_WidgetUtils : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void fullscreenAndBack();
    void leavingFullscreenFitsFrame_data();
    void leavingFullscreenFitsFrame();
    void popUpUsesScreenOfRect();
    void popUpBelowWidgetStaysOnScreen_data();
    void popUpBelowWidgetStaysOnScreen();
    void registryKeepsLivingWindowsInOrder();
};

void tst_WidgetUtils::fullscreenAndBack()
{
    const QRect screen = Screens::availableGeometry(0);
    WidgetUtils::ToggleFullscreen(nullptr);
    QVERIFY(!WidgetUtils::GetFullscreen(nullptr));
    QWidget window;
    window.setGeometry(screen.left() + 100, screen.top() + 100, 300, 200);
    window.show();
    WAIT_FOR(window.frameSize() != window.size());
    WidgetUtils::ToggleFullscreen(&window);
    QVERIFY(WidgetUtils::GetFullscreen(&window));
    WAIT_FOR(window.size() == screen.size());
    WidgetUtils::ToggleFullscreen(&window);
    QVERIFY(!WidgetUtils::GetFullscreen(&window));
    WAIT_FOR(screen.contains(window.frameGeometry()));
}

void tst_WidgetUtils::leavingFullscreenFitsFrame_data()
{
    QTest::addColumn<int>("top");
    QTest::addColumn<int>("height");
    QTest::addColumn<int>("newTop");
    QTest::addColumn<int>("newHeight");
    const int available = Screens::availableGeometry(0).height();
    QTest::newRow("inside") << 40 << 200 << 40 << 200;
    QTest::newRow("above the screen") << -50 << 200 << 0 << 250;
    QTest::newRow("too high") << 30 << available + 1 << 30 << available;
    QTest::newRow("above and too high") << -50 << available - 49 << 0 << available;
}

// A window that was never shown has no frame and stays where it is put.
void tst_WidgetUtils::leavingFullscreenFitsFrame()
{
    QFETCH(int, top);
    QFETCH(int, height);
    QFETCH(int, newTop);
    QFETCH(int, newHeight);
    const QRect available = Screens::availableGeometry(0);
    QWidget window;
    window.setGeometry(available.left() + 70, available.top() + top, 300, height);
    window.setWindowState(Qt::WindowFullScreen);
    WidgetUtils::SetFullscreen(&window, false, nullptr);
    QVERIFY(!WidgetUtils::GetFullscreen(&window));
    QCOMPARE(window.geometry(), QRect(available.left() + 70, available.top() + newTop, 300, newHeight));
}

void tst_WidgetUtils::popUpUsesScreenOfRect()
{
    if (Screens::count() < 2)
        NORVANE_SKIP("needs a second monitor");
    const QRect screen = Screens::availableGeometry(1);
    QRect rect(screen.topLeft() + QPoint(10, 300), QSize(100, 50));
    PopUp popUp(QRect(33, 44, 200, 90));
    WidgetUtils::MoveWidgetNearRect(&popUp, rect);
    const QPoint placed(rect.right() + 20, rect.top() - 20 - 30);
    QCOMPARE(popUp.pos(), placed);
    QRect everything = Screens::availableGeometry(0);
    WidgetUtils::MoveWidgetNearRect(&popUp, everything);
    QCOMPARE(popUp.pos(), placed);
}

void tst_WidgetUtils::popUpBelowWidgetStaysOnScreen_data()
{
    QTest::addColumn<QPoint>("corner");
    QTest::addColumn<QPoint>("shift");
    const QPoint end = Screens::availableGeometry(0).bottomRight();
    QTest::newRow("room") << QPoint(100, 100) << QPoint(0, 0);
    QTest::newRow("just enough") << end - QPoint(200, 90) << QPoint(0, 0);
    QTest::newRow("too far right") << QPoint(end.x() - 150, 100) << QPoint(-50, 0);
    QTest::newRow("too far down") << QPoint(100, end.y() - 89) << QPoint(0, -1);
    QTest::newRow("both") << end - QPoint(100, 10) << QPoint(-100, -80);
}

void tst_WidgetUtils::popUpBelowWidgetStaysOnScreen()
{
    QFETCH(QPoint, corner);
    QFETCH(QPoint, shift);
    PopUp owner(QRect(0, 0, 100, 100));
    QWidget button(&owner);
    button.setGeometry(10, 20, 30, 15);
    owner.move(corner - QPoint(10, 35));
    PopUp popUp(QRect(0, 0, 200, 90));
    WidgetUtils::MoveWidgetNotObscuringWidget(&popUp, &button);
    QVERIFY(popUp.isVisible());
    QCOMPARE(popUp.pos(), corner + shift);
    popUp.move(corner);
    WidgetUtils::MoveWidgetNotObscuringWidget(&popUp, nullptr);
    QCOMPARE(popUp.pos(), corner + shift);
}

void tst_WidgetUtils::registryKeepsLivingWindowsInOrder()
{
    FloatingWindowRegistry registry;
    QWidget first;
    QWidget second;
    {
        QWidget goes;
        QWidget* const windows[] = {&second, &goes, &first, &second, nullptr};
        for (QWidget* const window : windows)
            registry.addWindow(window);
    }
    QCOMPARE(registry.windows(), QList<QWidget*>() << &second << &first);
    registry.removeWindow(&second);
    registry.removeWindow(nullptr);
    QCOMPARE(registry.windows(), QList<QWidget*>() << &first);
}

QTEST_MAIN(tst_WidgetUtils)
#include "tst_WidgetUtils.moc"

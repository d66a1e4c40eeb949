#include <ui/widgets/FlatButton.h>

#include <ui/toolkit/Painting.h>

#include <tests/support/Waiting.h>

#include <QCursor>
#include <QIcon>
#include <QPixmap>

using namespace Norvane::UI;

class tst_FlatButton : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void iconShowsState_data();
    void iconShowsState();
    void nothingButIconIsPainted();
};

namespace {

/// An icon that is one colour for each mode and state.
QIcon colours()
{
    const struct {
        Qt::GlobalColor colour;
        QIcon::Mode mode;
        QIcon::State state;
    } forms[] = {
        {Qt::red, QIcon::Normal, QIcon::Off},      {Qt::darkRed, QIcon::Normal, QIcon::On},
        {Qt::green, QIcon::Active, QIcon::Off},    {Qt::darkGreen, QIcon::Active, QIcon::On},
        {Qt::blue, QIcon::Disabled, QIcon::Off},   {Qt::darkBlue, QIcon::Disabled, QIcon::On},
        {Qt::yellow, QIcon::Selected, QIcon::Off},
    };
    QIcon icon;
    for (const auto& form : forms) {
        QPixmap pixmap(10, 10);
        pixmap.fill(form.colour);
        icon.addPixmap(pixmap, form.mode, form.state);
    }
    return icon;
}

} // namespace

void tst_FlatButton::iconShowsState_data()
{
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<bool>("checked");
    QTest::addColumn<bool>("underMouse");
    QTest::addColumn<int>("colour");
    QTest::newRow("at rest") << true << false << false << int(Qt::red);
    QTest::newRow("checked") << true << true << false << int(Qt::darkRed);
    QTest::newRow("under the mouse") << true << false << true << int(Qt::green);
    QTest::newRow("checked, under the mouse") << true << true << true << int(Qt::darkGreen);
    QTest::newRow("disabled") << false << false << false << int(Qt::blue);
    QTest::newRow("disabled, under the mouse") << false << false << true << int(Qt::blue);
    QTest::newRow("disabled, checked") << false << true << false << int(Qt::darkBlue);
}

void tst_FlatButton::iconShowsState()
{
    QFETCH(bool, underMouse);
    QFETCH(int, colour);
    QCursor::setPos(5, 5);
    QWidget window(nullptr, Qt::ToolTip);
    window.setGeometry(200, 200, 40, 40);
    FlatButton button(colours(), &window);
    button.resize(button.sizeHint());
    button.setCheckable(true);
    QFETCH(bool, checked);
    button.setChecked(checked);
    QFETCH(bool, enabled);
    button.setEnabled(enabled);
    window.show();
    if (underMouse)
        QCursor::setPos(button.mapToGlobal(button.rect().center()));
    WAIT_FOR(button.underMouse() == underMouse && window.isVisible());
    QCOMPARE(QColor(grabPixmap(&button).toImage().pixel(11, 11)), QColor(Qt::GlobalColor(colour)));
}

void tst_FlatButton::nothingButIconIsPainted()
{
    QWidget window;
    window.setPalette(QPalette(Qt::magenta));
    FlatButton button(colours(), &window);
    QCOMPARE(button.sizeHint(), QSize(22, 22));
    button.resize(button.sizeHint());
    button.setFocus();
    button.setDown(true);
    const QImage image = grabPixmap(&window).toImage();
    const QColor ground = window.palette().color(QPalette::Window);
    for (int y = 0; y < 22; ++y) {
        for (int x = 0; x < 22; ++x) {
            const bool inIcon = QRect(6, 6, 10, 10).contains(x, y);
            QCOMPARE(QColor(image.pixel(x, y)), inIcon ? QColor(Qt::red) : ground);
        }
    }
}

QTEST_MAIN(tst_FlatButton)
#include "tst_FlatButton.moc"

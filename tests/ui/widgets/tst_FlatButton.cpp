#include <ui/widgets/FlatButton.h>

#include <tests/support/Waiting.h>
#include <ui/toolkit/Painting.h>

#include <QCursor>
#include <QIcon>
#include <QPixmap>

using namespace Norvane::UI;

class tst_FlatButton : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void onlyIconIsPainted_data();
    void onlyIconIsPainted();
};

namespace {

void addForm(QIcon* icon, Qt::GlobalColor colour, QIcon::Mode mode, QIcon::State state)
{
    QPixmap pixmap(10, 10);
    pixmap.fill(colour);
    icon->addPixmap(pixmap, mode, state);
}

} // namespace

void tst_FlatButton::onlyIconIsPainted_data()
{
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<bool>("checked");
    QTest::addColumn<bool>("underMouse");
    QTest::addColumn<int>("colour");
    QTest::newRow("at rest") << true << false << false << int(Qt::red);
    QTest::newRow("checked") << true << true << false << int(Qt::darkRed);
    QTest::newRow("under the mouse") << true << false << true << int(Qt::green);
    QTest::newRow("disabled") << false << false << false << int(Qt::blue);
    QTest::newRow("disabled, under the mouse") << false << false << true << int(Qt::blue);
    QTest::newRow("disabled, checked") << false << true << false << int(Qt::darkBlue);
}

void tst_FlatButton::onlyIconIsPainted()
{
    QFETCH(bool, enabled);
    QFETCH(bool, checked);
    QFETCH(bool, underMouse);
    QFETCH(int, colour);
    QIcon icon;
    addForm(&icon, Qt::red, QIcon::Normal, QIcon::Off);
    addForm(&icon, Qt::darkRed, QIcon::Normal, QIcon::On);
    addForm(&icon, Qt::green, QIcon::Active, QIcon::Off);
    addForm(&icon, Qt::blue, QIcon::Disabled, QIcon::Off);
    addForm(&icon, Qt::darkBlue, QIcon::Disabled, QIcon::On);
    QCursor::setPos(5, 5);
    QWidget window(nullptr, Qt::ToolTip);
    window.setGeometry(200, 200, 40, 40);
    FlatButton button(icon, &window);
    button.resize(button.sizeHint());
    button.setCheckable(true);
    button.setChecked(checked);
    button.setEnabled(enabled);
    button.setFocus();
    window.show();
    if (underMouse)
        QCursor::setPos(button.mapToGlobal(button.rect().center()));
    WAIT_FOR(button.underMouse() == underMouse && window.isVisible());

    const QImage image = grabPixmap(&window).toImage();
    for (int y = 0; y < 22; ++y) {
        const bool inIcon = y >= 6 && y < 16;
        const QColor ground = window.palette().color(QPalette::Window);
        QCOMPARE(QColor(image.pixel(11, y)), inIcon ? QColor(Qt::GlobalColor(colour)) : ground);
    }
}

QTEST_MAIN(tst_FlatButton)
#include "tst_FlatButton.moc"

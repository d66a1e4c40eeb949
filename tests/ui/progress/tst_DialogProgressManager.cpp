#include <ui/progress/DialogProgressManager.h>
#include <ui/progress/ProgressTask.h>
#include <ui/toolkit/Screens.h>
#include <ui/widgets/AppSettings.h>

#include <tests/support/Waiting.h>

#include <QDir>
#include <QSignalSpy>
#include <QWidget>

using namespace Norvane::UI;

class tst_DialogProgressManager : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void placeComesBackOnce();
};

// One test, as there is one first time in a process.
void tst_DialogProgressManager::placeComesBackOnce()
{
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope,
                       QDir::currentPath() + QString::fromLatin1("/tst_DialogProgressManager.d"));
    AppSettings::SetName("norvane-test");
    const QString key = QString::fromLatin1("Progress/WindowLocations/Progress");
    const QRect screen = Screens::availableGeometry(0);
    const QRect kept(screen.topLeft() + QPoint(120, 130), QSize(700, 240));

    DialogProgressManager manager;
    QWidget* const dialog = manager.progressWidget();
    dialog->move(kept.topLeft());
    dialog->resize(kept.size());
    manager.saveState();
    QCOMPARE(AppSettings().value(key).toRect(), kept);

    dialog->move(0, 0);
    QVERIFY(manager.restoreState());
    QVERIFY(dialog->isVisible() && !dialog->testAttribute(Qt::WA_Moved));
    QCOMPARE(dialog->size(), kept.size());
    WAIT_FOR(dialog->pos() == kept.topLeft());

    dialog->move(screen.topLeft());
    QVERIFY(!manager.restoreState());
    QVERIFY(dialog->pos() != kept.topLeft());
}

QTEST_MAIN(tst_DialogProgressManager)
#include "tst_DialogProgressManager.moc"

// Shows a progress dialog with a row in each state, with --dark on a dark ground. A thread does the work that
// the first row is about.

#include "../host/Palettes.h"

#include <ui/progress/DialogProgressManager.h>
#include <ui/progress/ProgressTask.h>
#include <ui/toolkit/Application.h>
#include <ui/widgets/AppSettings.h>

#include <QApplication>
#include <QThread>
#include <QWidget>

using namespace Norvane::UI;

namespace {

QString text(const char* latin1)
{
    return QString::fromLatin1(latin1);
}

/// A job of a minute that can be paused and cancelled.
class Work : public QThread
{
    void run() override
    {
        const int steps = 600;
        ProgressTask task(text("Rendering"), steps,
                          ProgressTask::kUserCanCancel | ProgressTask::kUserCanPause |
                              ProgressTask::kShowTimeToGo);
        for (int step = 0; step < steps && !task.isCancelled(); ++step) {
            task.setMessage(text("Frame %1 of %2").arg(step + 1).arg(steps));
            do
                msleep(100);
            while (task.isPaused() && !task.isCancelled());
            task.setProgress(step + 1);
        }
    }
};

} // namespace

int main(int argc, char** argv)
{
    enableHighDensity();
    QApplication application(argc, argv);
    QApplication::setStyle(text("Fusion"));
    Norvane::Host::Palettes::apply(QApplication::arguments().contains(text("--dark")));
    AppSettings::SetName("norvane-progress");
    DialogProgressManager manager;
    manager.progressWidget()->setFixedSize(650, 480);
    QObject::connect(manager.progressWidget(), SIGNAL(closing()), &application, SLOT(quit()));

    Work work;
    work.start();
    const int flags = ProgressTask::kUserCanCancel | ProgressTask::kShowTimeToGo;
    ProgressTask films(text("Films"), 3, flags);
    films.setProgress(0);
    ProgressTask waiting(text("A film with a name that is too long"), 100, flags, &films);
    waiting.setMessage(
        text("Behind all the others, which were here first and have much longer messages than this"));
    ProgressTask cancelled(text("Second film"), 100, flags, &films);
    cancelled.setProgress(70);
    cancelled.setCancelled(true);
    ProgressTask failed(text("Saving"), 100, flags);
    failed.setProgress(40);
    failed.setErrorState(text("The disk is full."));
    ProgressTask disabled(text("Archive"), 100, flags | ProgressTask::kDisable);

    const int result = QApplication::exec();
    work.wait();
    return result;
}

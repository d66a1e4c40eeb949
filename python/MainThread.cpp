#include <python/MainThread.h>

#include <QCoreApplication>
#include <QThread>

namespace Norvane { namespace UI {

bool isMainThread()
{
    const QCoreApplication* const application = QCoreApplication::instance();
    return application && application->thread() == QThread::currentThread();
}

}} // namespace Norvane::UI

#include <ui/progress/TimeToGo.h>

#include <ui/progress/TaskPrivate.h>

#include <QCoreApplication>

#include <limits>

namespace Norvane { namespace UI {

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(ProgressWidget)
};

QString minutesAndSeconds(int minutes, int seconds)
{
    const QString text = minutes == 1 ? Texts::tr("Time to go: %1 minute %2 seconds.")
                                      : Texts::tr("Time to go: %1 minutes %2 seconds.");
    return text.arg(minutes).arg(seconds);
}

QString hoursAndMinutes(int hours, int minutes)
{
    static const char* const texts[2][2] = {
        {QT_TRANSLATE_NOOP("ProgressWidget", "Time to go: %1 hours %2 minutes."),
         QT_TRANSLATE_NOOP("ProgressWidget", "Time to go: %1 hours %2 minute.")},
        {QT_TRANSLATE_NOOP("ProgressWidget", "Time to go: %1 hour %2 minutes."),
         QT_TRANSLATE_NOOP("ProgressWidget", "Time to go: %1 hour %2 minute.")}};
    return Texts::tr(texts[hours == 1][minutes == 1]).arg(hours).arg(minutes);
}

} // namespace

int secondsToGo(int elapsed, int progress, int maximum)
{
    const float ratio = (float(maximum) - float(progress)) / float(progress);
    const float remaining = float(elapsed) * ratio + 0.5f;
    // No int holds 2 to the power of 31, the nearest float.
    const float limit = float(std::numeric_limits<int>::max());
    return remaining > -limit && remaining < limit ? int(remaining) : -1;
}

QString timeToGoText(int seconds)
{
    if (seconds < 0)
        return Texts::tr("Time to go: ?");
    if (seconds < 60)
        return Texts::tr("Time to go: %1 seconds.").arg(seconds);
    if (seconds < 180)
        return minutesAndSeconds(seconds / 60, seconds % 60);
    if (seconds < 3600)
        return Texts::tr("Time to go: %1 minutes.").arg(seconds / 60);
    return hoursAndMinutes(seconds / 3600, seconds / 60 % 60);
}

QString timeToGoText(const TaskPrivate& task)
{
    if (task.error)
        return QString();
    if (task.cancelled)
        return Texts::tr("Cancelling");
    const int progress = task.progress;
    if (progress < 0)
        return Texts::tr("Time to go: Awaiting Task");
    if (progress == 0)
        return Texts::tr("Time to go: Calculating");
    const int elapsed = task.startTime.secsTo(QTime::currentTime());
    return timeToGoText(secondsToGo(elapsed, progress, task.maximum));
}

}} // namespace Norvane::UI

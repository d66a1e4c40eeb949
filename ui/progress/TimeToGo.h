#pragma once

#include <QString>

namespace Norvane { namespace UI {

class TaskPrivate;

/// Seconds that the rest of a job takes if it goes on as in the first \a elapsed seconds, with \a progress
/// (above 0) of \a maximum units done. Negative if that makes no sense: more done than there was, or midnight
/// passed meanwhile.
int secondsToGo(int elapsed, int progress, int maximum);

/// "Time to go: 2 minutes 5 seconds." and the like; "Time to go: ?" for negative \a seconds.
QString timeToGoText(int seconds);

/// The third line of a task's row: the time to go, or why there is none.
QString timeToGoText(const TaskPrivate& task);

}} // namespace Norvane::UI

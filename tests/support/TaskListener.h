#pragma once

#include <ui/progress/ProgressTask.h>

#include <QString>

#include <functional>

namespace NorvaneTest {

/// A task that remembers what the user did: "c" cancelled, "p" paused, "r" resumed.
class TaskListener : public Norvane::UI::ProgressTask
{
public:
    TaskListener(int flags, Norvane::UI::ProgressManager* manager, ProgressTask* parent = nullptr)
        : ProgressTask(QString::fromLatin1("Task"), 10, flags, parent, manager)
    {
    }
    ~TaskListener() override { stopCallbacks(); }

    void taskCancelled() override
    {
        told += QLatin1Char('c');
        whenCancelled();
    }
    void taskPaused() override { told += QLatin1Char('p'); }
    void taskResumed() override { told += QLatin1Char('r'); }
    bool taskHide() override
    {
        ++looks;
        return hides;
    }
    void doProgressCallback() override { reported = progress(); }

    QString told;
    std::function<void()> whenCancelled = [] {};
    int looks = 0;
    bool hides = false;
    int reported = -1;
};

} // namespace NorvaneTest

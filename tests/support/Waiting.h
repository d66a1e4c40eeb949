#pragma once

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QtTest>

/// Waiting for what the event loop or the window system brings about, and what Qt 4's test library calls
/// differently: it is the one without QTRY_VERIFY.

#ifdef QTRY_VERIFY
#define NORVANE_SKIP(reason) QSKIP(reason)
#else
#define NORVANE_SKIP(reason) QSKIP(reason, SkipSingle)
#endif

/// Runs the event loop until \a condition holds; the test fails if that does not happen within five seconds.
#define WAIT_FOR(condition)                                                                                  \
    QVERIFY2(NorvaneTest::waitUntil([&] { return static_cast<bool>(condition); }), #condition)

namespace NorvaneTest {

/// Deletes what called deleteLater().
inline void deleteDeferred()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

template <typename Condition>
bool waitUntil(Condition condition, int milliseconds = 5000)
{
    QElapsedTimer timer;
    timer.start();
    deleteDeferred();
    while (!condition() && timer.elapsed() < milliseconds) {
        QTest::qWait(5);
        deleteDeferred();
    }
    return condition();
}

} // namespace NorvaneTest

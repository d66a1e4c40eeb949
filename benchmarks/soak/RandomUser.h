#pragma once

#include <QElapsedTimer>
#include <QList>
#include <QMap>
#include <QObject>
#include <QPoint>
#include <QProcess>
#include <QStringList>
#include <QTimer>

#include <random>

class QLineEdit;
class QWidget;

namespace Norvane { namespace Benchmarks {

/// Uses the windows of this program as a restless person would: with the real mouse and the real keyboard, by
/// way of xdotool. What it does depends on a seed and on what the windows show.
class RandomUser : public QObject
{
    Q_OBJECT
public:
    /// \a layout and \a emptyLayout are the paths of layout files. The first one is opened now and then.
    RandomUser(unsigned seed, const QString& layout, const QString& emptyLayout);

    /// Does one thing after the other for so long, then emits finished(). Dialogs that open are closed.
    void use(int milliseconds);
    /// Closes what is open, opens the empty layout and the other one, waits until nothing works any more and
    /// emits finished().
    void rest();

    /// How often it did what.
    const QMap<QString, int>& deeds() const { return m_deeds; }

Q_SIGNALS:
    void finished();

private Q_SLOTS:
    void tick();

private:
    /// Arguments for xdotool.
    typedef QStringList Gesture;
    enum Phase { kIdle, kUse, kRest };

    bool isToolBusy() const { return m_tool.state() != QProcess::NotRunning; }
    bool dismissDialog();
    void doSomething();

    Gesture dragTab();
    Gesture pressTitleButton();
    Gesture chooseFromMenu();
    Gesture grade();
    Gesture lookAround();
    Gesture pressKeys();
    Gesture typeText();
    Gesture runScript();
    Gesture meddleWithTasks();
    Gesture resizeWindow();
    Gesture openLayout();
    Gesture open(const QString& layout) const;
    Gesture typeInto(const QLineEdit* line, const QString& text);

    int upTo(int limit);
    double fraction();
    QPoint pointIn(const QWidget* widget);
    QPoint pointOnDesktop();
    /// One of the widgets that are to be seen and inherit one of the classes; null if there is none.
    QWidget* anyVisible(const QStringList& classes);
    Gesture click(const QPoint& point) const;
    Gesture drag(const QPoint& from, const QPoint& to) const;

    std::mt19937 m_random;
    const QString m_layout;
    const QString m_emptyLayout;
    QProcess m_tool;
    QTimer m_ticks;
    QElapsedTimer m_time;
    int m_duration = 0;
    Phase m_phase = kIdle;
    /// Ticks that a dialog has been open.
    int m_dialogAge = 0;
    /// Before other things, in this order.
    QList<Gesture> m_planned;
    QMap<QString, int> m_deeds;
};

}} // namespace Norvane::Benchmarks

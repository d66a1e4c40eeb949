#pragma once

#include <QObject>
#include <QString>

namespace Norvane { namespace Host {

class PictureList;

/// The Python interpreter of the program, started when it is first used. Scripts run on the main thread and
/// may start threads of their own; they import "norvane", with the library's functions and type for scripts
/// and pictures(), the list of the paths of the open pictures, which is for the main thread only.
///
/// One at a time. In a program that was built without Python it only says so.
class ScriptInterpreter : public QObject
{
    Q_OBJECT
public:
    /// \a pictures is not owned.
    explicit ScriptInterpreter(const PictureList* pictures, QObject* parent = nullptr);
    ~ScriptInterpreter() override;

    /// What is shown above the first prompt.
    static QString greeting();
    /// Whether a script's thread could not be stopped. The program must then end without tidying up, as that
    /// thread may still use anything.
    static bool hasThreadsLeft();

    /// Takes a line of the prompt. True if the statement needs more lines.
    bool push(const QString& line);
    /// Runs a script; \a name is what tracebacks call it.
    void run(const QByteArray& script, const QString& name);

    /// A script is running on the main thread and lets the program process its events.
    bool isRunning() const;
    /// Raises KeyboardInterrupt in it.
    void interrupt();
    /// Stops the threads of scripts and frees what scripts made. Processes events for some seconds if need
    /// be.
    void finish();

Q_SIGNALS:
    /// On any thread.
    void written(const QString& text, bool isError);
    void runningChanged(bool isRunning);

private:
    class Turn;
    void start();
    void stopThreads();

    const PictureList* const m_pictures;
    bool m_isStarted = false;
    bool m_isRunning = false;
};

}} // namespace Norvane::Host

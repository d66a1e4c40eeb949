#pragma once

#include <QString>
#include <QStringList>
#include <QWidget>

class QAction;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QToolButton;

namespace Norvane { namespace Host {

class ScriptInterpreter;

/// A panel with a Python prompt, which also runs scripts from files and the program's examples. The layout
/// state is the lines last typed, which the arrow keys bring back.
class ScriptPanel : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString layoutState READ layoutState WRITE setLayoutState)
public:
    /// \a interpreter is not owned and lives longer. \a number tells several panels apart.
    ScriptPanel(ScriptInterpreter* interpreter, int number, QWidget* parent = nullptr);

    QString layoutState() const;
    void setLayoutState(const QString& text);

public Q_SLOTS:
    /// Runs the script in the file \a path, or tells that it cannot be read.
    void runFile(const QString& path);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private Q_SLOTS:
    void enterLine();
    void chooseScript();
    void runExample(QAction* action);
    void stop();
    void write(const QString& text, bool isError = false);
    void showRunning(bool isRunning);

private:
    QWidget* buildButtons();
    QWidget* buildPrompt();
    QToolButton* addButton(QWidget* row, const QString& text, const QString& help);
    void run(const QString& path, const QString& name);
    void recall(int step);
    void showPrompt();

    ScriptInterpreter* const m_interpreter;
    QPlainTextEdit* const m_output;
    QLabel* const m_prompt;
    QLineEdit* const m_input;
    QToolButton* m_stop = nullptr;
    QStringList m_history;
    /// Of m_history; its size for a line that is being typed.
    int m_recalled = 0;
    bool m_needsMore = false;
};

}} // namespace Norvane::Host

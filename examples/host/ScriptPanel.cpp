#include "ScriptPanel.h"

#include "ScriptInterpreter.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QSettings>
#include <QToolButton>

// The linker takes resources out of a static library only where they are asked for.
static void initializeScripts()
{
    Q_INIT_RESOURCE(scripts);
}

namespace Norvane { namespace Host {

namespace {

const int kMostLines = 10000;
const int kMostHistory = 50;

struct Example {
    const char* file;
    const char* text;
};

const Example kExamples[] = {
    {"task.py", QT_TRANSLATE_NOOP("Norvane::Host::ScriptPanel", "A Task with Progress")},
    {"pictures.py", QT_TRANSLATE_NOOP("Norvane::Host::ScriptPanel", "A Thread That Asks for the Pictures")},
    {"exception.py", QT_TRANSLATE_NOOP("Norvane::Host::ScriptPanel", "An Exception That Comes Back")},
};

QFont fixedFont()
{
    QFont font(QLatin1String("monospace"));
    font.setStyleHint(QFont::TypeWriter);
    return font;
}

QColor errorColor(const QPalette& palette)
{
    const bool isDark = palette.color(QPalette::Base).lightness() < 128;
    return isDark ? QColor(255, 138, 128) : QColor(176, 0, 32);
}

} // namespace

ScriptPanel::ScriptPanel(ScriptInterpreter* interpreter, int number, QWidget* parent)
    : QWidget(parent)
    , m_interpreter(interpreter)
    , m_output(new QPlainTextEdit)
    , m_prompt(new QLabel)
    , m_input(new QLineEdit)
{
    initializeScripts();
    setWindowTitle(number > 1 ? tr("Script %1").arg(number) : tr("Script"));
    m_output->setReadOnly(true);
    m_output->setFrameShape(QFrame::NoFrame);
    m_output->setMaximumBlockCount(kMostLines);
    m_output->setFont(fixedFont());
    m_output->document()->setDocumentMargin(8);
    m_output->setFocusPolicy(Qt::ClickFocus);
    m_output->setAccessibleName(tr("Output of scripts"));

    QVBoxLayout* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(buildButtons());
    layout->addWidget(m_output, 1);
    layout->addWidget(buildPrompt());
    setFocusProxy(m_input);
    showPrompt();
    write(ScriptInterpreter::greeting() + QLatin1Char('\n'));

    connect(interpreter, SIGNAL(written(QString, bool)), this, SLOT(write(QString, bool)));
    connect(interpreter, SIGNAL(runningChanged(bool)), this, SLOT(showRunning(bool)));
    showRunning(interpreter->isRunning());
}

QWidget* ScriptPanel::buildButtons()
{
    QWidget* const row = new QWidget;
    QHBoxLayout* const layout = new QHBoxLayout(row);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->setSpacing(4);
    connect(addButton(row, tr("Run..."), tr("Runs a script from a file.")), SIGNAL(clicked()), this,
            SLOT(chooseScript()));
    QToolButton* const examples =
        addButton(row, tr("Examples"), tr("Runs a script that comes with the program."));
    QMenu* const menu = new QMenu(examples);
    for (const Example& example : kExamples)
        menu->addAction(tr(example.text))->setData(QLatin1String(example.file));
    connect(menu, SIGNAL(triggered(QAction*)), this, SLOT(runExample(QAction*)));
    examples->setMenu(menu);
    examples->setPopupMode(QToolButton::InstantPopup);
    layout->addStretch();
    m_stop = addButton(row, tr("Stop"), tr("Stops the script that keeps the program busy."));
    connect(m_stop, SIGNAL(clicked()), this, SLOT(stop()));
    connect(addButton(row, tr("Clear"), tr("Empties the output.")), SIGNAL(clicked()), m_output,
            SLOT(clear()));
    return row;
}

QToolButton* ScriptPanel::addButton(QWidget* row, const QString& text, const QString& help)
{
    QToolButton* const button = new QToolButton;
    button->setText(text);
    button->setToolTip(help);
    button->setWhatsThis(help);
    button->setAutoRaise(true);
    row->layout()->addWidget(button);
    return button;
}

QWidget* ScriptPanel::buildPrompt()
{
    QWidget* const row = new QWidget;
    QHBoxLayout* const layout = new QHBoxLayout(row);
    layout->setContentsMargins(8, 4, 4, 4);
    layout->setSpacing(6);
    m_prompt->setFont(fixedFont());
    m_input->setFont(fixedFont());
    m_input->setAccessibleName(tr("Python prompt"));
    m_input->setWhatsThis(tr("Type a line of Python. The up and down keys bring earlier lines back."));
    m_input->installEventFilter(this);
    // Python reads from the left, whatever the language of the program.
    row->setLayoutDirection(Qt::LeftToRight);
    m_output->setLayoutDirection(Qt::LeftToRight);
    layout->addWidget(m_prompt);
    layout->addWidget(m_input);
    connect(m_input, SIGNAL(returnPressed()), this, SLOT(enterLine()));
    return row;
}

QString ScriptPanel::layoutState() const
{
    return m_history.join(QLatin1String("\n"));
}

void ScriptPanel::setLayoutState(const QString& text)
{
    m_history = text.isEmpty() ? QStringList() : text.split(QLatin1Char('\n'));
    m_recalled = int(m_history.size());
}

void ScriptPanel::enterLine()
{
    if (m_interpreter->isRunning())
        return;
    const QString line = m_input->text();
    write(m_prompt->text() + QLatin1Char(' ') + line + QLatin1Char('\n'));
    m_input->clear();
    if (!line.trimmed().isEmpty() && (m_history.isEmpty() || m_history.last() != line))
        m_history.append(line);
    while (m_history.size() > kMostHistory)
        m_history.removeFirst();
    m_recalled = int(m_history.size());
    m_needsMore = m_interpreter->push(line);
    showPrompt();
}

void ScriptPanel::showPrompt()
{
    m_prompt->setText(m_needsMore ? QLatin1String("...") : QLatin1String(">>>"));
}

bool ScriptPanel::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Up || key == Qt::Key_Down) {
            recall(key == Qt::Key_Up ? -1 : 1);
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void ScriptPanel::recall(int step)
{
    m_recalled = qBound(0, m_recalled + step, int(m_history.size()));
    m_input->setText(m_history.value(m_recalled));
}

void ScriptPanel::chooseScript()
{
    const QString folderKey = QLatin1String("Folders/Scripts");
    const QString path = QFileDialog::getOpenFileName(
        this, tr("Run Script"), QSettings().value(folderKey).toString(), tr("Python scripts (*.py)"));
    if (path.isEmpty())
        return;
    QSettings().setValue(folderKey, QFileInfo(path).path());
    runFile(path);
}

void ScriptPanel::runExample(QAction* action)
{
    const QString name = action->data().toString();
    run(QLatin1String(":/scripts/") + name, name);
}

void ScriptPanel::runFile(const QString& path)
{
    run(path, QDir::toNativeSeparators(path));
}

void ScriptPanel::run(const QString& path, const QString& name)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        write(tr("\"%1\" cannot be read: %2").arg(name, file.errorString()) + QLatin1Char('\n'), true);
        return;
    }
    write(tr("Running %1").arg(name) + QLatin1Char('\n'));
    m_interpreter->run(file.readAll(), name);
}

void ScriptPanel::stop()
{
    m_interpreter->interrupt();
}

void ScriptPanel::write(const QString& text, bool isError)
{
    QScrollBar* const bar = m_output->verticalScrollBar();
    const bool follow = bar->value() == bar->maximum();
    QTextCharFormat format;
    if (isError)
        format.setForeground(errorColor(m_output->palette()));
    QTextCursor cursor(m_output->document());
    cursor.movePosition(QTextCursor::End);
    cursor.insertText(text, format);
    if (follow)
        bar->setValue(bar->maximum());
}

void ScriptPanel::showRunning(bool isRunning)
{
    m_stop->setEnabled(isRunning);
    m_input->setEnabled(!isRunning);
    if (!isRunning && isAncestorOf(focusWidget()))
        m_input->setFocus();
}

}} // namespace Norvane::Host

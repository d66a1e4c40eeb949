#include <benchmarks/soak/RandomUser.h>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QWidget>

#include <algorithm>

namespace Norvane { namespace Benchmarks {

namespace {

/// Between two looks at what to do.
const int kTick = 30;
/// How long a dialog may stay, in ticks.
const int kDialogTicks = 12;
/// Idle threads of a pool end after half a minute.
const int kRestTime = 40000;

QString text(int number)
{
    return QString::number(number);
}

QStringList words(const char* sentence)
{
    return QString::fromLatin1(sentence).split(QLatin1Char(' '));
}

/// Entries of menus and of the menus in them, without the one that ends the program.
QList<QAction*> entriesOf(const QList<QAction*>& actions)
{
    QList<QAction*> entries;
    for (QAction* const action : actions) {
        if (action->menu())
            entries += entriesOf(action->menu()->actions());
        else if (action->isEnabled() && !action->isSeparator() &&
                 !action->text().contains(QLatin1String("Quit")))
            entries.append(action);
    }
    return entries;
}

} // namespace

RandomUser::RandomUser(unsigned seed, const QString& layout, const QString& emptyLayout)
    : m_random(seed)
    , m_layout(layout)
    , m_emptyLayout(emptyLayout)
{
    m_tool.setProcessChannelMode(QProcess::ForwardedChannels);
    connect(&m_ticks, SIGNAL(timeout()), this, SLOT(tick()));
    m_ticks.start(kTick);
}

void RandomUser::use(int milliseconds)
{
    m_phase = kUse;
    m_duration = milliseconds;
    m_time.start();
}

void RandomUser::rest()
{
    m_phase = kRest;
    m_duration = kRestTime;
    m_time.start();
    m_planned.clear();
    // A stray key may have written something, and notes with a text are kept when they are closed.
    const QWidgetList widgets = QApplication::allWidgets();
    for (QWidget* const widget : widgets) {
        if (widget->inherits("Norvane::Host::NotesPanel"))
            QMetaObject::invokeMethod(widget, "clear");
    }
    for (int i = 0; i < 4; ++i)
        m_planned.append(words("key Escape"));
    // Panels that are not in it are deleted, with what they have read and shrunk.
    m_planned.append(open(m_emptyLayout));
    m_planned.append(open(m_layout));
}

// Comes in the event loops of menus and dialogs, too.
void RandomUser::tick()
{
    if (m_phase == kIdle || isToolBusy())
        return;
    if (!m_planned.isEmpty()) {
        const Gesture gesture = m_planned.takeFirst();
        if (gesture.first() != QLatin1String("type") || qobject_cast<QLineEdit*>(QApplication::focusWidget()))
            m_tool.start(QLatin1String("xdotool"), gesture);
    } else if (dismissDialog()) {
        return;
    } else if (m_time.elapsed() > m_duration) {
        m_phase = kIdle;
        Q_EMIT finished();
    } else if (m_phase == kUse) {
        doSomething();
    }
}

bool RandomUser::dismissDialog()
{
    if (!QApplication::activeModalWidget() && !QApplication::activePopupWidget()) {
        m_dialogAge = 0;
        return false;
    }
    if (++m_dialogAge > kDialogTicks)
        m_planned.append(words("key Escape"));
    return true;
}

void RandomUser::doSomething()
{
    struct Deed {
        const char* name;
        int weight;
        Gesture (RandomUser::*make)();
    };
    static const Deed deeds[] = {
        {"drag a tab", 8, &RandomUser::dragTab},
        {"press a title button", 3, &RandomUser::pressTitleButton},
        {"choose from a menu", 6, &RandomUser::chooseFromMenu},
        {"grade", 8, &RandomUser::grade},
        {"look around", 4, &RandomUser::lookAround},
        {"press keys", 6, &RandomUser::pressKeys},
        {"type", 2, &RandomUser::typeText},
        {"run a script", 2, &RandomUser::runScript},
        {"meddle with tasks", 4, &RandomUser::meddleWithTasks},
        {"resize a window", 1, &RandomUser::resizeWindow},
        {"open a layout", 1, &RandomUser::openLayout},
    };
    int sum = 0;
    for (const Deed& deed : deeds)
        sum += deed.weight;
    int choice = upTo(sum);
    const Deed* deed = deeds;
    while (choice >= deed->weight)
        choice -= (deed++)->weight;
    const Gesture gesture = (this->*deed->make)();
    if (gesture.isEmpty())
        return;
    ++m_deeds[QString::fromLatin1(deed->name)];
    m_planned.append(gesture);
}

RandomUser::Gesture RandomUser::dragTab()
{
    const QWidget* const tabs = anyVisible(words("Norvane::UI::DockTabBar"));
    if (!tabs)
        return Gesture();
    const QWidget* const pane = anyVisible(words("Norvane::UI::Dock"));
    return drag(pointIn(tabs), pane && upTo(4) ? pointIn(pane) : pointOnDesktop());
}

RandomUser::Gesture RandomUser::pressTitleButton()
{
    const QWidget* const button = anyVisible(words("Norvane::UI::TitleBarButton"));
    return button ? click(pointIn(button)) : Gesture();
}

// Not by the mouse: half of the menus would only be opened and left.
RandomUser::Gesture RandomUser::chooseFromMenu()
{
    const QMainWindow* const window = qobject_cast<QMainWindow*>(anyVisible(words("QMainWindow")));
    const QList<QAction*> entries = window ? entriesOf(window->menuBar()->actions()) : QList<QAction*>();
    if (entries.isEmpty())
        return Gesture();
    QMetaObject::invokeMethod(entries[upTo(int(entries.size()))], "trigger", Qt::QueuedConnection);
    return words("sleep 0.05");
}

RandomUser::Gesture RandomUser::grade()
{
    const QWidget* const control =
        anyVisible(words("Norvane::UI::ColorWheel Norvane::UI::ColorSlider Norvane::UI::Slider"));
    return control ? drag(pointIn(control), pointIn(control)) : Gesture();
}

RandomUser::Gesture RandomUser::lookAround()
{
    const QWidget* const picture = anyVisible(words("Norvane::Host::PictureView"));
    if (!picture)
        return Gesture();
    const QPoint point = pointIn(picture);
    const QStringList ways = words("drag click:4 click:5 key:plus key:minus key:0 key:f");
    const QString way = ways[upTo(int(ways.size()))];
    return way == ways.first() ? drag(point, pointIn(picture)) : click(point) << way.split(QLatin1Char(':'));
}

RandomUser::Gesture RandomUser::pressKeys()
{
    const QStringList keys =
        words("ctrl+1 ctrl+2 ctrl+3 ctrl+alt+z ctrl+alt+z ctrl+alt+shift+z ctrl+shift+a Tab Escape "
              "Left Right Up Down");
    return words("key") << keys[upTo(int(keys.size()))];
}

RandomUser::Gesture RandomUser::typeText()
{
    const QLineEdit* const line = qobject_cast<QLineEdit*>(anyVisible(words("QLineEdit")));
    if (!line)
        return Gesture();
    const QStringList texts = words("City e .png /tmp nothing");
    return typeInto(line, texts[upTo(int(texts.size()))]);
}

RandomUser::Gesture RandomUser::runScript()
{
    const QWidget* const panel = anyVisible(words("Norvane::Host::ScriptPanel"));
    const QLineEdit* const prompt = panel ? panel->findChild<QLineEdit*>() : nullptr;
    if (!prompt)
        return Gesture();
    static const char* const lines[] = {"sum(range(100000))", "norvane.pictures()", "raise ValueError(1)",
                                        "import threading; threading.Thread(target=norvane.pictures).start()",
                                        "t = norvane.ProgressTask('Soak', 10); t.setProgress(5); del t"};
    return typeInto(prompt, QString::fromLatin1(lines[upTo(5)])) << words("key Return");
}

RandomUser::Gesture RandomUser::typeInto(const QLineEdit* line, const QString& text)
{
    m_planned.append(click(pointIn(line)));
    return words("type --delay 5 --args 1") << text;
}

// Pauses, resumes, cancels and clears, whichever button it meets.
RandomUser::Gesture RandomUser::meddleWithTasks()
{
    const QWidget* const dialog = anyVisible(words("Norvane::UI::ProgressDialog"));
    const QList<QAbstractButton*> buttons =
        dialog ? dialog->findChildren<QAbstractButton*>() : QList<QAbstractButton*>();
    if (buttons.isEmpty())
        return Gesture();
    const QAbstractButton* const button = buttons[upTo(int(buttons.size()))];
    return button->isVisible() ? click(pointIn(button)) : Gesture();
}

RandomUser::Gesture RandomUser::resizeWindow()
{
    if (QWidget* const window = anyVisible(words("QMainWindow Norvane::UI::DockWindow")))
        window->window()->resize(400 + upTo(800), 300 + upTo(600));
    return words("sleep 0.1");
}

RandomUser::Gesture RandomUser::openLayout()
{
    return open(m_layout);
}

RandomUser::Gesture RandomUser::open(const QString& layout) const
{
    return words("key ctrl+shift+o sleep 1 type --delay 5 --args 1") << layout << words("key Return sleep 1");
}

int RandomUser::upTo(int limit)
{
    return std::uniform_int_distribution<int>(0, limit - 1)(m_random);
}

double RandomUser::fraction()
{
    return std::uniform_real_distribution<double>(0, 1)(m_random);
}

QPoint RandomUser::pointIn(const QWidget* widget)
{
    const QPoint point(int(fraction() * widget->width()), int(fraction() * widget->height()));
    // Windows may reach beyond the desktop, where no mouse gets.
    const QPoint global = widget->mapToGlobal(point);
    return QPoint(std::max(global.x(), 0), std::max(global.y(), 0));
}

QPoint RandomUser::pointOnDesktop()
{
    return QPoint(upTo(1280), upTo(1024));
}

QWidget* RandomUser::anyVisible(const QStringList& classes)
{
    QWidgetList found;
    const QWidgetList widgets = QApplication::allWidgets();
    for (QWidget* const widget : widgets) {
        for (const QString& name : classes) {
            if (widget->isVisible() && widget->inherits(name.toLatin1().constData())) {
                found.append(widget);
                break;
            }
        }
    }
    return found.isEmpty() ? nullptr : found[upTo(int(found.size()))];
}

RandomUser::Gesture RandomUser::click(const QPoint& point) const
{
    return words("mousemove") << text(point.x()) << text(point.y()) << words("click 1");
}

RandomUser::Gesture RandomUser::drag(const QPoint& from, const QPoint& to) const
{
    const int steps = 4;
    Gesture gesture = words("mousemove");
    gesture << text(from.x()) << text(from.y()) << words("mousedown 1");
    for (int i = 1; i <= steps; ++i) {
        const QPoint point = from + (to - from) * i / steps;
        gesture << words("sleep 0.02 mousemove") << text(point.x()) << text(point.y());
    }
    return gesture << words("sleep 0.02 mouseup 1");
}

}} // namespace Norvane::Benchmarks

#include <ui/docking/WindowFrame.h>

#include <QBasicTimer>
#include <QEvent>
#include <QTimerEvent>
#include <QWidget>

namespace Norvane { namespace UI {

namespace {

const int kLookInterval = 20; // milliseconds
const int kLooks = 50;
const char kHolderName[] = "norvane.frameHolder";

/// Holds the frame of a window, its parent, and dies when its time is over.
class FrameHolder : public QObject
{
public:
    FrameHolder(QWidget* window, const QRect& frame)
        : QObject(window)
        , m_window(window)
        , m_frame(frame)
    {
        setObjectName(QLatin1String(kHolderName));
        window->installEventFilter(this);
        m_timer.start(kLookInterval, this);
    }

protected:
    // The window system says when a window is decorated or has left full screen, but Qt does not pass it on:
    // the only way is to look again and again.
    void timerEvent(QTimerEvent*) override
    {
        const Qt::WindowStates special = Qt::WindowMaximized | Qt::WindowFullScreen;
        m_correcting = true;
        if (m_window->windowState() & special)
            m_window->setWindowState(m_window->windowState() & ~special);
        else if (m_window->frameGeometry() != m_frame)
            setFrameGeometry(m_window, m_frame);
        m_correcting = false;
        if (--m_looksLeft <= 0)
            end();
    }

    bool eventFilter(QObject*, QEvent* event) override
    {
        switch (event->type()) {
        case QEvent::Move:
        case QEvent::Resize:
        case QEvent::WindowStateChange:
            // Spontaneous ones come from the window manager.
            if (!m_correcting && !event->spontaneous())
                end();
            break;
        case QEvent::MouseButtonPress:
        case QEvent::KeyPress:
            end();
            break;
        default:
            break;
        }
        return false;
    }

private:
    void end()
    {
        m_timer.stop();
        m_window->removeEventFilter(this);
        deleteLater();
    }

    QWidget* const m_window;
    const QRect m_frame;
    QBasicTimer m_timer;
    int m_looksLeft = kLooks;
    bool m_correcting = false;
};

} // namespace

void setFrameGeometry(QWidget* window, const QRect& frame)
{
    const QSize decoration = window->frameSize() - window->size();
    // Qt unmaps a window without size, and some window managers refuse to take it back.
    window->resize((frame.size() - decoration).expandedTo(QSize(1, 1)));
    window->move(frame.topLeft());
}

void holdFrameGeometry(QWidget* window, const QRect& frame)
{
    for (QObject* const child : window->children()) {
        if (child->objectName() == QLatin1String(kHolderName)) {
            delete child;
            break;
        }
    }
    new FrameHolder(window, frame);
}

}} // namespace Norvane::UI

#pragma once

#include <QApplication>
#include <QMouseEvent>
#include <QPointer>
#include <QWidget>

namespace NorvaneTest {

/// A mouse with one button down on a widget, which any step may destroy; later steps do nothing then.
/// Positions are in the widget.
class Hand
{
public:
    Hand(QWidget* widget, const QPoint& position, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
         Qt::MouseButton button = Qt::LeftButton)
        : m_widget(widget)
        , m_position(position)
        , m_modifiers(modifiers)
        , m_button(button)
    {
        send(QEvent::MouseButtonPress, m_button);
    }
    Hand(const Hand&) = delete;
    Hand& operator=(const Hand&) = delete;
    ~Hand() { send(QEvent::MouseButtonRelease, Qt::NoButton); }

    void moveTo(const QPoint& position)
    {
        m_position = position;
        send(QEvent::MouseMove, m_button);
    }
    void moveBy(int x, int y) { moveTo(m_position + QPoint(x, y)); }
    void hold(Qt::KeyboardModifiers modifiers) { m_modifiers = modifiers; }

private:
    void send(QEvent::Type type, Qt::MouseButtons held)
    {
        if (!m_widget)
            return;
        const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : m_button;
        QMouseEvent event(type, m_position, m_widget->mapToGlobal(m_position), button, held, m_modifiers);
        QApplication::sendEvent(m_widget, &event);
    }

    const QPointer<QWidget> m_widget;
    QPoint m_position;
    Qt::KeyboardModifiers m_modifiers;
    const Qt::MouseButton m_button;
};

} // namespace NorvaneTest

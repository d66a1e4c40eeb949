#pragma once

#include <QObject>
#include <QPoint>

class QWidget;

namespace Norvane { namespace Host {

/// Explains controls in bubbles, in the words of their whatsThis() or, if they have none, that of the widget
/// around them.
class ControlHelp : public QObject
{
    Q_OBJECT
public:
    explicit ControlHelp(QObject* parent);
    ~ControlHelp() override;

public Q_SLOTS:
    /// Explains what is clicked next, or, at Return, the control with the keyboard focus. Escape gives up.
    void ask();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void stopAsking();
    void explain(QWidget* control, const QPoint& position);

    bool m_isAsking = false;
};

}} // namespace Norvane::Host

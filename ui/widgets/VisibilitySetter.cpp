#include <ui/widgets/VisibilitySetter.h>

#include <ui/widgets/DisclosureButton.h>

namespace Norvane { namespace UI {

void VisibilitySetter::set(QWidget* widget, bool visible)
{
    const bool isNew = m_entries.find(widget) == m_entries.end();
    m_entries[widget] = Entry{widget, visible};
    DisclosureButton* const button = qobject_cast<DisclosureButton*>(widget);
    if (isNew && button)
        m_buttons.append(button);
}

void VisibilitySetter::apply()
{
    QList<QPointer<DisclosureButton>> changingButtons;
    for (DisclosureButton* const button : m_buttons) {
        if (button->isVisible() != m_entries[button].visible)
            changingButtons.append(button);
    }
    for (const auto& keyAndEntry : m_entries) {
        // Showing one widget may make the host delete another.
        QWidget* const widget = keyAndEntry.second.widget;
        const bool visible = keyAndEntry.second.visible;
        if (widget && visible && !widget->isVisible())
            widget->show();
        else if (widget && !visible && widget->isVisible())
            widget->hide();
    }
    for (const QPointer<DisclosureButton>& button : changingButtons) {
        if (button)
            button->showOrHideWidgets();
    }
}

}} // namespace Norvane::UI

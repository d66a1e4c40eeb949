#pragma once

#include <NorvaneCoreExport.h>

#include <set>

namespace Norvane { namespace UI {

class DisclosureButton;

/// What a widget inherits beside QWidget to decide itself whether an open group shows it, or to be controlled
/// by several disclosure buttons. DisclosureButton::addWidget() and removeWidget() connect the two; remove
/// the widget from its buttons before it or one of them is destroyed.
class NORVANE_CORE_EXPORT DisclosableWidget
{
public:
    DisclosableWidget();
    /// A copy asks the same buttons in isDisclosed(), but they do not know it.
    DisclosableWidget(const DisclosableWidget& other);
    DisclosableWidget& operator=(const DisclosableWidget& other);
    virtual ~DisclosableWidget();

    /// Whether the widget is to be seen when a button shows its group. A widget in several groups usually
    /// answers with isDisclosed(); one that has nothing to show at the moment answers false.
    virtual bool isShownWhenDisclosed() const = 0;

    /// Whether every button that controls the widget is checked; true if none does.
    bool isDisclosed() const;

private:
    friend class DisclosureButton;
    void addButton(DisclosureButton* button);
    void removeButton(DisclosureButton* button);

    std::set<DisclosureButton*> m_buttons;
};

}} // namespace Norvane::UI

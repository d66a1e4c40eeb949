#include <ui/widgets/DisclosableWidget.h>

#include <ui/widgets/DisclosureButton.h>

#include <algorithm>

namespace Norvane { namespace UI {

DisclosableWidget::DisclosableWidget() = default;

DisclosableWidget::DisclosableWidget(const DisclosableWidget& other) = default;

DisclosableWidget& DisclosableWidget::operator=(const DisclosableWidget& other) = default;

DisclosableWidget::~DisclosableWidget() = default;

bool DisclosableWidget::isDisclosed() const
{
    return std::all_of(m_buttons.begin(), m_buttons.end(),
                       [](const DisclosureButton* button) { return button->isChecked(); });
}

void DisclosableWidget::addButton(DisclosureButton* button)
{
    m_buttons.insert(button);
}

void DisclosableWidget::removeButton(DisclosureButton* button)
{
    m_buttons.erase(button);
}

}} // namespace Norvane::UI

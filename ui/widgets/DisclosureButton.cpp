#include <ui/widgets/DisclosureButton.h>

#include <ui/widgets/DisclosableWidget.h>
#include <ui/widgets/VisibilitySetter.h>

#include <QList>
#include <QPainter>
#include <QPainterPath>
#include <QPointer>
#include <QStyle>
#include <QStyleOptionButton>
#include <QStyleOptionFocusRect>

namespace Norvane { namespace UI {

struct DisclosureButton::Private {
    /// In the order added, with duplicates.
    QList<QPointer<QWidget>> widgets;
    bool showAddedWidgets;
    QColor triangleColor;
};

namespace {

/// Whether \a widget is to be seen in a group that is shown.
bool isShownWhenDisclosed(const QWidget* widget)
{
    const DisclosableWidget* const disclosable = dynamic_cast<const DisclosableWidget*>(widget);
    return !disclosable || disclosable->isShownWhenDisclosed();
}

} // namespace

DisclosureButton::DisclosureButton(QWidget* parent, bool showAddedWidgets)
    : QCheckBox(parent)
    , d(new Private)
{
    d->showAddedWidgets = showAddedWidgets;
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

DisclosureButton::~DisclosureButton() = default;

void DisclosureButton::addWidget(QWidget* widget)
{
    d->widgets.append(widget);
    widget->setVisible(isChecked() && d->showAddedWidgets && isShownWhenDisclosed(widget));
    if (DisclosableWidget* const disclosable = dynamic_cast<DisclosableWidget*>(widget))
        disclosable->addButton(this);
}

void DisclosureButton::removeWidget(QWidget* widget)
{
    d->widgets.removeOne(widget);
    if (DisclosableWidget* const disclosable = dynamic_cast<DisclosableWidget*>(widget))
        disclosable->removeButton(this);
}

QColor DisclosureButton::triangleColor() const
{
    return d->triangleColor;
}

void DisclosureButton::setTriangleColor(const QColor& color)
{
    if (color == d->triangleColor)
        return;
    d->triangleColor = color;
    update();
}

void DisclosureButton::setVisible(bool visible)
{
    QCheckBox::setVisible(visible);
    showOrHideWidgets();
}

void DisclosureButton::showOrHideWidgets()
{
    VisibilitySetter setter;
    showOrHideWidgets(setter);
    setter.apply();
}

void DisclosureButton::showOrHideWidgets(VisibilitySetter& setter) const
{
    if (isChecked() && isVisible())
        showWidgets(setter);
    else
        hideWidgets(setter);
}

void DisclosureButton::hideWidgets(VisibilitySetter& setter) const
{
    for (const QPointer<QWidget>& widget : d->widgets) {
        if (widget)
            setter.set(widget, false);
    }
}

// Nested buttons are judged by what they are now: one that only becomes visible in this update applies its
// own group after it.
void DisclosureButton::showWidgets(VisibilitySetter& setter) const
{
    for (const QPointer<QWidget>& widget : d->widgets) {
        if (widget)
            setter.set(widget, isShownWhenDisclosed(widget));
    }
    for (const QPointer<QWidget>& widget : d->widgets) {
        if (const DisclosureButton* const button = qobject_cast<DisclosureButton*>(widget.data()))
            button->showOrHideWidgets(setter);
    }
}

void DisclosureButton::paintEvent(QPaintEvent*)
{
    QStyleOptionButton option;
    initStyleOption(&option);
    QPainter painter(this);
    paintTriangle(painter, option);

    QStyleOptionButton label = option;
    label.rect = style()->subElementRect(QStyle::SE_CheckBoxContents, &option, this);
    style()->drawControl(QStyle::CE_PushButtonLabel, &label, &painter, this);

    if (option.state & QStyle::State_HasFocus) {
        QStyleOptionFocusRect focus;
        focus.QStyleOption::operator=(option);
        focus.rect = style()->subElementRect(QStyle::SE_CheckBoxFocusRect, &option, this);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
    }
}

// Its place does not depend on the style: layouts around the button are tuned to it.
void DisclosureButton::paintTriangle(QPainter& painter, const QStyleOptionButton& option) const
{
    QColor color = d->triangleColor.isValid() ? d->triangleColor : QColor(Qt::black);
    if (!isEnabled())
        color = palette().color(QPalette::Disabled, QPalette::Light);

    QPainterPath path;
    path.moveTo(4, 3);
    path.lineTo(isChecked() ? QPointF(13, 3) : QPointF(12, 7));
    path.lineTo(isChecked() ? QPointF(8, 11) : QPointF(4, 12));
    path.moveTo(style()->subElementRect(QStyle::SE_CheckBoxIndicator, &option, this).topLeft());
    painter.save();
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawPath(path);
    painter.restore();
}

}} // namespace Norvane::UI

#include "Pages.h"

#include <ui/widgets/DisclosureButton.h>

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace Norvane { namespace Gallery {

namespace {

/// Adds a line with a button and its title, further right the deeper the group lies.
UI::DisclosureButton* addGroup(QVBoxLayout* layout, const char* title, int depth)
{
    QWidget* const page = layout->parentWidget();
    UI::DisclosureButton* const button = new UI::DisclosureButton(page, true);
    button->setChecked(true);
    button->setTriangleColor(page->palette().color(QPalette::WindowText));
    QObject::connect(button, SIGNAL(toggled(bool)), button, SLOT(showOrHideWidgets()));
    QHBoxLayout* const line = new QHBoxLayout;
    line->addSpacing(depth * 20);
    line->addWidget(button);
    line->addWidget(new QLabel(QLatin1String(title), page), 1);
    layout->addLayout(line);
    return button;
}

void addOption(QVBoxLayout* layout, UI::DisclosureButton* group, const char* text, int depth)
{
    QCheckBox* const option = new QCheckBox(QLatin1String(text), layout->parentWidget());
    QHBoxLayout* const line = new QHBoxLayout;
    line->addSpacing(depth * 20);
    line->addWidget(option, 1);
    layout->addLayout(line);
    group->addWidget(option);
}

} // namespace

QWidget* createDisclosurePage()
{
    QWidget* const page = new QWidget;
    QVBoxLayout* const layout = new QVBoxLayout(page);
    UI::DisclosureButton* const output = addGroup(layout, "Output", 0);
    addOption(layout, output, "Write a log", 1);
    UI::DisclosureButton* const frames = addGroup(layout, "Frames", 1);
    output->addWidget(frames);
    addOption(layout, frames, "Skip frames that exist", 2);
    addOption(layout, frames, "Pad numbers with zeros", 2);
    UI::DisclosureButton* const colour = addGroup(layout, "Colour", 0);
    colour->setChecked(false);
    addOption(layout, colour, "Convert to video levels", 1);
    layout->addStretch(1);
    page->resize(320, 200);
    return page;
}

}} // namespace Norvane::Gallery

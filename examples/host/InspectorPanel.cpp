#include "InspectorPanel.h"

#include "FactsTable.h"
#include "FrameInspector.h"
#include "ViewerPanel.h"

#include <ui/widgets/DisclosureButton.h>

#include <QEvent>
#include <QHBoxLayout>
#include <QToolButton>
#include <QVBoxLayout>

namespace Norvane { namespace Host {

using UI::DisclosureButton;

namespace {

const int kIndent = 16;

} // namespace

InspectorPanel::InspectorPanel(int number, QWidget* parent)
    : QScrollArea(parent)
{
    setWindowTitle(number > 1 ? tr("Inspector %1").arg(number) : tr("Inspector"));
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    QWidget* const contents = new QWidget(this);
    m_layout = new QVBoxLayout(contents);
    m_layout->setSpacing(2);
    m_layout->addStretch(1);
    setWidget(contents);

    DisclosureButton* const file = addGroup(tr("File"), tr("Where the picture comes from."), nullptr);
    m_file = addTable(file, kIndent);
    DisclosureButton* const picture = addGroup(tr("Picture"), tr("What the file holds."), nullptr);
    m_picture = addTable(picture, kIndent);
    DisclosureButton* const colours =
        addGroup(tr("Colours"), tr("The mean colour of the picture and its extremes."), picture);
    m_colours = addTable(colours, 2 * kIndent);
    m_transparency = addTable(picture, kIndent);
    DisclosureButton* const frame =
        addGroup(tr("Frame"), tr("How the samples of a frame of video are understood."), nullptr);
    m_frame = new FrameInspector(contents);
    addToGroup(frame, m_frame, kIndent);
    connect(m_frame, SIGNAL(frameChanged(QString, QString)), this, SIGNAL(frameChanged(QString, QString)));
    showFrameGroup();
    colourTriangles();
}

DisclosureButton* InspectorPanel::addGroup(const QString& title, const QString& whatsThis,
                                           DisclosureButton* outer)
{
    DisclosureButton* const button = new DisclosureButton(widget(), true);
    button->setChecked(true);
    button->setAccessibleName(title);
    button->setWhatsThis(whatsThis);
    connect(button, SIGNAL(toggled(bool)), button, SLOT(showOrHideWidgets()));
    QToolButton* const label = new QToolButton(widget());
    label->setText(title);
    label->setWhatsThis(whatsThis);
    label->setAutoRaise(true);
    label->setFocusPolicy(Qt::NoFocus);
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    connect(label, SIGNAL(clicked()), button, SLOT(toggle()));

    QHBoxLayout* const line = new QHBoxLayout;
    line->setSpacing(2);
    line->addSpacing(outer ? kIndent : 0);
    line->addWidget(button);
    line->addWidget(label);
    line->addStretch(1);
    m_layout->insertLayout(m_layout->count() - 1, line);
    if (outer) {
        outer->addWidget(button);
        outer->addWidget(label);
    }
    m_groups.append(button);
    m_titles.append(label);
    return button;
}

FactsTable* InspectorPanel::addTable(DisclosureButton* group, int indent)
{
    FactsTable* const table = new FactsTable(widget());
    addToGroup(group, table, indent);
    return table;
}

void InspectorPanel::addToGroup(DisclosureButton* group, QWidget* content, int indent)
{
    QHBoxLayout* const line = new QHBoxLayout;
    line->addSpacing(indent);
    line->addWidget(content);
    m_layout->insertLayout(m_layout->count() - 1, line);
    group->addWidget(content);
}

// The others are never empty for long; this one is there for few pictures.
void InspectorPanel::showFrameGroup()
{
    m_groups.last()->setVisible(m_frame->hasFrame());
    m_titles.last()->setVisible(m_frame->hasFrame());
}

void InspectorPanel::setPicture(const QString& path, const QImage& picture)
{
    m_file->setFacts(path.isEmpty() ? Facts() : fileFacts(path));
    m_picture->setFacts(picture.isNull() ? Facts() : pictureFacts(picture));
    m_colours->setFacts(colourFacts(picture));
    m_transparency->setFacts(transparencyFacts(picture));
    m_frame->setPicture(path);
    showFrameGroup();
    updateGroups();
}

void InspectorPanel::setViewer(ViewerPanel* viewer)
{
    if (viewer)
        setPicture(viewer->picturePath(), viewer->picture());
    else
        setPicture(QString(), QImage());
}

QString InspectorPanel::layoutState() const
{
    QString state;
    for (const DisclosureButton* const group : m_groups)
        state.append(QLatin1Char(group->isChecked() ? '1' : '0'));
    return state;
}

void InspectorPanel::setLayoutState(const QString& text)
{
    for (int i = 0; i < m_groups.size(); ++i)
        m_groups[i]->setChecked(text.mid(i, 1) != QLatin1String("0"));
}

// A button that is not to be seen hides its group, also when the panel is only behind another one.
void InspectorPanel::showEvent(QShowEvent* event)
{
    QScrollArea::showEvent(event);
    updateGroups();
}

void InspectorPanel::updateGroups()
{
    for (DisclosureButton* const group : m_groups)
        group->showOrHideWidgets();
}

void InspectorPanel::changeEvent(QEvent* event)
{
    QScrollArea::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        colourTriangles();
}

void InspectorPanel::colourTriangles()
{
    for (DisclosureButton* const group : m_groups)
        group->setTriangleColor(palette().color(QPalette::WindowText));
}

}} // namespace Norvane::Host

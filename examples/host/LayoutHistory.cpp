#include "LayoutHistory.h"

#include "LayoutDocument.h"

namespace Norvane { namespace Host {

LayoutHistory::LayoutHistory(int most)
    : m_most(most)
{
}

void LayoutHistory::record(const QByteArray& layout)
{
    if (m_present >= 0 &&
        LayoutDocument::arrangementOf(layout) == LayoutDocument::arrangementOf(m_layouts[m_present])) {
        m_layouts[m_present] = layout;
        return;
    }
    while (canRedo())
        m_layouts.removeLast();
    m_layouts.append(layout);
    if (m_layouts.size() > m_most)
        m_layouts.removeFirst();
    m_present = int(m_layouts.size()) - 1;
}

void LayoutHistory::settle(const QByteArray& layout)
{
    if (m_present >= 0 &&
        LayoutDocument::structureOf(layout) == LayoutDocument::structureOf(m_layouts[m_present]))
        m_layouts[m_present] = layout;
    else
        record(layout);
}

void LayoutHistory::keepStates(const QMap<QString, QString>& states)
{
    if (m_present >= 0 && !states.isEmpty())
        m_layouts[m_present] = LayoutDocument::withStates(m_layouts[m_present], states);
}

bool LayoutHistory::canUndo() const
{
    return m_present > 0;
}

bool LayoutHistory::canRedo() const
{
    return m_present + 1 < m_layouts.size();
}

QByteArray LayoutHistory::undo()
{
    return canUndo() ? m_layouts[--m_present] : QByteArray();
}

QByteArray LayoutHistory::redo()
{
    return canRedo() ? m_layouts[++m_present] : QByteArray();
}

}} // namespace Norvane::Host

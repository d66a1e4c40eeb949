#include "FrameSaveDialog.h"

#include "FrameFormat.h"

namespace Norvane { namespace Host {

namespace {

QString suffixOf(const FrameLayout& layout)
{
    return layout.name().toLower();
}

QString filterOf(const FrameLayout& layout)
{
    return FrameSaveDialog::tr("%1 samples (*.%2)").arg(layout.name(), suffixOf(layout));
}

} // namespace

FrameSaveDialog::FrameSaveDialog(const QString& folder, const FrameLayout* layout, QWidget* parent)
    : QFileDialog(parent, tr("Save Frame"), folder)
{
    setAcceptMode(AcceptSave);
    QStringList filters;
    for (const FrameLayout& writable : frameLayouts())
        filters.append(filterOf(writable));
    setNameFilters(filters);
    if (layout)
        selectNameFilter(filterOf(*layout));
    connect(this, SIGNAL(filterSelected(QString)), this, SLOT(takeSuffix()));
    takeSuffix();
}

const FrameLayout& FrameSaveDialog::frameLayout() const
{
    return frameLayouts()[qMax(0, int(nameFilters().indexOf(selectedNameFilter())))];
}

void FrameSaveDialog::takeSuffix()
{
    setDefaultSuffix(suffixOf(frameLayout()));
}

}} // namespace Norvane::Host

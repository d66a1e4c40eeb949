#include <ui/widgets/DropAcceptingListWidget.h>

namespace Norvane { namespace UI {

DropAcceptingListWidget::DropAcceptingListWidget(QWidget* parent)
    : DropAcceptingWidget<QListWidget>(parent)
{
}

DropAcceptingListWidget::~DropAcceptingListWidget() = default;

bool DropAcceptingListWidget::acceptsUrls() const
{
    return acceptsDropsFlags() & AcceptUrls;
}

void DropAcceptingListWidget::takeUrls(bool accept)
{
    const int others = acceptsDropsFlags() & ~AcceptUrls;
    setAcceptsDropsFlags(AcceptedDropFlag(accept ? others | AcceptUrls : others));
}

}} // namespace Norvane::UI

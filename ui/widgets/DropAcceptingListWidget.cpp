#include <ui/widgets/DropAcceptingListWidget.h>

namespace Norvane { namespace UI {

DropAcceptingListWidget::DropAcceptingListWidget(QWidget* parent)
    : DropAcceptingWidget<QListWidget>(parent)
{
}

DropAcceptingListWidget::~DropAcceptingListWidget() = default;

}} // namespace Norvane::UI

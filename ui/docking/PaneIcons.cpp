#include <ui/docking/PaneIcons.h>

#include <QStyleOptionDockWidget>
#include <QWidget>

namespace Norvane { namespace UI {

PaneIcons::PaneIcons(const QWidget* pane)
    : splitVertical(QLatin1String(":/ui/qrc/images/HSplit.png"))
    , splitHorizontal(QLatin1String(":/ui/qrc/images/VSplit.png"))
    , menu(QLatin1String(":/ui/qrc/images/PanelMenu.png"))
    , style(pane->style())
{
    QStyleOptionDockWidget option;
    option.initFrom(pane);
    option.rect = pane->rect();
    option.title = pane->windowTitle();
    option.closable = option.movable = option.floatable = true;
    floating = style->standardIcon(QStyle::SP_TitleBarNormalButton, &option, pane);
    close = style->standardIcon(QStyle::SP_TitleBarCloseButton, &option, pane);
}

}} // namespace Norvane::UI

#include "Hint.h"

#include <QAbstractScrollArea>
#include <QPainter>

namespace Norvane { namespace Host {

void paintHint(QAbstractScrollArea* view, const QString& text)
{
    QPainter painter(view->viewport());
    painter.setPen(view->palette().color(QPalette::Disabled, QPalette::Text));
    painter.drawText(view->viewport()->rect().adjusted(12, 12, -12, -12), Qt::AlignCenter | Qt::TextWordWrap,
                     text);
}

}} // namespace Norvane::Host

#include "ViewerState.h"

#include <QStringList>

#include <cmath>

namespace Norvane { namespace Host {

QString ViewerState::toString() const
{
    if (path.isEmpty())
        return QString();
    if (fitted)
        return QLatin1String("fit|") + path;
    const QString view = QString::number(zoom, 'g', 10) + QLatin1Char(' ') +
                         QString::number(center.x(), 'g', 10) + QLatin1Char(' ') +
                         QString::number(center.y(), 'g', 10);
    return view + QLatin1Char('|') + path;
}

ViewerState ViewerState::fromString(const QString& text)
{
    ViewerState state;
    const int bar = int(text.indexOf(QLatin1Char('|')));
    state.path = text.mid(bar + 1);
    const QStringList numbers = text.left(qMax(0, bar)).split(QLatin1Char(' '));
    if (numbers.size() != 3)
        return state;
    bool zoomIsNumber = false;
    bool xIsNumber = false;
    bool yIsNumber = false;
    const qreal zoom = numbers[0].toDouble(&zoomIsNumber);
    const QPointF center(numbers[1].toDouble(&xIsNumber), numbers[2].toDouble(&yIsNumber));
    const bool finite = std::isfinite(zoom) && std::isfinite(center.x()) && std::isfinite(center.y());
    if (!zoomIsNumber || !xIsNumber || !yIsNumber || !finite || zoom <= 0)
        return state;
    state.fitted = false;
    state.zoom = zoom;
    state.center = center;
    return state;
}

}} // namespace Norvane::Host

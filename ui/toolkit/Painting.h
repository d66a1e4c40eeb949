#pragma once

#include <QFontMetrics>
#include <QPixmap>
#include <QStyleOptionTab>
#include <QWidget>

/// Style options, fonts and pixmaps where Qt generations differ.
namespace Norvane { namespace UI {

#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
using StyleOptionTab = QStyleOptionTab;
#else
using StyleOptionTab = QStyleOptionTabV3;
#endif

/// The advance of \a text in pixels.
inline int textWidth(const QFontMetrics& metrics, const QString& text)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 11, 0)
    return metrics.horizontalAdvance(text);
#else
    return metrics.width(text);
#endif
}

/// Physical pixels for one of \a widget's own, 1.0 where the toolkit knows only one density.
inline qreal devicePixelRatio(const QWidget* widget)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 6, 0)
    return widget->devicePixelRatioF();
#else
    Q_UNUSED(widget);
    return 1.0;
#endif
}

/// Marks \a pixmap as drawn for \a ratio physical pixels to one.
inline void setDevicePixelRatio(QPixmap& pixmap, qreal ratio)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
    pixmap.setDevicePixelRatio(ratio);
#else
    Q_UNUSED(pixmap);
    Q_UNUSED(ratio);
#endif
}

/// A picture of \a widget with its children, as it would be painted now.
inline QPixmap grabPixmap(QWidget* widget)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
    return widget->grab();
#else
    return QPixmap::grabWidget(widget);
#endif
}

}} // namespace Norvane::UI

#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>

/// What layout documents say, apart from how a window restores them. Documents that are no XML are empty to
/// arrangementOf() and structureOf().
namespace Norvane { namespace Host { namespace LayoutDocument {

/// Equal for layouts with the same windows, panes and panels at the same places. What the panels show, which
/// of them is in front, and whether a lone one has a title, makes no difference.
QByteArray arrangementOf(const QByteArray& layout);

/// As arrangementOf(), but places and sizes make no difference either.
QByteArray structureOf(const QByteArray& layout);

/// \a layout with other states of the panels whose ids are in \a states: an empty one leaves the panel as it
/// is. A document that is no XML is returned as it is.
QByteArray withStates(const QByteArray& layout, const QMap<QString, QString>& states);

}}} // namespace Norvane::Host::LayoutDocument

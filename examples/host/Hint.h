#pragma once

class QAbstractScrollArea;
class QString;

namespace Norvane { namespace Host {

/// Paints \a text, in grey, where the contents of an empty \a view would be. Only while that view's viewport
/// is being painted.
void paintHint(QAbstractScrollArea* view, const QString& text);

}} // namespace Norvane::Host

#pragma once

class QLabel;
class QString;
class QWidget;

namespace Norvane { namespace UI {

/// The grey text that lies over an empty line edit and says what to type. A hidden child of \a edit, as large
/// as \a text needs; clicks go through it.
QLabel* createPromptLabel(const QString& text, QWidget* edit);

}} // namespace Norvane::UI

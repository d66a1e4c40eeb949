#pragma once

#include <QString>
#include <QStringList>

class QWidget;

namespace Norvane { namespace Host {

/// Asks the user for the name of an arrangement. \a name is preset, \a others can be chosen. Empty if the
/// user gave none, else without spaces at the ends and line breaks.
QString askForArrangementName(QWidget* parent, const QString& title, const QString& name,
                              const QStringList& others);

}} // namespace Norvane::Host

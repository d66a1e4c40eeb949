#pragma once

#include <QString>
#include <QStringList>

/// The language of all texts: the program's own, those of the library, and Qt's where they are installed.
namespace Norvane { namespace Host { namespace Language {

/// The codes of the languages to choose from, such as "de".
QStringList available();

/// From now on texts and numbers are in the language \a code; those that were asked for before stay as they
/// are. Empty for the user's own language, or English where that is not available. False if \a code is none
/// of those available. Needs an application and lasts as long as it.
bool choose(const QString& code);

}}} // namespace Norvane::Host::Language

#pragma once

#include <NorvaneCoreExport.h>

#include <QSettings>

#include <string>

namespace Norvane { namespace UI {

/// The application's settings: an INI file in the user's folder for them (QSettings::setPath() moves it), and
/// nothing but that file. Made on the stack where settings are read or written; changes are on disk when it
/// is destroyed.
class NORVANE_CORE_EXPORT AppSettings : public QSettings
{
public:
    /// Names the file, without ".ini", for all objects made from now on. The host does so once, before it
    /// uses the library. Not while another thread makes an AppSettings.
    static void SetName(std::string name);

    AppSettings();
    ~AppSettings() override;
};

}} // namespace Norvane::UI

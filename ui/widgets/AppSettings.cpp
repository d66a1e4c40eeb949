#include <ui/widgets/AppSettings.h>

#include <ui/toolkit/Text.h>

#include <utility>

namespace Norvane { namespace UI {

namespace {

std::string& settingsName()
{
    static std::string name;
    return name;
}

} // namespace

void AppSettings::SetName(std::string name)
{
    settingsName() = std::move(name);
}

AppSettings::AppSettings()
    : QSettings(QSettings::IniFormat, QSettings::UserScope, fromAscii(settingsName().c_str()), QString())
{
    setFallbacksEnabled(false);
}

AppSettings::~AppSettings() = default;

}} // namespace Norvane::UI

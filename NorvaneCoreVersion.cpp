#include <NorvaneCoreVersion.h>

namespace Norvane {

const char* coreVersion()
{
    return NORVANE_CORE_VERSION_STRING;
}

} // namespace Norvane

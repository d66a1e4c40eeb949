#pragma once

#include <NorvaneCoreExport.h>

namespace Norvane { namespace Colour {

/// A colour transform, from scene to display for example. This library hands it around and calls nothing on
/// it: an application derives its own operations from it.
class NORVANE_CORE_EXPORT TransformI
{
public:
    virtual ~TransformI() = 0;
};

inline TransformI::~TransformI() = default;

}} // namespace Norvane::Colour

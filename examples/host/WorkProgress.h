#pragma once

#include <QtGlobal>

#include <functional>

namespace Norvane { namespace Host {

/// What a long work calls now and then, on its thread: \a done of \a all is done. False ends the work, which
/// then has failed, without a reason.
typedef std::function<bool(qint64 done, qint64 all)> WorkProgress;

/// For work that nobody follows.
inline bool workToTheEnd(qint64, qint64)
{
    return true;
}

}} // namespace Norvane::Host

#pragma once

#include <atomic>

namespace Norvane { namespace UI {

/// A number that threads share without a lock. Every access is whole, and none tells a thread anything about
/// other data: readers live with a value that is a moment old.
template <typename T>
class Relaxed
{
public:
    /// Used like a plain number.
    Relaxed(T value)
        : m_value(value)
    {
    }

    /// The value as of this moment, or a moment ago.
    operator T() const { return m_value.load(std::memory_order_relaxed); }

    /// Other threads see it soon.
    T operator=(T value)
    {
        m_value.store(value, std::memory_order_relaxed);
        return value;
    }

    /// Sets or clears \a bits and leaves the others as other threads have them.
    void setBits(T bits, bool on)
    {
        if (on)
            m_value.fetch_or(bits, std::memory_order_relaxed);
        else
            m_value.fetch_and(~bits, std::memory_order_relaxed);
    }

private:
    std::atomic<T> m_value;
};

}} // namespace Norvane::UI

#pragma once

#include <cstddef>
#include <cstring>
#include <new>

#include <sys/mman.h>
#include <unistd.h>

namespace NorvaneTest {

/// Pages between two forbidden ones: to touch a byte before or behind them ends the program.
class GuardedMemory
{
public:
    explicit GuardedMemory(std::size_t bytes)
        : m_page(static_cast<std::size_t>(sysconf(_SC_PAGESIZE)))
        , m_size((bytes + m_page - 1) / m_page * m_page)
    {
        void* const all = mmap(nullptr, m_size + 2 * m_page, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
        if (all == MAP_FAILED)
            throw std::bad_alloc();
        m_begin = static_cast<unsigned char*>(all) + m_page;
        if (mprotect(m_begin, m_size, PROT_READ | PROT_WRITE) != 0)
            throw std::bad_alloc();
    }
    ~GuardedMemory() { munmap(m_begin - m_page, m_size + 2 * m_page); }
    GuardedMemory(const GuardedMemory&) = delete;
    GuardedMemory& operator=(const GuardedMemory&) = delete;

    unsigned char* begin() { return m_begin; }
    unsigned char* end() { return m_begin + m_size; }
    std::size_t size() const { return m_size; }
    void fill() { std::memset(m_begin, kGuard, m_size); }

    /// Where \a bytes bytes lie that touch one of the forbidden pages.
    unsigned char* place(std::size_t bytes, bool atEnd) { return atEnd ? end() - bytes : begin(); }

    static constexpr unsigned char kGuard = 0xA5;

private:
    std::size_t m_page;
    std::size_t m_size;
    unsigned char* m_begin;
};

} // namespace NorvaneTest

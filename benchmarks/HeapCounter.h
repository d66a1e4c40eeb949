#pragma once

namespace Norvane { namespace Benchmarks {

/// The bytes that the program has from the heap now, with what the heap needs to keep each block. Exact,
/// where mallinfo2() takes the freed blocks that glibc keeps for each thread as used.
long heapBytes();

}} // namespace Norvane::Benchmarks

// The heap memory of the add-on alone: what the built library, or the C++ library on its behalf,
// has allocated and not freed. Works by replacing operator new in the program that includes its
// source.
#pragma once

#include <cstdint>

namespace quorvia::benchmarks {

/// From now on counts allocations made from the library at `libraryPath`, which must be loaded.
void watchAddOnHeap(const char* libraryPath);
/// Bytes allocated since then and not freed, the allocator's own overhead included.
std::int64_t addOnHeapBytes();
/// The highest that number has been.
std::int64_t addOnHeapPeakBytes();

} // namespace quorvia::benchmarks

#pragma once

#include <cstddef>

/// The calls of operator new in this program so far. To count, link AllocationCount.cpp, which replaces the operator.
std::size_t AllocationCount() noexcept;

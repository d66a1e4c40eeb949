#pragma once

// The instruction sets that rows are compiled for, to be included before Highway.

// Vectors of unknown size cannot be members, which the rows make much use of. SSSE3 alone is not worth its
// code.
#ifndef HWY_DISABLED_TARGETS
#define HWY_DISABLED_TARGETS (HWY_SSSE3 | HWY_SVE | HWY_SVE2 | HWY_SVE_256 | HWY_SVE2_128 | HWY_RVV)
#endif

/// Whether the instruction set that is being compiled for has vectors that calculate exactly as the plain
/// rows do. 32-bit ARM has not: its vectors take the smallest numbers for 0.
#define NORVANE_HAS_VECTORS (HWY_TARGET != HWY_SCALAR && HWY_TARGET != HWY_EMU128 && !HWY_ARCH_ARM_V7)

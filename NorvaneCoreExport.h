#pragma once

/// NORVANE_CORE_EXPORT marks what the shared library offers; every other symbol stays inside it.
#if defined(_WIN32)
#if defined(NORVANE_CORE_BUILD)
#define NORVANE_CORE_EXPORT __declspec(dllexport)
#else
#define NORVANE_CORE_EXPORT __declspec(dllimport)
#endif
#else
#define NORVANE_CORE_EXPORT __attribute__((visibility("default")))
#endif

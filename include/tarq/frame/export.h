// Marks what the shared library shows to its clients.
#pragma once

#if defined(_WIN32)
#if defined(TARQ_BUILDING_COMPONENT)
#define TARQ_API __declspec(dllexport)
#else
#define TARQ_API __declspec(dllimport)
#endif
#else
#define TARQ_API __attribute__((visibility("default")))
#endif

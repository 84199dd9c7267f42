// Keeps what the library has constructed from being destroyed when the process ends.
//
// The thread of a run may still be at work then, or parked for good, and would meet strings and tables that are gone.
// Destructors of static objects are registered through __cxa_atexit; calls of it from within the library are linked to
// this (--wrap), which registers nothing. The library is never unloaded, so nothing else would run them.

// NOLINTBEGIN(bugprone-reserved-identifier): the linker makes the name
extern "C" int __wrap___cxa_atexit(void (*destroy)(void*), void* object, void* library);

extern "C" int __wrap___cxa_atexit(void (* /*destroy*/)(void*), void* /*object*/, void* /*library*/) { return 0; }
// NOLINTEND(bugprone-reserved-identifier)

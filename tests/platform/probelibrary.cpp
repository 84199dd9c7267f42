// The library that the tests load by name.
extern "C" __attribute__((visibility("default"))) int probeAnswer() { return 42; }

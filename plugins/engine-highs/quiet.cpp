// The few places where HiGHS prints without asking its log options end here: an engine never writes to the standard
// streams of its host. The linker sends the printing functions of the whole library to these.

// The linker makes these names.
// NOLINTBEGIN(bugprone-reserved-identifier)
extern "C" {

int __wrap_printf(const char* format, ...);
int __wrap_puts(const char* text);
int __wrap_putchar(int character);

int __wrap_printf(const char* /*format*/, ...) { return 0; }

int __wrap_puts(const char* /*text*/) { return 0; }

int __wrap_putchar(int character) { return character; }
}
// NOLINTEND(bugprone-reserved-identifier)

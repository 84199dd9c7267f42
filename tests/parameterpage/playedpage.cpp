// A page library in which a test plays the person: it shows nothing and calls what the test has handed it.
#include "tarq/page.h"

extern "C" {
TARQ_PAGE_API int32_t (*playedPerson)(const TARQPage* page) = nullptr;

int32_t ShowTARQPage(const TARQPage* page) { return playedPerson == nullptr ? 0 : playedPerson(page); }
}

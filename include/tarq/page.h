// The operation of a page library: it shows the parameters of a model to a person, in a window of its own.
//
// The component loads the library by name (`libtarqpage.so`) when a page is asked for, and hands over everything the
// page shows. All texts are UTF-8, belong to the component, and live until the operation returns. Values travel as
// texts: numbers as the component writes them (a point, no grouping), texts as they are.
#pragma once

#include <stdint.h>

#if defined(_WIN32)
#define TARQ_PAGE_API __declspec(dllexport)
#else
#define TARQ_PAGE_API __attribute__((visibility("default")))
#endif

#ifdef __cplusplus
extern "C" {
#endif

/// How an item is shown and changed.
enum TARQPageItemKind {
    TARQPageRadioGroup = 1,  ///< one entry per option
    TARQPageCheckBox = 2,    ///< text and value of option 0 when ticked, value of option 1 when not
    TARQPageComboBox = 3,    ///< one entry per option
    TARQPageEditField = 4,   ///< a field for a text or a number
    TARQPageFileEdit = 5     ///< a field for a file name, with a browse button
};

enum TARQPageValueType { TARQPageInteger = 1, TARQPageReal = 2, TARQPageText = 3 };

/// One of the values that an item can take.
struct TARQPageOption {
    const char* text;   ///< what the person reads
    const char* value;  ///< what the item's value is then
};

struct TARQPageItem {
    const char* name;         ///< the parameter's name: the label, and what an edit refers to
    const char* description;  ///< the help text
    int32_t kind;             ///< TARQPageItemKind
    int32_t type;             ///< TARQPageValueType
    const char* value;        ///< at the time the page opens
    const char* defaultValue;
    const char* minimum;    ///< empty where there is no limit
    const char* maximum;    ///< empty where there is no limit
    int32_t maximumLength;  ///< of a text in UTF-16 code units, 0 for no limit
    int32_t optionCount;
    const struct TARQPageOption* options;
};

struct TARQPageSection {
    const char* title;
    int32_t itemCount;
    const struct TARQPageItem* items;
};

/// A value that the person has changed since the page opened or since the last apply.
struct TARQPageEdit {
    const char* name;
    const char* value;
};

enum TARQPageIcon { TARQPageStop = 1, TARQPageWarning = 2 };

/// What an apply has to tell; the page shows each as a message of its own, in this order.
struct TARQPageMessage {
    const char* text;
    int32_t icon;  ///< TARQPageIcon
};

struct TARQPage {
    const char* caption;
    int32_t left;  ///< of the window, in pixels of the screen
    int32_t top;
    int32_t sectionCount;
    const struct TARQPageSection* sections;
    void* context;  ///< handed back to `apply`
    /// Stores the edits in the model; OK calls it also when nothing was changed. Comes on the thread that asked for the
    /// page, before the operation returns. The messages belong to the component and live until the next call or the
    /// operation's end.
    void (*apply)(void* context, int32_t editCount, const struct TARQPageEdit* edits, int32_t* messageCount,
                  const struct TARQPageMessage** messages);
};

/// Shows the page and returns when the person has closed it: 1 then (by whatever button), 0 if it couldn't be shown or
/// broke off, or if another page is open. To be called on the thread of the host's application of Qt, if it has one
/// with widgets, else on the first thread of the process; 0 on any other. The host's event loop goes on meanwhile.
TARQ_PAGE_API int32_t ShowTARQPage(const struct TARQPage* page);

#ifdef __cplusplus
}
#endif

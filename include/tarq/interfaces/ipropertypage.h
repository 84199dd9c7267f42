// IPropertyPage: a page that shows the properties of an object to a person. Beside the published interfaces, as what
// the class tarqprop1 offers.
#pragma once

#include <cstdint>

#include "tarq/frame/object.h"
#include "tarq/frame/status.h"

namespace tarq {

class IPropertyPage : public IUnknown {
public:
    static constexpr Guid id{0x91E2DF90, 0x0BDA, 0x439A, {0x89, 0x18, 0x79, 0xA5, 0x39, 0x3C, 0x00, 0x73}};

    /// Shows the page for an object and returns when the person has closed it; `applied` is then 1 if an apply took
    /// place, else 0. A thread that shows pages has to be the one that shows the host's other windows.
    /// wrongClass for an object that the page isn't made for, wrongState while another page is open in the process,
    /// libraryNotFound when the library of the page can't be loaded, entryPointsMissing when it lacks the operation,
    /// propertyPage when it couldn't show the page, as without a display. Only in the last case may an apply have taken
    /// place.
    virtual Status Show(IUnknown* object, std::int32_t* applied) = 0;

protected:
    ~IPropertyPage() = default;
};

}  // namespace tarq

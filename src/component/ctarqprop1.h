// CTARQProp1: the page on which a person reads and changes the parameters of a model.
#pragma once

#include <cstdint>
#include <memory>

#include "tarq/frame/countedobject.h"
#include "tarq/interfaces/ipropertypage.h"

namespace tarq {

/// Keeps nothing between two calls.
class CTARQProp1 final : public CountedObject<CTARQProp1, IPropertyPage> {
public:
    CTARQProp1() = default;

    Status Show(IUnknown* object, std::int32_t* applied) override;

private:
    friend std::default_delete<CTARQProp1>;
    ~CTARQProp1() = default;
};

}  // namespace tarq

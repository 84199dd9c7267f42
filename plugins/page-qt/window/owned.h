// The one place for what Qt's objects are made by.
#pragma once

#include <memory>
#include <utility>

namespace tarq::page {

/// A new object that its parent, or the layout that it is put into, owns from now on.
template <class Owned, class... Arguments>
[[nodiscard]] Owned* makeOwned(Arguments&&... arguments) {
    return std::make_unique<Owned>(std::forward<Arguments>(arguments)...).release();
}

}  // namespace tarq::page

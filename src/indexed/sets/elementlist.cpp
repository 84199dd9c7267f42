#include "indexed/sets/elementlist.h"

#include <algorithm>
#include <iterator>
#include <limits>
#include <utility>

namespace tarq {

void ElementList::insert(std::size_t position, Values inserted) {
    if (inserted.empty()) return;
    constexpr std::size_t most = std::numeric_limits<std::int32_t>::max();
    if (inserted.size() > most - size()) throw std::bad_alloc();
    if (size() == 0) {
        values_ = std::make_shared<Values>(std::move(inserted));
        return;
    }
    Values& values = change();
    const auto where = values.begin() + static_cast<std::ptrdiff_t>(std::min(position, values.size()));
    values.insert(where, std::make_move_iterator(inserted.begin()), std::make_move_iterator(inserted.end()));
}

}  // namespace tarq

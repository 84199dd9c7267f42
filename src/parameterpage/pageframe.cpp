#include "parameterpage/pageframe.h"

#include <atomic>
#include <cstdint>
#include <span>
#include <vector>

#include "parameterpage/pagecontents.h"
#include "parameterpage/parameterpage.h"
#include "platform/dynamiclibrary.h"
#include "platform/exceptionbarrier.h"
#include "platform/slottable.h"
#include "tarq/page.h"

namespace tarq {
namespace {

/// A library that throws has not shown the page.
using PageLibrary = SlotTable<Slot<"ShowTARQPage", decltype(::ShowTARQPage), 0>>;

/// The one page that may be open in the process.
class PageTurn {
public:
    PageTurn() : isMine_(!isTaken().test_and_set(std::memory_order_acquire)) {}
    PageTurn(const PageTurn&) = delete;
    PageTurn& operator=(const PageTurn&) = delete;
    ~PageTurn() {
        if (isMine_) isTaken().clear(std::memory_order_release);
    }

    explicit operator bool() const { return isMine_; }

private:
    static std::atomic_flag& isTaken() {
        static std::atomic_flag taken;
        return taken;
    }

    bool isMine_;
};

/// What the library's calls come back to.
struct OpenPage {
    ParameterPage page;
    std::vector<PageMessage> messages{};
    std::vector<TARQPageMessage> told{};  ///< the same for the library
    bool applied = false;
};

void applyEdits(OpenPage& open, std::span<const TARQPageEdit> edits) {
    open.told.clear();
    for (const TARQPageEdit& edit : edits) {
        if (edit.name != nullptr && edit.value != nullptr) open.page.edit(edit.name, edit.value);
    }
    open.messages = open.page.apply();
    open.applied = true;
    for (const PageMessage& message : open.messages) open.told.push_back({message.text.c_str(), message.icon});
}

/// The library's way back. No exception may pass through it.
void applyFromLibrary(void* context, std::int32_t editCount, const TARQPageEdit* edits, std::int32_t* messageCount,
                      const TARQPageMessage** messages) {
    static constexpr TARQPageMessage failed{"The parameters could not be set for lack of memory.", TARQPageStop};
    OpenPage& open = *static_cast<OpenPage*>(context);
    const std::size_t count = edits == nullptr || editCount < 0 ? 0 : static_cast<std::size_t>(editCount);
    const std::span<const TARQPageMessage> told = withoutException(
        [&] {
            applyEdits(open, {edits, count});
            return std::span<const TARQPageMessage>(open.told);
        },
        [] { return std::span<const TARQPageMessage>(&failed, 1); });
    *messageCount = static_cast<std::int32_t>(told.size());
    *messages = told.data();
}

}  // namespace

Status showParameterPage(ITARQModel& model, bool& applied, const std::string& library) {
    const PageTurn turn;
    if (!turn) return status::wrongState;
    const DynamicLibrary loaded = DynamicLibrary::load(library);
    if (!loaded) return status::libraryNotFound;
    PageLibrary operations;
    operations.bind(loaded);
    if (!operations.isBoundBut<>()) return status::entryPointsMissing;

    OpenPage open{ParameterPage(model)};
    const PageContents contents(open.page);
    const TARQPage page{.caption = "TARQ Control",
                        .left = 10,
                        .top = 10,
                        .sectionCount = static_cast<std::int32_t>(contents.sections().size()),
                        .sections = contents.sections().data(),
                        .context = &open,
                        .apply = &applyFromLibrary};
    (void)model.SetRequiresSaveProperties(0);
    const bool wasShown = operations.slot<"ShowTARQPage">()(&page) != 0;
    applied = open.applied;
    return wasShown ? status::ok : status::propertyPage;
}

}  // namespace tarq

#include "pagestream.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <type_traits>

namespace tarq::page {
namespace {

// Far more than any page has.
constexpr std::uint32_t longestBody = 16U << 20U;

struct Head {
    FrameKind kind{};
    std::uint32_t length = 0;
};

// Each record is walked by one function in both directions, so that they can't drift apart.
template <class Walker>
void walk(Walker& walker, Option& option) {
    walker(option.text);
    walker(option.value);
}

template <class Walker>
void walk(Walker& walker, Item& item) {
    for (std::string* text :
         {&item.name, &item.description, &item.value, &item.defaultValue, &item.minimum, &item.maximum}) {
        walker(*text);
    }
    walker(item.kind);
    walker(item.type);
    walker(item.maximumLength);
    walker(item.options);
}

template <class Walker>
void walk(Walker& walker, Section& section) {
    walker(section.title);
    walker(section.items);
}

template <class Walker>
void walk(Walker& walker, Page& page) {
    walker(page.caption);
    walker(page.left);
    walker(page.top);
    walker(page.sections);
}

template <class Walker>
void walk(Walker& walker, Edit& edit) {
    walker(edit.name);
    walker(edit.value);
}

template <class Walker>
void walk(Walker& walker, Message& message) {
    walker(message.text);
    walker(message.icon);
}

class Writer {
public:
    template <class Number>
    requires(std::is_integral_v<Number> || std::is_enum_v<Number>) void operator()(Number number) {
        const auto value = static_cast<std::uint32_t>(number);
        std::array<char, sizeof value> bytes{};
        std::memcpy(bytes.data(), &value, sizeof value);
        written_.append(bytes.data(), bytes.size());
    }
    void operator()(const std::string& text) {
        (*this)(text.size());
        written_ += text;
    }
    template <class Record>
    void operator()(std::vector<Record>& records) {
        (*this)(records.size());
        for (Record& record : records) walk(*this, record);
    }
    [[nodiscard]] std::string take() { return std::move(written_); }

private:
    std::string written_;
};

/// What is missing reads as 0 or empty and makes the whole a failure.
class Reader {
public:
    explicit Reader(std::string_view bytes) : left_(bytes) {}

    template <class Number>
    requires(std::is_integral_v<Number> || std::is_enum_v<Number>) void operator()(Number& number) {
        std::uint32_t value = 0;
        if (const std::string_view bytes = take(sizeof value); !bytes.empty()) {
            std::memcpy(&value, bytes.data(), sizeof value);
        }
        number = static_cast<Number>(value);
    }
    void operator()(std::string& text) {
        std::uint32_t length = 0;
        (*this)(length);
        text = take(length);
        isWhole_ = isWhole_ && text.find('\0') == std::string::npos;
    }
    template <class Record>
    void operator()(std::vector<Record>& records) {
        std::uint32_t count = 0;
        (*this)(count);
        for (; count > 0 && isWhole_; --count) walk(*this, records.emplace_back());
    }
    [[nodiscard]] bool isDone() const { return isWhole_ && left_.empty(); }

private:
    std::string_view take(std::size_t length) {
        isWhole_ = isWhole_ && length <= left_.size();
        if (!isWhole_) return {};
        const std::string_view taken = left_.substr(0, length);
        left_.remove_prefix(length);
        return taken;
    }

    std::string_view left_;
    bool isWhole_ = true;
};

template <class Record>
std::string listToBytes(std::vector<Record> records) {
    Writer writer;
    writer(records);
    return writer.take();
}

template <class Record>
std::optional<std::vector<Record>> listFrom(std::string_view bytes) {
    Reader reader(bytes);
    std::vector<Record> records;
    reader(records);
    if (!reader.isDone()) return std::nullopt;
    return records;
}

}  // namespace

std::string framed(FrameKind kind, std::string_view body) {
    const Head head{.kind = kind, .length = static_cast<std::uint32_t>(body.size())};
    std::string bytes(sizeof head, '\0');
    std::memcpy(bytes.data(), &head, sizeof head);
    return bytes.append(body);
}

std::optional<Frame> FrameAssembler::next() {
    Head head;
    if (isBroken_ || bytes_.size() < sizeof head) return std::nullopt;
    std::memcpy(&head, bytes_.data(), sizeof head);
    isBroken_ = head.kind < FrameKind::Description || head.kind > FrameKind::Closed || head.length > longestBody;
    if (isBroken_ || bytes_.size() - sizeof head < head.length) return std::nullopt;
    Frame frame{.kind = head.kind, .body = bytes_.substr(sizeof head, head.length)};
    bytes_.erase(0, sizeof head + head.length);
    return frame;
}

std::string toBytes(const Page& page) {
    Writer writer;
    Page copy = page;
    walk(writer, copy);
    return writer.take();
}

std::string toBytes(const std::vector<Edit>& edits) { return listToBytes(edits); }
std::string toBytes(const std::vector<Message>& messages) { return listToBytes(messages); }

std::optional<Page> pageFrom(std::string_view bytes) {
    Reader reader(bytes);
    Page page;
    walk(reader, page);
    const bool isShowablePage = std::ranges::all_of(
        page.sections, [](const Section& section) { return std::ranges::all_of(section.items, isShowable); });
    if (!reader.isDone() || !isShowablePage) return std::nullopt;
    return page;
}

std::optional<std::vector<Edit>> editsFrom(std::string_view bytes) { return listFrom<Edit>(bytes); }
std::optional<std::vector<Message>> messagesFrom(std::string_view bytes) { return listFrom<Message>(bytes); }

}  // namespace tarq::page

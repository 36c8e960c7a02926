// Immutable bytes in 8 bytes of room: copies share one block. A tree of a hundred thousand files
// holds the same names over and over. The count of a block isn't atomic: texts that share one
// belong to one thread at a time.
#pragma once
#include <compare>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_set>

class SharedText {
public:
    SharedText() = default;
    explicit SharedText(std::string_view text) { Assign(text); }
    SharedText(const SharedText& other) noexcept : fBlock(other.fBlock) { Hold(); }
    SharedText(SharedText&& other) noexcept : fBlock(other.fBlock) { other.fBlock = nullptr; }
    SharedText& operator=(const SharedText& other) noexcept;
    SharedText& operator=(SharedText&& other) noexcept;
    ~SharedText() { Drop(); }

    // A block of its own; empty text takes none. Throws std::bad_alloc.
    void Assign(std::string_view text);
    void Clear() { Drop(), fBlock = nullptr; }
    [[nodiscard]] std::string_view View() const;
    [[nodiscard]] std::string Str() const { return std::string(View()); }
    [[nodiscard]] bool Empty() const { return !fBlock; }
    [[nodiscard]] bool SharesWith(const SharedText& other) const { return fBlock == other.fBlock; }

    // By bytes; two that share a block are equal without a look.
    bool operator==(const SharedText& other) const
    {
        return SharesWith(other) || View() == other.View();
    }
    std::strong_ordering operator<=>(const SharedText& other) const
    {
        return SharesWith(other) ? std::strong_ordering::equal : View() <=> other.View();
    }

private:
    struct Block {
        std::uint32_t fUses = 1;
        std::uint32_t fLength = 0;
        [[nodiscard]] char* Bytes() { return reinterpret_cast<char*>(this + 1); }
    };
    void Hold() const
    {
        if (fBlock)
            ++fBlock->fUses;
    }
    void Drop();

    Block* fBlock = nullptr;
};

// A text field with a limit: what is longer than Capacity - 1 bytes is cut there when it comes in.
template <std::size_t Capacity>
class BoundedText : public SharedText {
public:
    BoundedText() = default;
    explicit BoundedText(std::string_view text) { Assign(text); }
    void Assign(std::string_view text) { SharedText::Assign(text.substr(0, Capacity - 1)); }
    static constexpr std::size_t kCapacity = Capacity;  // with a terminator that isn't stored
};

// Lets equal texts share one block. For one run of one thread.
class TextPool {
public:
    // From now on `text` shares with every equal text that came before.
    void Share(SharedText* text);

private:
    struct Hash {
        std::size_t operator()(const SharedText& text) const
        {
            return std::hash<std::string_view>()(text.View());
        }
    };
    std::unordered_set<SharedText, Hash> fTexts;
};

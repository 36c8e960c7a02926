#include "util/SharedText.h"

#include <cstring>
#include <new>
#include <utility>

SharedText& SharedText::operator=(const SharedText& other) noexcept
{
    other.Hold();
    Drop();
    fBlock = other.fBlock;
    return *this;
}

SharedText& SharedText::operator=(SharedText&& other) noexcept
{
    std::swap(fBlock, other.fBlock);
    return *this;
}

void SharedText::Assign(std::string_view text)
{
    Block* made = nullptr;
    if (!text.empty()) {
        made = new (::operator new(sizeof(Block) + text.size())) Block;
        made->fLength = static_cast<std::uint32_t>(text.size());
        std::memcpy(made->Bytes(), text.data(), text.size());
    }
    Drop();  // only now: `text` may be a view of this block
    fBlock = made;
}

std::string_view SharedText::View() const
{
    return fBlock ? std::string_view(fBlock->Bytes(), fBlock->fLength) : std::string_view();
}

void SharedText::Drop()
{
    if (fBlock && --fBlock->fUses == 0)
        ::operator delete(fBlock);
}

void TextPool::Share(SharedText* text)
{
    if (!text->Empty())
        *text = *fTexts.insert(*text).first;
}

// What the reader's tests share: open bytes, ask for one element.
#pragma once
#include "fixtures/DicomBuilder.h"

#include "Qvx2Parser/Qvx2Reader.h"
#include <gtest/gtest.h>
#include <string>
#include <vector>

inline QvxReaderPtr OpenFile(const std::string& bytes, std::uint32_t options = 0)
{
    QvxReaderPtr reader;
    EXPECT_EQ(Qvx2Parser_OpenBytes(&reader, AsByteVector(bytes), options), kQvxOK);
    return reader;
}

inline QvxElementRef Find(const QvxReaderPtr& reader, std::uint16_t group, std::uint16_t element,
                          QvxElementRef parent = QvxElementRef::None)
{
    QvxElementRef found{};
    if (Qvx2Reader_FindElement(reader.get(), parent, {group, element}, &found) != kQvxOK)
        return QvxElementRef::None;
    return found;
}

inline std::string TextOf(const QvxReaderPtr& reader, QvxElementRef element, int index = 1)
{
    QvxHandle text;
    const QvxStatus status = Qvx2Reader_GetElementDataAsText(reader.get(), element, index, &text);
    return status == kQvxOK ? std::string(text.Text()) : "status " + std::to_string(status);
}

inline std::string TextOf(const QvxReaderPtr& reader, std::uint16_t group, std::uint16_t element)
{
    return TextOf(reader, Find(reader, group, element));
}

// Tags of the top level in file order, as keys; with the status of the walk.
inline std::vector<std::uint32_t> TopLevelKeys(const QvxReaderPtr& reader, QvxStatus* status)
{
    QvxElementRefArray refs;
    *status = Qvx2Reader_GetTopLevelElementRefs(reader.get(), &refs);
    std::vector<std::uint32_t> keys;
    for (const QvxElementRef ref : QvxRefsOf(refs)) {
        QvxElementTag tag;
        EXPECT_EQ(Qvx2Reader_GetElementTag(reader.get(), ref, &tag), kQvxOK);
        keys.push_back(tag.Key());
    }
    return keys;
}

inline std::uint32_t Meta(const QvxReaderPtr& reader, std::uint32_t selector)
{
    std::uint32_t value = 0;
    EXPECT_EQ(Qvx2Reader_GetFileMetaInformation(reader.get(), selector, &value), kQvxOK);
    return value;
}

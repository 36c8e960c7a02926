// Which values the info pane lists, and under which headings.
#include "app/nodes/InfoFields.h"

#include <gtest/gtest.h>
#include <set>

namespace {

// Fields by their element number; others have no text.
InfoFields List(const char* form)
{
    InfoFields fields;
    int elem = 0;
    for (; *form; ++form)
        if (*form == '#')
            fields.push_back(std::make_unique<CategoryInfoField>(QStringLiteral("#")));
        else
            fields.push_back(std::make_unique<BaseInfoField>(
                QStringLiteral("#"), QString(QLatin1Char(*form)), 0, 0x10, ++elem));
    return fields;
}

std::string Shown(const InfoFields& fields)
{
    std::string shown;
    for (const auto& entry : fields) {
        const auto* field = dynamic_cast<const BaseInfoField*>(entry.get());
        shown += field ? (field->fieldTitle() + field->fieldContent()).toStdString() : "#";
    }
    return shown;
}

}  // namespace

TEST(InfoFields, headings_of_nothing_and_missing_values_have_no_row)
{
    struct Row {
        const char* fault;
        const char* list;
        const char* shown;
    };
    const Row rows[] = {
        {"values under their headings", "#A#B", "#A1#B1"},
        {"a missing value", "#aA", "#A1"},
        {"a heading in front of another", "#a#B", "#B1"},
        {"the last heading", "#A#b", "#A1"},
        {"headings only", "##", ""},
        {"no list", "", ""},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        EXPECT_EQ(Shown(FilledInfoFields(List(row.list),
                                         [](const BaseInfoField& field) {
                                             return field.fieldTitle().isUpper()
                                                        ? QStringLiteral("1")
                                                        : QString();
                                         })),
                  row.shown);
    }
}

TEST(InfoFields, the_list_of_the_program_names_each_tag_once)
{
    const InfoFields fields = getInfoFieldsArrayCopy();
    ASSERT_GT(fields.size(), 50u);
    EXPECT_FALSE(dynamic_cast<const BaseInfoField*>(fields.front().get())) << "a heading first";
    std::set<std::pair<int, int>> tags;
    for (const auto& entry : fields) {
        EXPECT_FALSE(entry->categoryTitle().isEmpty());
        const auto* field = dynamic_cast<const BaseInfoField*>(entry.get());
        if (!field)
            continue;
        EXPECT_FALSE(field->fieldTitle().isEmpty());
        EXPECT_GT(field->fieldGroup(), 2);
        EXPECT_LE(field->fieldElem(), 0xFFFF);
        EXPECT_TRUE(tags.emplace(field->fieldGroup(), field->fieldElem()).second)
            << field->fieldTitle().toStdString();
    }
}

TEST(InfoFields, what_is_no_list_gives_no_rows)
{
    for (const char* list : {"", "no list", "<plist><dict/></plist>", "<plist><array/></plist>"})
        EXPECT_TRUE(InfoFieldsOfList(list).empty()) << list;
}

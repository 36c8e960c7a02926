// Lists of text fields: what an entry overrides, which item it makes, and the program's own list.
#include "Annotations/AnnotationTemplates.h"

#include "platform/PropertyList.h"

#include <gtest/gtest.h>

namespace {

AnnotationTemplates ItemsOf(const char* defaults, const char* entry)
{
    const QByteArray text = QByteArray("<plist version=\"1.0\"><dict><key>defaults</key><dict>") +
                            defaults + "</dict><key>demographics</key><array><dict>" + entry +
                            "</dict></array></dict></plist>";
    const PropertyListReading reading = ReadPropertyList(text);
    EXPECT_TRUE(reading.IsSound()) << reading.fFault;
    return annotationsFromList(reading.fRoot.toMap());
}

constexpr const char* kDefaults =
    "<key>Position</key><string>BottomRight</string><key>ShowWhenNoFit</key><true/>"
    "<key>Prefix</key><string>one</string><key>Prefix2</key><string>two</string>"
    "<key>Separator</key><string>;</string><key>BuiltIn</key><string>CurrentZoom</string>";
constexpr const char* kFirst =
    "<dict><key>DicomGroup</key><integer>16</integer><key>DicomElement</key><integer>48</integer>"
    "</dict>";
constexpr const char* kSecond =
    "<dict><key>Prefix</key><string>age</string><key>Prefix2</key><string>no</string>"
    "<key>Separator</key><string> / </string><key>DicomGroup</key><integer>16</integer>"
    "<key>DicomElement</key><integer>4112</integer></dict>";

std::string Elements(const std::string& elements)
{
    return "<key>Elements</key><array>" + elements + "</array>";
}

}  // namespace

TEST(AnnotationTemplates, an_entry_overrides_what_it_holds)
{
    const auto one = ItemsOf(kDefaults, (Elements(kFirst) + "<key>BuiltIn</key><string>x</string>"
                                                            "<key>Position</key><string>MiddleLeft"
                                                            "</string><key>ShowWhenNoFit</key>"
                                                            "<false/>")
                                            .c_str());
    ASSERT_EQ(one.size(), 1u);
    const auto* field = dynamic_cast<ZELDemografic*>(one[0].get());
    ASSERT_TRUE(field);
    EXPECT_EQ(field->position, 3);
    EXPECT_FALSE(field->showWhenNoFit);
    EXPECT_EQ(field->prefix, QStringLiteral("one"));
    EXPECT_EQ(field->dcmGroup, 0x10);
    EXPECT_EQ(field->dcmElement, 0x30);

    const auto two = ItemsOf(kDefaults, Elements(std::string(kFirst) + kSecond).c_str());
    ASSERT_EQ(two.size(), 1u);
    const auto* both = dynamic_cast<ZELDoubleDemografic*>(two[0].get());
    ASSERT_TRUE(both);
    EXPECT_EQ(both->position, 8);
    EXPECT_TRUE(both->showWhenNoFit);
    EXPECT_EQ(both->prefix2, QStringLiteral("age"));
    EXPECT_EQ(both->separator, QStringLiteral(" / "));
    EXPECT_EQ(both->dcmElement2, 0x1010);
    const auto plain = ItemsOf(kDefaults, Elements(std::string(kFirst) + kFirst).c_str());
    const auto* kept = dynamic_cast<ZELDoubleDemografic*>(plain.at(0).get());
    ASSERT_TRUE(kept);
    EXPECT_EQ(kept->prefix2, QStringLiteral("two"));
    EXPECT_EQ(kept->separator, QStringLiteral(";"));
}

TEST(AnnotationTemplates, entries_make_the_item_that_they_describe_or_none)
{
    struct Row {
        std::string entry;
        int type;  // of a built-in item; -1 for no item
    };
    const Row rows[] = {{"<key>BuiltIn</key><string>CurrentFrame</string>", 1},
                        {"<key>BuiltIn</key><string>TotalFrames</string>", 2},
                        {"<key>BuiltIn</key><string>VOISettings</string>", 3},
                        {"<key>BuiltIn</key><string>Unheard</string>", 0},
                        {"<key>BuiltIn</key><string></string>", -1},
                        {"<key>Position</key><string>TopLeft</string>", -1},
                        {Elements(std::string(kFirst) + kFirst + kFirst), -1}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.entry);
        const auto items = ItemsOf(kDefaults, row.entry.c_str());
        ASSERT_EQ(items.size(), row.type < 0 ? 0u : 1u);
        if (row.type < 0)
            continue;
        const auto* item = dynamic_cast<ZELBuiltInDemographic*>(items[0].get());
        ASSERT_TRUE(item);
        EXPECT_EQ(item->elemType, row.type);
    }
    EXPECT_EQ(positionValue(QStringLiteral("BottomCenter")), 7);
    EXPECT_EQ(positionValue(QStringLiteral("bottomcenter")), -1);
    EXPECT_EQ(ItemsOf("", Elements(kFirst).c_str()).at(0)->position, -1);
}

// Every entry is read, in its corner; a slip in the list would only lose a line on the screen.
TEST(AnnotationTemplates, the_programs_own_list_fills_the_corners)
{
    int corners[9] = {};
    for (const auto& item : loadDefaultAnnotations()) {
        ASSERT_GE(item->position, 0);
        ++corners[item->position];
        if (const auto* field = dynamic_cast<ZELDemografic*>(item.get())) {
            EXPECT_NE(field->dcmGroup, 0);
            EXPECT_NE(field->dcmElement, 0);
        } else {
            EXPECT_NE(dynamic_cast<ZELBuiltInDemographic&>(*item).elemType, 0);
        }
    }
    EXPECT_EQ(corners[0], 4);
    EXPECT_EQ(corners[2], 3);
    EXPECT_EQ(corners[6], 3);
    EXPECT_EQ(corners[8], 4);
}

#include "util/SharedText.h"

#include <gtest/gtest.h>

TEST(SharedText, keeps_its_bytes_whatever_happens_to_its_copies)
{
    SharedText text("DOE^JOHN");
    SharedText copy = text;
    text = text;                         // itself
    text.Assign(text.View().substr(4));  // a view of its own block
    EXPECT_EQ(text.View(), "JOHN");
    EXPECT_EQ(copy.View(), "DOE^JOHN");
    SharedText moved = std::move(copy);
    moved.Assign("");
    EXPECT_TRUE(moved.Empty());
    EXPECT_EQ(SharedText("b") <=> SharedText("\xE9"), std::strong_ordering::less);  // as bytes
}

TEST(SharedText, is_cut_at_the_limit_of_its_field)
{
    EXPECT_EQ(BoundedText<4>("abcdef").View(), "abc");
    BoundedText<4> text("ab");
    text.Assign("xyzw");
    EXPECT_EQ(text.View(), "xyz");
}

TEST(SharedText, of_a_pool_share_one_block)
{
    SharedText first("1.2.840"), second("1.2.840"), other("1.2");
    TextPool pool;
    for (SharedText* text : {&first, &second, &other})
        pool.Share(text);
    EXPECT_TRUE(first.SharesWith(second));
    EXPECT_FALSE(first.SharesWith(other));
    EXPECT_EQ(second.View(), "1.2.840");
}

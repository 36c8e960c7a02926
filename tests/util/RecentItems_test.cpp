// What a cache drops.
#include "util/RecentItems.h"

#include <gtest/gtest.h>

TEST(RecentItems, drops_what_was_not_used_for_longest)
{
    RecentItems<int, int> cache(10);
    cache.Put(1, 100, 4);
    cache.Put(2, 200, 4);
    ASSERT_TRUE(cache.Find(1));  // used: 2 is the older one now
    cache.Put(3, 300, 4);
    EXPECT_FALSE(cache.Find(2));
    ASSERT_TRUE(cache.Find(1));
    EXPECT_EQ(*cache.Find(1), 100);

    cache.Put(1, 101, 2);  // in place of the old one, whose bytes no longer count
    EXPECT_EQ(*cache.Find(1), 101);
    EXPECT_EQ(cache.Bytes(), 6u);

    cache.Put(9, 900, 50);  // larger than the limit: alone, but there
    EXPECT_TRUE(cache.Find(9));
    EXPECT_FALSE(cache.Find(1));
    EXPECT_EQ(cache.Bytes(), 50u);

    cache.Remove(9);
    cache.Remove(77);  // never there
    EXPECT_FALSE(cache.Find(9));
    EXPECT_EQ(cache.Bytes(), 0u);
    cache.Put(4, 400, 4);
    cache.Clear();
    EXPECT_FALSE(cache.Find(4));
    EXPECT_EQ(cache.Bytes(), 0u);
}

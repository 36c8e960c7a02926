// Settings that must survive damage, other programs and many threads.
#include "platform/PreferenceStore.h"

#include "fixtures/TempFolder.h"
#include "platform/PropertyList.h"

#include <QString>
#include <filesystem>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <thread>

namespace {

class PreferenceStoreTest : public testing::Test {
protected:
    QVariantMap Stored() const { return ReadPropertyListFile(fPath).fRoot.toMap(); }
    TempFolder fFolder;
    std::string fPath = fFolder.Path("config/program/preferences.plist");
};

TEST_F(PreferenceStoreTest, the_run_hides_what_is_stored_and_that_the_defaults)
{
    PreferenceStore store(fPath);
    store.RegisterDefaults({{"key", 1LL}, {"flag", true}});
    EXPECT_EQ(store.Integer("key"), 1);
    store.Set("key", 2);
    EXPECT_EQ(store.Integer("key"), 2);
    store.Override("key", 3);
    store.Override("flag", false);
    store.Set("key", 4);
    EXPECT_EQ(store.Integer("key"), 3);
    EXPECT_FALSE(store.Bool("flag"));
    EXPECT_EQ(store.Synchronize(), kQvxOK);
    EXPECT_EQ(Stored(), (QVariantMap{{"key", 4LL}}));  // no default, nothing of the run
    store.Override("key", QVariant());
    EXPECT_EQ(store.Integer("key"), 4);
    store.Remove("key");
    EXPECT_EQ(store.Integer("key"), 1);
    store.Synchronize();
    EXPECT_TRUE(Stored().isEmpty());
}

TEST_F(PreferenceStoreTest, absent_and_foreign_kinds_read_as_nothing)
{
    PreferenceStore store("");
    store.Set("text", QStringLiteral("1"));
    store.Set("real", 2.75);
    store.Set("huge", 1e300);
    store.Set("true", true);
    EXPECT_FALSE(store.Bool("text") || store.Bool("absent") || store.Has("absent"));
    EXPECT_EQ(store.Integer("text"), 0);
    EXPECT_EQ(store.Integer("huge"), 0);
    EXPECT_EQ(store.Integer("true"), 1);
    EXPECT_EQ(store.Float("real"), 2.75);
    EXPECT_EQ(store.Float("true"), 1.0);
    EXPECT_TRUE(store.Bool("real"));
    EXPECT_TRUE(store.String("real").isEmpty());
    EXPECT_TRUE(store.Data("text").isEmpty());
    EXPECT_TRUE(store.Array("text").isEmpty());
    EXPECT_TRUE(store.Dictionary("text").isEmpty());
    EXPECT_EQ(store.Set("none", QVariant()), kQvxBadArgument);
    EXPECT_FALSE(store.Has("none"));
}

TEST_F(PreferenceStoreTest, two_programs_keep_each_others_changes)
{
    PreferenceStore first(fPath), second(fPath);
    first.Set("removed", 1);
    first.Set("shared", 1);
    ASSERT_EQ(first.Synchronize(), kQvxOK);
    EXPECT_EQ(second.Integer("shared"), 1);
    first.Set("mine", 1);
    first.Synchronize();
    second.Set("yours", 2);
    second.Set("shared", 2);
    second.Remove("removed");
    second.Synchronize();
    EXPECT_EQ(Stored(), (QVariantMap{{"mine", 1LL}, {"shared", 2LL}, {"yours", 2LL}}));
    EXPECT_EQ(second.Integer("mine"), 1);
}

TEST_F(PreferenceStoreTest, a_damaged_file_is_kept_beside_the_new_one)
{
    const std::string damaged = "<plist><dict><key>old</key><integer>7</integer><key>cut";
    for (const char* aside : {".damaged", ".damaged_1"}) {
        fFolder.WriteFile("config/program/preferences.plist", damaged);
        PreferenceStore store(fPath);
        EXPECT_EQ(store.Integer("old"), 7);
        EXPECT_FALSE(std::filesystem::exists(fPath + aside));  // reading changes nothing
        store.Set("new", 1);
        ASSERT_EQ(store.Synchronize(), kQvxOK);
        EXPECT_EQ(Stored(), (QVariantMap{{"new", 1LL}, {"old", 7LL}}));
        EXPECT_EQ(std::filesystem::file_size(fPath + aside), damaged.size());
    }
}

TEST_F(PreferenceStoreTest, writes_only_changes_and_leaves_nothing_behind)
{
    {
        PreferenceStore store(fPath);
        store.Set("a", 1);  // the end of the store writes
    }
    struct stat info{};
    ASSERT_EQ(stat(fPath.c_str(), &info), 0);
    EXPECT_EQ(info.st_mode & 0777U, 0600U);
    std::filesystem::remove(fPath);
    PreferenceStore same(fPath);
    static_cast<void>(same.Synchronize());
    EXPECT_FALSE(std::filesystem::exists(fPath));  // nothing has changed

    // The lock can't be had: the change waits.
    std::filesystem::remove(fPath + ".lock");
    std::filesystem::create_directory(fPath + ".lock");
    same.Set("a", 2);
    EXPECT_NE(same.Synchronize(), kQvxOK);
    EXPECT_EQ(same.Integer("a"), 2);
    std::filesystem::remove(fPath + ".lock");
    EXPECT_EQ(same.Synchronize(), kQvxOK);
    EXPECT_EQ(Stored().value("a"), QVariant(2LL));
    const auto all = std::filesystem::directory_iterator(fFolder.Path("config/program"));
    EXPECT_EQ(std::distance(begin(all), end(all)), 2);  // the file and its lock
}

TEST_F(PreferenceStoreTest, threads_read_while_one_writes)
{
    fFolder.WriteFile("config/program/preferences.plist",
                      "<plist><dict><key>text</key><string>some text</string></dict></plist>");
    PreferenceStore store(fPath);
    std::vector<std::thread> readers;
    for (int i = 0; i < 4; ++i)
        readers.emplace_back([&store] {
            for (int round = 0; round < 2000; ++round) {
                EXPECT_EQ(store.Bool("flag"), store.Has("other") && store.Bool("other"));
                EXPECT_EQ(store.String("text").size(), 9);
            }
        });
    for (int round = 0; round < 200; ++round) {
        store.Set("text", QStringLiteral("text %1").arg(round, 4));
        store.Set("list", QVariantList{round});
    }
    EXPECT_EQ(store.Synchronize(), kQvxOK);
    for (std::thread& reader : readers)
        reader.join();
}

}  // namespace

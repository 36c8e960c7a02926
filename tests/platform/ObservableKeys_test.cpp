// Which keys and notifications reach whom, and in which order.
#include "platform/ObservableKeys.h"

#include "platform/NotificationCenter.h"

#include <gtest/gtest.h>
#include <string>

namespace {

const std::vector<DerivedKey> kDerived{
    {"text", {"zoom"}},  // stands above what it depends on
    {"zoom", {"frame", "fit"}},
    {"other", {"none"}},
};

struct Log {
    ObservableKeys::Observer Note()
    {
        return [this](std::string_view key, KeyPhase phase) {
            text += phase == KeyPhase::WillChange ? '+' : '-';
            text.append(key).append(" ");
        };
    }
    std::string text;
};

TEST(ObservableKeys, announce_what_depends_on_a_key_and_end_in_reverse)
{
    ObservableKeys keys(kDerived);
    Log all, one;
    const auto watchAll = keys.ObserveKey("", all.Note());
    auto watchOne = keys.ObserveKey("text", one.Note());
    keys.Announce({"current", "frame"}, [&all] { all.text += "! "; });
    EXPECT_EQ(all.text, "+current +frame +zoom +text ! -text -zoom -frame -current ");
    EXPECT_EQ(one.text, "+text -text ");

    watchOne = {};
    keys.DidChangeValueForKey("fit");
    EXPECT_EQ(one.text, "+text -text ");
}

TEST(ObservableKeys, let_observers_come_and_go_meanwhile)
{
    ObservableKeys keys(kDerived);
    Log late;
    ObservableKeys::Watch gone, come;
    const auto first = keys.ObserveKey("frame", [&](std::string_view, KeyPhase) {
        gone = {};
        come = keys.ObserveKey("frame", late.Note());
    });
    gone = keys.ObserveKey("frame", [](std::string_view, KeyPhase) { FAIL() << "was let go"; });
    keys.WillChangeValueForKey("frame");
    EXPECT_EQ(late.text, "");
    keys.DidChangeValueForKey("frame");
    EXPECT_EQ(late.text, "") << "replaced in the first observer, so it isn't there any more";
}

TEST(NotificationCenter, filters_by_name_and_object_and_may_be_reentered)
{
    NotificationCenter center;
    int here = 0, there = 0;
    std::string log;
    const auto any = center.AddObserver("A", [&](const Notification& note) {
        log += 'A';
        log += note.userInfo.value("n").toString().toStdString();
        if (note.object == &here)
            center.Post("B", &there, {{"n", 2}});
        log += ".";
    });
    const auto mine = center.AddObserver("A", [&](const Notification&) { log += "mine"; }, &here);
    const auto b = center.AddObserver("B", [&](const Notification&) { log += "B"; });
    center.Post("A", &here, {{"n", 1}});
    center.Post("A", &there);
    EXPECT_EQ(log, "A1B.mineA.");
}

}  // namespace

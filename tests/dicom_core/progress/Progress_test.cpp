#include "dicom_core/progress/ProgressHandshake.h"

#include <gtest/gtest.h>
#include <thread>
#include <vector>

using namespace std::chrono_literals;

namespace {

// Notes what it is told, as words.
class NotedWindow final : public ProgressWindow {
public:
    void setTitle(const QString& title) override { fTitle = title; }
    void setLabel(const QString& text) override { fLabels.push_back(text); }
    void setSubLabel(const QString& text) override { fSubLabel = text; }
    void setIndeterminate(bool indeterminate) override { fIndeterminate = indeterminate; }
    void setLimits(std::int32_t minimum, std::int32_t maximum) override
    {
        fMinimum = minimum;
        fMaximum = maximum;
    }
    void setValue(double value) override { fValue = value; }
    void setAnimated(bool animated) override { fAnimated = animated; }
    void place(double x, double y, double, double) override { fX = x, fY = y; }
    bool screenSize(double* width, double* height) const override
    {
        *width = 1420;
        *height = 1090;
        return fHasScreen;
    }
    void orderFront() override { fShown = true; }
    void orderOut() override { fShown = false; }
    void redraw() override { ++fRedraws; }
    void processEvents() override
    {
        if (fOnEvents)
            fOnEvents();
    }

    QString fTitle, fSubLabel;
    std::vector<QString> fLabels;
    bool fIndeterminate = false, fAnimated = false, fShown = false, fHasScreen = true;
    std::int32_t fMinimum = 0, fMaximum = 0;
    double fValue = 0, fX = 0, fY = 0;
    int fRedraws = 0;
    std::function<void()> fOnEvents;
};

struct Progress : testing::Test {
    Progress()
    {
        context.exportIsWorking = true;
        context.progressMessage = kProgressInit;
        context.messageStr = "Opening CT...";
    }
    void Say(ZELProgressMessageID message, std::chrono::milliseconds after = 0ms)
    {
        controller.processMessage(message, &context, start + after);
    }
    NotedWindow window;
    ZELOpenProgressWindowController controller{&window};
    ExportLevelSettings context;
    const ZELOpenProgressWindowController::Clock::time_point start =
        ZELOpenProgressWindowController::Clock::now();
};

TEST_F(Progress, shows_its_window_only_after_two_seconds_of_work)
{
    Say(kProgressInit);
    EXPECT_EQ(window.fTitle, "Opening CT...");
    EXPECT_TRUE(window.fIndeterminate);
    EXPECT_TRUE(controller.runModalSession(&context, start + 1999ms));
    EXPECT_FALSE(window.fShown);
    EXPECT_TRUE(controller.runModalSession(&context, start + 2000ms));
    EXPECT_TRUE(window.fShown && window.fAnimated);

    Say(kProgressInit);  // another run, which ends before its time has come
    Say(kProgressStop);
    EXPECT_TRUE(controller.runModalSession(&context, start + 9s));
    EXPECT_FALSE(window.fShown);
}

TEST_F(Progress, does_what_each_message_says)
{
    Say(kProgressInit);
    context.mainMin = 0, context.mainMax = 20, context.mainValue = 0;
    Say(kProgressBeginCounted);
    EXPECT_FALSE(window.fIndeterminate);
    EXPECT_EQ(window.fMaximum, 20);
    context.steps = 3;
    Say(kProgressStep);
    context.messageStr = "IM4", context.steps = 1;
    Say(kProgressLabelAndStep);
    EXPECT_EQ(window.fValue, 4);
    EXPECT_EQ(window.fLabels.back(), "IM4");
    Say(kProgressIndeterminate);
    EXPECT_TRUE(window.fIndeterminate);
    context.mainMax = 7, context.mainValue = 2;
    Say(kProgressSetLimits);
    EXPECT_EQ(window.fValue, 4);
    Say(kProgressSetLimitsAndValue);
    EXPECT_EQ(window.fValue, 2);
    EXPECT_TRUE(window.fIndeterminate);
    const int redraws = window.fRedraws;
    Say(kProgressNone);
    EXPECT_EQ(window.fRedraws, redraws);
    Say(static_cast<ZELProgressMessageID>(13));
    EXPECT_EQ(window.fRedraws, redraws + 1);
}

TEST_F(Progress, throttles_fast_labels_from_the_last_one_that_was_shown)
{
    Say(kProgressInit);
    for (const int at : {0, 200, 350, 351, 600, 702}) {
        context.messageStr = QString::number(at);
        Say(kProgressLabelThrottled, std::chrono::milliseconds(at));
    }
    EXPECT_EQ(window.fLabels, (std::vector<QString>{"", "0", "351", "702"}));
}

TEST_F(Progress, keeps_the_words_of_a_cancel)
{
    Say(kProgressInit);
    controller.initOpenProgress(&context);
    EXPECT_EQ(window.fX, 500);
    EXPECT_EQ(window.fY, 250);
    controller.cancelProcessing();
    const auto labels = window.fLabels;
    context.messageStr = "IM5";
    Say(kProgressLabelAndStep);
    EXPECT_EQ(window.fLabels, labels);
    EXPECT_EQ(window.fValue, 10);
    EXPECT_FALSE(controller.runModalSession(&context));
}

TEST_F(Progress, of_a_worker_is_handled_while_the_worker_waits)
{
    ProgressHandshake handshake(&controller, [] {});
    window.fOnEvents = [&] {
        if (window.fValue >= 50 && !controller.userCancelled())
            controller.cancelProcessing();
    };
    std::thread worker([&] {
        context.progressMessage = kProgressInit;
        handshake.Begin(&context);
        for (context.mainValue = 0; !context.userCancelled; ++context.mainValue) {
            context.progressMessage = kProgressSetLimitsAndValue;
            handshake.Send(&context);
            if (context.mainValue == 50)
                context.mainValue = 49;  // waits for the cancel
        }
        handshake.Finish(&context);
    });
    handshake.Serve(&context);
    worker.join();
    EXPECT_EQ(window.fValue, 50);
    EXPECT_FALSE(context.exportIsWorking);
    EXPECT_EQ(context.progressSession, nullptr);
}

}  // namespace

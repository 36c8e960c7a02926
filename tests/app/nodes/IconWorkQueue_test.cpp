// Which thumbnail or text comes next.
#include "app/nodes/IconWorkQueue.h"

#include "app/nodes/DicomElemChildNode.h"
#include "dicom_core/tree/dk_DicomSequence.h"

#include <gtest/gtest.h>

namespace {

using Tick = IconWorkQueue::Tick;

// Nodes of four sequences, A to D. What is done is written down as the letter, small for a text.
struct Work {
    Work()
    {
        queue.createPreviewIconFor = [this](DicomElemChildNode* node) {
            QImage image(1, 1, QImage::Format_RGB32);
            node->setNooodeImage(image, 360);
            done += Letter(node);
        };
        queue.updateTextsFor = [this](DicomElemChildNode* node) {
            node->setNooodeTextOK();
            done += static_cast<char>(Letter(node) - 'A' + 'a');
        };
        queue.start(4);
    }
    char Letter(const DicomElemChildNode* node)
    {
        for (int i = 0; i < 4; ++i)
            if (&nodes[i] == node)
                return static_cast<char>('A' + i);
        return '?';
    }
    // Rows as they are displayed: an icon for a capital, a text for a small letter.
    void Display(const char* rows)
    {
        for (; *rows; ++rows)
            if (*rows >= 'a')
                queue.checkItemTextAndMoveToTop(&nodes[*rows - 'a']);
            else
                queue.checkItemIconAndMoveToTop(&nodes[*rows - 'A']);
    }
    std::string Run(const IconWorkQueue::Surroundings& now = {})
    {
        done.clear();
        while (queue.prepareNodeIcon(now) == Tick::Worked) {
        }
        return done;
    }
    dk_Sequence sequences[4];
    DicomElemChildNode nodes[4] = {
        DicomElemChildNode(&sequences[0]), DicomElemChildNode(&sequences[1]),
        DicomElemChildNode(&sequences[2]), DicomElemChildNode(&sequences[3])};
    IconWorkQueue queue;
    std::string done;
};

}  // namespace

TEST(IconWorkQueue, takes_rows_in_the_order_of_their_display)
{
    struct Row {
        const char* fault;
        const char* displayed;
        bool fastStart;
        const char* order;
    };
    const Row rows[] = {
        {"the row displayed last comes first", "ABC", false, "CBA"},
        {"a row seen again jumps the queue", "ABCA", false, "ACB"},
        {"it makes no second job", "AAAA", false, "A"},
        {"at a fast start a row seen twice outweighs newer ones", "AABC", true, "ACB"},
        {"at a fast start without such a row the first icon", "AB", true, "BA"},
        {"a text doesn't come before its icon", "aAbB", false, "BA"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        Work work;
        work.Display(row.displayed);
        IconWorkQueue::Surroundings now;
        now.fastStart = row.fastStart;
        EXPECT_EQ(work.Run(now), row.order);
        EXPECT_EQ(work.queue.pending(), 0);
    }
}

TEST(IconWorkQueue, icons_outweigh_texts_that_wait_in_front)
{
    for (const bool fast : {false, true}) {
        Work work;
        work.Display("A");
        EXPECT_EQ(work.Run(), "A");
        work.Display("Ba");
        IconWorkQueue::Surroundings now;
        now.fastStart = fast;
        EXPECT_EQ(work.Run(now), "Ba");
    }
}

TEST(IconWorkQueue, says_whether_another_tick_is_worth_it)
{
    Work work;
    EXPECT_EQ(work.queue.prepareNodeIcon({}), Tick::Idle) << "an empty queue";
    work.Display("AB");
    EXPECT_EQ(work.queue.prepareNodeIcon({.modal = true}), Tick::Waiting);
    EXPECT_EQ(work.queue.prepareNodeIcon({.textOnly = true}), Tick::Idle);
    EXPECT_EQ(work.queue.jobs().back()._sequenceNode, &work.nodes[1]) << "moved to the end";
    EXPECT_EQ(work.done, "") << "nothing is decoded for texts alone";
    work.queue.pause();
    EXPECT_EQ(work.queue.prepareNodeIcon({}), Tick::Stopped);
    work.queue.restart(0);
    EXPECT_EQ(work.queue.fIconWorkDone(), 2) << "those that are pending";
    EXPECT_EQ(work.Run(), "AB");
    EXPECT_EQ(work.queue.prepareNodeIcon({}), Tick::Stopped) << "none is expected";
}

TEST(IconWorkQueue, a_thumbnail_keeps_its_place_until_its_pixels_are_there)
{
    Work work;
    std::string ready;
    work.queue.pixelsAreReady = [&](DicomElemChildNode* node) {
        return ready.find(work.Letter(node)) != std::string::npos;
    };
    work.Display("AB");
    const int expected = work.queue.fIconWorkDone();
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(work.queue.prepareNodeIcon({}), Tick::Preparing);
    EXPECT_EQ(work.queue.fIconWorkDone(), expected);
    ready = "A";
    EXPECT_EQ(work.Run(), "") << "A doesn't overtake";
    work.Display("A");
    EXPECT_EQ(work.Run(), "A") << "but where the user looks at it";
    ready = "B";
    EXPECT_EQ(work.Run(), "B");
}

TEST(IconWorkQueue, ends_when_every_icon_and_text_is_there)
{
    Work work;
    work.Display("ABCD");
    EXPECT_EQ(work.Run(), "DCBA");
    work.Display("abcdA");
    EXPECT_EQ(work.Run(), "dcba");
    EXPECT_EQ(work.queue.fIconWorkDone(), 0);
    EXPECT_EQ(work.queue.prepareNodeIcon({}), Tick::Stopped);
}

TEST(IconWorkQueue, drops_icons_and_keeps_texts)
{
    Work work;
    work.Display("A");
    work.Run();
    work.Display("BaC");
    work.queue.removeAllPendingIconWorkers();
    EXPECT_EQ(work.Run(), "a");
}

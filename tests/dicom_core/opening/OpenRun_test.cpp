// One request across the main thread and its worker: cancels, and what they leave behind.
#include "dicom_core/opening/OpenRun.h"

#include "dicom_core/opening/CacheCopy.h"
#include "dicom_core/opening/OpeningFixtures.h"
#include "dicom_core/opening/ProgressCalls.h"
#include "dicom_core/opening/ZELDcmTree.h"
#include "fixtures/TempFolder.h"
#include "platform/PreferenceStore.h"
#include "prefs/Prefs.h"

#include <chrono>
#include <filesystem>
#include <gtest/gtest.h>
#include <thread>

namespace {

std::size_t EntriesOf(const char* folder)
{
    std::size_t count = 0;
    for ([[maybe_unused]] const auto& entry : std::filesystem::directory_iterator(folder))
        ++count;
    return count;
}

// The kernel lists a thread for a moment after it has been joined.
bool ThreadsBecome(std::size_t count)
{
    for (int tries = 0; tries < 2000 && EntriesOf("/proc/self/task") > count; ++tries)
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    return EntriesOf("/proc/self/task") <= count;
}

struct OpenRun : testing::Test {
    OpenRun()
    {
        prefs_Store().UseFile({});
        prefs_InitializeForApplication();
    }
    std::int32_t Run(std::int32_t flavor, const std::string& target,
                     OpenActionType action = kOpenActionPlain)
    {
        auto settings = std::make_unique<OpenSettings>();
        settings->actionType = action;
        settings->actionFlavor = flavor;
        settings->openTargetPath = target;
        settings->dcmDBRoot = &tree;
        std::int32_t error = kQvxOK;
        settings->openError = &error;
        result = threadedOpenWithParams(std::move(settings), &controller, [] {});
        return error;
    }
    TempFolder folder;
    SilentProgress window;
    ZELOpenProgressWindowController controller{&window};
    ZELDcmTree tree;
    std::int8_t result = 0;
};

TEST_F(OpenRun, that_is_cancelled_ends_at_once_and_leaves_nothing_behind)
{
    for (int i = 0; i < 300; ++i)
        folder.WriteFile(std::to_string(i), SmallImage({.instance = "1." + std::to_string(i)}));
    const std::size_t threads = EntriesOf("/proc/self/task");
    for (int turn = 0; turn < 10; ++turn) {
        const std::size_t descriptors = EntriesOf("/proc/self/fd");
        ZELDcmTree own;
        int events = 0;
        window.fOnEvents = [&] {
            if (events++ == turn / 2)
                controller.cancelProcessing();
        };
        auto settings = std::make_unique<OpenSettings>();
        settings->actionType = turn % 2 ? kOpenActionPlain : kOpenActionRecent;
        settings->actionFlavor = kOpenFlavorFolder;
        settings->openTargetPath = folder.Path();
        settings->dcmDBRoot = &own;
        std::int32_t error = kQvxOK;
        settings->openError = &error;
        const auto begun = std::chrono::steady_clock::now();
        threadedOpenWithParams(std::move(settings), &controller, [] {});
        EXPECT_LT(std::chrono::steady_clock::now() - begun, std::chrono::seconds(5));
        EXPECT_TRUE(error == kQvxUserCanceled || own.numberOfPatients() == 1) << error;
        EXPECT_TRUE(ThreadsBecome(threads));
        EXPECT_EQ(EntriesOf("/proc/self/fd"),
                  descriptors + (own.fileCopiesFolder().empty() ? 0 : 1));
        const std::string cache = own.fileCopiesFolder();
        own.cleanCacheFiles();
        EXPECT_FALSE(!cache.empty() && std::filesystem::exists(cache));
        EXPECT_EQ(EntriesOf("/proc/self/fd"), descriptors);
    }
}

TEST_F(OpenRun, of_each_kind_answers_with_its_own_codes)
{
    folder.WriteFile("text", "no image");
    const std::string directory = folder.WriteFile("disc/DICOMDIR", EmptyDirectory());
    EXPECT_EQ(Run(kOpenFlavorFile, folder.Path("text")), kZelNoPatientInFile);
    EXPECT_EQ(Run(kOpenFlavorFolder, folder.Path()), kZelNoPatientInFolder);
    EXPECT_EQ(Run(kOpenFlavorFile, folder.Path("text"), kOpenActionRecent), kZelRecentFailed);
    EXPECT_EQ(Run(kOpenFlavorCDDICOMDIR, directory, kOpenActionCD), kZelDiscOpenFailed);
    EXPECT_TRUE(tree.isOnSlowMedia());
    EXPECT_EQ(tree.sourceFilePath(), folder.Path("disc"));
    const std::string image = folder.WriteFile("image", SmallImage());
    EXPECT_EQ(Run(kOpenFlavorFile, image, kOpenActionRecent), kQvxOK);
    EXPECT_EQ(result, 1);
    EXPECT_EQ(tree.numberOfPatients(), 1);
}

}  // namespace

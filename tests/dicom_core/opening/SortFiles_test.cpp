// Order and copies, against the exchange sort and the double loop that define them.
#include "dicom_core/opening/BuildTree.h"
#include "dicom_core/opening/ZELDcmTree.h"
#include "dicom_core/tree/dk_ImageFile.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>

namespace {

using Rec = DicomImageFileRec;

// A file of a record, told apart by its path.
std::unique_ptr<dk_ImageFile> FileOf(const Rec& record, const std::string& path)
{
    auto file = std::make_unique<dk_ImageFile>();
    auto source = std::make_unique<zelImageSource>();
    source->ImportFromHeader(FileRef{path}, FileIdentity{1, 2, 3, 4}, 1);
    file->SetSourceFile(source.release());
    file->SetParserInfoData(record);
    return file;
}

std::string Paths(const dk_DicomBaseElem& collection)
{
    std::string paths;
    for (auto* child = collection.GetFirstChild(); child; child = child->GetNext())
        paths += static_cast<dk_ImageFile*>(child)->GetSource()->GetDataPath() + " ";
    return paths;
}

Rec Record(const char* name, const char* id, const char* date, const char* study,
           const char* series, std::int32_t number, std::int32_t instance, const char* uid)
{
    Rec record;
    record.recPatientName.Assign(name);
    record.recPatientID.Assign(id);
    record.recStudyDate.Assign(date);
    record.recStudyUID.Assign(study);
    record.recSeriesUID.Assign(series);
    record.recSeriesNumber = number;
    record.recInstanceNumber = instance;
    record.recSOPInstanceUID.Assign(uid);
    return record;
}

TEST(SortImageFilesForPatientList, orders_by_the_first_key_that_differs)
{
    const Rec base = Record("B", "5", "2020", "5", "5", 5, 5, "5");
    struct Row {
        const char* fault;
        Rec first;  // comes before, and is listed behind, `base`
    };
    const Row rows[] = {
        {"name", Record("A", "9", "1999", "9", "9", 9, 9, "9")},
        {"id", Record("B", "4", "1999", "9", "9", 9, 9, "9")},
        {"newer studies first", Record("B", "5", "2021", "9", "9", 9, 9, "9")},
        {"study UID", Record("B", "5", "2020", "4", "9", 9, 9, "9")},
        {"series UID before its number", Record("B", "5", "2020", "5", "4", 9, 9, "9")},
        {"series number", Record("B", "5", "2020", "5", "5", 4, 9, "9")},
        {"numbers as numbers", Record("B", "5", "2020", "5", "5", -1, 9, "9")},
        {"instance number", Record("B", "5", "2020", "5", "5", 5, 4, "9")},
        {"instance UID", Record("B", "5", "2020", "5", "5", 5, 5, "4")},
        {"ties: the later listed first", base},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        for (const bool swapped : {false, true}) {
            if (swapped && row.first.recSOPInstanceUID == base.recSOPInstanceUID)
                continue;  // the tie is not symmetric
            dk_DicomBaseElem collection;
            collection.AddChild(FileOf(swapped ? row.first : base, swapped ? "first" : "base"));
            collection.AddChild(FileOf(swapped ? base : row.first, swapped ? "base" : "first"));
            SortImageFilesForPatientList(&collection);
            EXPECT_EQ(Paths(collection), "first base ");
        }
    }
}

TEST(SortImageFilesForPatientList, equals_the_exchange_sort_and_the_double_loop)
{
    std::mt19937 random(1);
    const auto digit = [&random](unsigned below) { return std::to_string(random() % below); };
    for (int turn = 0; turn < 200; ++turn) {
        dk_DicomBaseElem sorted, expected;
        std::vector<std::unique_ptr<dk_ImageFile>> files;
        const std::size_t count = random() % 24;
        for (std::size_t i = 0; i < count; ++i) {
            const Rec record =
                Record(digit(2).c_str(), "", digit(2).c_str(), "", digit(2).c_str(),
                       static_cast<std::int32_t>(random() % 2), 0, i % 3 ? digit(3).c_str() : "");
            sorted.AddChild(FileOf(record, std::to_string(i)));
            files.push_back(FileOf(record, std::to_string(i)));
        }
        for (std::size_t i = 0; i < count; ++i)
            for (std::size_t j = i + 1; j < count; ++j)
                if (files[j]->IsBefore(files[i].get()))
                    std::swap(files[i], files[j]);
        for (std::size_t i = 0; i < files.size(); ++i)
            for (std::size_t j = files.size() - 1; j > i; --j) {
                const Rec *a = files[i]->GetParserInfoData(), *b = files[j]->GetParserInfoData();
                if (a->recSOPInstanceUID == b->recSOPInstanceUID &&
                    a->recSeriesNumber == b->recSeriesNumber)
                    files.erase(files.begin() + static_cast<std::ptrdiff_t>(j));
            }
        ZELDcmTree tree;
        SortImageFilesForPatientList(&sorted);
        FindIdenticalImageFilesInList(&sorted, &tree);
        for (auto& file : files)
            expected.AddChild(std::move(file));
        EXPECT_EQ(Paths(sorted), Paths(expected));
        EXPECT_EQ(tree.leftOut().size() + static_cast<std::size_t>(sorted.GetNumChildren()), count);
    }
}

}  // namespace

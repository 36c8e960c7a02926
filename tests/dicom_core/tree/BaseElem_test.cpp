// Links, walks, counts and marks, and what an element is called as a file.
#include "dicom_core/tree/ExportTitles.h"
#include "dicom_core/tree/TreeFixtures.h"

#include <gtest/gtest.h>

namespace {

// The children by the letters of their file names, forward, then backward.
std::string Order(const dk_DicomBaseElem& parent)
{
    std::string letters;
    const dk_DicomBaseElem* child = parent.GetFirstChild();
    for (; child; child = child->GetNext())
        letters += child->fFileName.Str();
    letters += '|';
    for (child = parent.GetLastChild(); child; child = child->GetPrev())
        letters += child->fFileName.Str();
    return letters;
}

dk_DicomBaseElem* Letter(dk_DicomBaseElem* parent, char letter)
{
    auto* elem = Added<dk_DicomBaseElem>(parent);
    elem->fFileName.Assign(std::string(1, letter));
    return elem;
}

TEST(DicomBaseElem, keeps_both_directions_of_its_list_through_every_change)
{
    using Change = std::function<void(dk_DicomBaseElem&)>;
    struct Row {
        const char* fault;
        Change change;
        const char* order;
        int count = 4;
    };
    const auto swap = [](int a, int b) {
        return [a, b](dk_DicomBaseElem& p) { p.SwapChildren(p.GetChild(a), p.GetChild(b)); };
    };
    const auto insertBehind = [](int index) {
        return [index](dk_DicomBaseElem& p) {
            auto e = std::make_unique<dk_DicomBaseElem>();
            e->fFileName.Assign("e");
            p.AddChildAfter(std::move(e), p.GetChild(index));
        };
    };
    const Row rows[] = {
        {"neighbours", swap(2, 3), "acbd|dbca"},
        {"neighbours, the later one first", swap(3, 2), "acbd|dbca"},
        {"both ends", swap(1, 4), "dbca|acbd"},
        {"insert at the head", insertBehind(0), "eabcd|dcbae", 5},
        {"delete the last",
         [](dk_DicomBaseElem& p) { EXPECT_FALSE(p.DeleteChildAndGetNext(p.GetChild(4))); },
         "abc|cba", 3},
        {"order anew",
         [](dk_DicomBaseElem& p) {
             p.OrderChildren({p.GetChild(3), p.GetChild(1), p.GetChild(4), p.GetChild(2)});
         },
         "cadb|bdac"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        dk_DicomBaseElem parent;
        for (const char letter : {'a', 'b', 'c', 'd'})
            Letter(&parent, letter);
        row.change(parent);
        EXPECT_EQ(Order(parent), row.order);
        EXPECT_EQ(parent.GetNumChildren(), row.count);
    }
}

// Two patients of two and one branches, with an empty branch between them.
struct Branches : testing::Test {
    dk_DicomBaseElem root;
    dk_DicomBaseElem* first = Added<dk_DicomBaseElem>(&root);
    dk_DicomBaseElem* empty = Added<dk_DicomBaseElem>(&root);
    dk_DicomBaseElem* last = Added<dk_DicomBaseElem>(&root);
    dk_DicomBaseElem* a = Letter(first, 'a');
    dk_DicomBaseElem* b = Letter(first, 'b');
    dk_DicomBaseElem* c = Letter(last, 'c');
};

TEST_F(Branches, are_indexed_from_one_and_walked_past_empty_ones)
{
    dk_DicomBaseElem* const rows[][2] = {{nullptr, nullptr}, {first, a}, {empty, b}, {last, c}};
    for (int index = -1; index <= 4; ++index) {
        const auto& [child, grandChild] = rows[index > 0 ? index % 4 : 0];
        EXPECT_EQ(root.GetChild(index), child) << index;
        EXPECT_EQ(root.GetGrandChild(index), grandChild) << index;
        EXPECT_EQ(root.GetGrandChildIndex(grandChild), grandChild ? index : 0);
    }
    EXPECT_EQ(root.GetChildIndex(a), 0);
    EXPECT_EQ(b->GetIndexInBranch(), 2);
    EXPECT_EQ(b->GetNextAtSameLevel(), c);
    EXPECT_EQ(c->GetNextAtSameLevel(), nullptr);
    std::vector<const dk_DicomBaseElem*> walked;
    for (const dk_DicomBaseElem* elem = &root; elem; elem = elem->GetNextElem_DepthFirst())
        walked.push_back(elem);
    EXPECT_EQ(walked, (std::vector<const dk_DicomBaseElem*>{&root, first, a, b, empty, last, c}));
}

TEST(ExportTitles, drop_blanks_only_behind_what_they_replace)
{
    struct Row {
        const char *title, *narrow, *wide;
    };
    for (const Row& row :
         {Row{"Se 3: a/b", "Se 3_a-b", "Se 3_a_b"}, Row{"a \\  b : c", "a -b _c", "a _b _c"},
          Row{": / x", "_-x", "__x"}, Row{"x:", "x_", "x_"}}) {
        EXPECT_EQ(NarrowExportTitle(row.title), row.narrow);
        EXPECT_EQ(WideExportTitle(row.title).toStdString(), row.wide);
    }
}

// ---- the root -----------------------------------------------------------------------------------

struct RootTree : testing::Test {
    // A sequence of `frames` in a branch of its own, at `patient` or a new one.
    dk_Sequence* Grown(int frames, dk_Patient* patient = nullptr, const char* modality = "XA")
    {
        if (!patient)
            patient = Added<dk_Patient>(&root);
        return AddedSequence(Added<dk_Series>(Added<dk_Study>(patient)), frames, modality);
    }
    dk_PatientListRoot root;
};

TEST_F(RootTree, counts_fast_up_to_four_and_remembers)
{
    Grown(0);
    for (int i = 0; i < 5; ++i)
        Grown(1);
    EXPECT_EQ(root.NumberOfGoodSequencesFast(), 4);
    EXPECT_EQ(root.NumberOfGoodSequences(), 5);
    EXPECT_EQ(root.GetNumImageFiles(), 6);
    EXPECT_FALSE(root.HasManyCineSequencesFast());
    Grown(2);
    EXPECT_FALSE(root.HasManyCineSequencesFast());
    Grown(2);
    EXPECT_TRUE(root.HasManyCineSequencesFast());
    EXPECT_EQ(root.NumberOfGoodSequencesFast(), 4);
}

TEST_F(RootTree, marks_only_what_can_be_shown)
{
    dk_Sequence* const bad = Grown(0);
    dk_Sequence* const still = Grown(1);
    dk_Sequence* const cine = Grown(2);
    dk_Sequence* const ct = Grown(2, nullptr, "CT");
    root.MarkAll(true);
    EXPECT_FALSE(bad->fMarked);
    EXPECT_EQ(root.GetNumMarkedSequences(), 3);
    EXPECT_EQ(root.GetNumMarkedCineSequences(), 1) << "neither a CT nor a lone frame is a cine";
    EXPECT_EQ(cine->GetThePatient()->GetNumMarkedSequences(), 1);
    still->fMarked = false;
    bad->fMarked = true;
    root.SwitchMarked();
    EXPECT_TRUE(still->fMarked && bad->fMarked);
    EXPECT_FALSE(cine->fMarked || ct->fMarked);
    root.MarkAll(false);
    EXPECT_FALSE(bad->fMarked);
}

TEST_F(RootTree, goes_from_sequence_to_sequence_across_empty_branches)
{
    auto* const patient = Added<dk_Patient>(&root);
    dk_Sequence* const a = Grown(1, patient);
    Added<dk_Series>(a->GetGrandParent());  // an empty series behind it
    Added<dk_Study>(patient);
    dk_Sequence* const bad = Grown(0, patient);
    Added<dk_Series>(Added<dk_Study>(Added<dk_Patient>(&root)));
    dk_Sequence* const b = Grown(1);
    EXPECT_EQ(a->GetNextSequence_DICOM(), bad);
    EXPECT_EQ(bad->GetNextSequence_DICOM(), b);
    EXPECT_EQ(b->GetNextSequence_DICOM(), nullptr);
    EXPECT_EQ(b->GetPrevSequence_DICOM(), bad);
    EXPECT_EQ(bad->GetPrevSequence_DICOM(), a);
    EXPECT_EQ(a->GetPrevSequence_DICOM(), nullptr);
    EXPECT_EQ(a->GetNextGoodSequence_DICOM(), b);
    EXPECT_EQ(b->GetPrevGoodSequence_DICOM(), a);
    const dk_SequenceBase* const indexed[] = {a, a, bad, b, nullptr};
    for (int n = 0; n < 5; ++n)
        EXPECT_EQ(root.GetIndexedSequence(n), indexed[n]) << n;
    EXPECT_EQ(root.GetFirstSequence_DICOM(), a);
    static_cast<void>(root.GetFirstSequence_DICOM()->GetGrandParent()->DeleteChildAndGetNext(
        root.GetFirstSequence_DICOM()->GetParent()));
    EXPECT_EQ(root.GetFirstSequence_DICOM(), nullptr) << "the first study is empty";
    EXPECT_EQ(root.GetLastGoodSequence_DICOM(), b);
}

}  // namespace

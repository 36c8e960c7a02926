// Pictures of a sequence: in which size and colours frames come, and what fails alone.
#include "viewer/SequenceDelegate.h"

#include "dicom_core/tree/dk_DicomSequence.h"
#include "dicom_core/tree/dk_ImageFile.h"
#include "fixtures/DicomBuilder.h"
#include "fixtures/TempFolder.h"

#include <gtest/gtest.h>

namespace {

DicomBuilder Base() { return DicomBuilder().Meta(kUidExplicitLittle).CommonHeader(); }

// Frames of `rows` by `columns`, gray, 0 with one 255 in the middle of the top row.
std::string GrayFile(std::uint16_t rows, std::uint16_t columns, int frames)
{
    std::string values(static_cast<std::size_t>(rows * columns * frames), '\0');
    values[columns / 2u] = '\xFF';
    return Base()
        .Image({.rows = rows, .columns = columns, .bits = 8, .frames = frames})
        .Element(0x0028, 0x1050, "DS", "128")
        .Element(0x0028, 0x1051, "DS", "256")
        .NativePixels(values, "OB")
        .Bytes();
}

struct Files {
    Files() { CImporterPlusFactory::InitFactory(); }
    std::string Add(const std::string& name, const std::string& bytes)
    {
        const std::string path = folder.WriteFile(name, bytes);
        auto file = std::make_unique<dk_ImageFile>();
        EXPECT_EQ(file->SetSourceFile(FileRef{path}, kImportDicom), kQvxOK);
        sequence.AddChild(std::move(file));
        return path;
    }
    TempFolder folder;
    dk_Sequence sequence;
};

}  // namespace

TEST(SequenceDelegate, fits_large_frames_and_never_enlarges_in_points)
{
    Files files;
    files.Add("a", GrayFile(200, 100, 1));
    SequenceDelegate delegate;
    delegate.setSequence(&files.sequence);
    struct Row {
        const char* fault;
        QSizeF content;
        double ratio;
        QSizeF size;
        QSize pixels;
    };
    const Row rows[] = {
        {"natural size", {500, 500}, 1, {100, 200}, {100, 200}},
        {"height decides", {500, 100}, 1, {50, 100}, {50, 100}},
        {"width decides", {50, 500}, 1, {50, 100}, {50, 100}},
        {"a pixel a point, drawn in device pixels", {500, 500}, 2, {100, 200}, {200, 400}},
        {"fitted, but with all pixels of the screen", {50, 100}, 1.5, {50, 100}, {75, 150}},
        {"no room", {0, 0}, 1, {0, 0}, {1, 1}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        const MUPhoto photo = delegate.photoAtIndex(0, row.content, row.ratio);
        EXPECT_EQ(photo.size, row.size);
        EXPECT_EQ(photo.image.size(), row.pixels);
    }
    // At once, whatever the resolution it is kept in, but for the content of now.
    EXPECT_EQ(delegate.fastPhotoAtIndex(0, QSizeF(500, 100)).size, QSizeF(50, 100));
}

TEST(SequenceDelegate, keeps_colours_and_windows_with_their_frames)
{
    Files files;
    files.Add("a", GrayFile(1, 4, 2));
    files.Add("b", Base()
                       .Image({.rows = 1, .columns = 2, .bits = 8, .samples = 3})
                       .NativePixels(std::string("\xFF\x80\0\x1\x2\x3", 6), "OB")
                       .Bytes());
    SequenceDelegate delegate;
    delegate.setSequence(&files.sequence);
    const QSizeF room(100, 100);
    const QImage first = delegate.photoAtIndex(0, room, 1).image;
    const QImage second = delegate.photoAtIndex(1, room, 1).image;
    const QImage color = delegate.photoAtIndex(2, room, 1).image;
    EXPECT_EQ(first.pixelColor(2, 0), QColor(Qt::white));
    EXPECT_EQ(first.pixelColor(0, 0), QColor(Qt::black));
    EXPECT_EQ(second.pixelColor(2, 0), QColor(Qt::black));
    EXPECT_EQ(color.pixelColor(0, 0), QColor(255, 128, 0));
    EXPECT_EQ(color.pixelColor(1, 0), QColor(1, 2, 3));
    EXPECT_TRUE(delegate.captionAtIndex(0).hasWindow);
    EXPECT_EQ(delegate.captionAtIndex(0).width, 256);
    EXPECT_EQ(delegate.captionAtIndex(0).level, 128);
    EXPECT_FALSE(delegate.captionAtIndex(2).hasWindow);
}

TEST(SequenceDelegate, a_file_that_vanished_fails_alone)
{
    Files files;
    files.Add("a", GrayFile(2, 2, 1));
    const std::string gone = files.Add("b", GrayFile(2, 2, 1));
    SequenceDelegate delegate;
    delegate.setSequence(&files.sequence);
    ASSERT_EQ(std::remove(gone.c_str()), 0);
    const QSizeF room(100, 100);
    EXPECT_TRUE(delegate.photoAtIndex(1, room, 1).isNull());
    EXPECT_TRUE(delegate.captionAtIndex(1).failed);
    EXPECT_FALSE(delegate.photoAtIndex(0, room, 1).isNull());
    EXPECT_FALSE(delegate.captionAtIndex(0).failed);
}

TEST(SequenceDelegate, other_frames_leave_no_pictures_behind)
{
    Files files, others;
    files.Add("a", GrayFile(2, 2, 1));
    others.Add("b", GrayFile(4, 6, 1));
    SequenceDelegate delegate;
    delegate.setSequence(&files.sequence);
    const QSizeF room(100, 100);
    EXPECT_EQ(delegate.photoAtIndex(0, room, 1).image.size(), QSize(2, 2));
    delegate.setSequence(&others.sequence);
    EXPECT_TRUE(delegate.fastPhotoAtIndex(0, room).isNull());
    EXPECT_EQ(delegate.photoAtIndex(0, room, 1).image.size(), QSize(6, 4));
}

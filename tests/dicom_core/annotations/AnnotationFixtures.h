// What the tests of this folder share: a paper whose y runs
// upward, and sequences of made files.
#pragma once
#include "dicom_core/annotations/ImageAnnotation.h"
#include "dicom_core/tree/TreeFixtures.h"

#include "qpix/CImporterFactory.h"
#include <QImage>
#include <QPainter>
#include <gtest/gtest.h>

class PaintingTest : public testing::Test {
protected:
    static void SetUpTestSuite() { CImporterPlusFactory::InitFactory(); }
};

// Gray paper of a cell's size; `scale` is that of the screen, (left, top) the cell's first pixel.
class Paper {
public:
    Paper(int width, int height, double scale = 1, int left = 0, int top = 0)
        : fImage(static_cast<int>(width * scale), static_cast<int>(height * scale),
                 QImage::Format_RGB32),
          fScale(scale)
    {
        fImage.fill(0xFF808080);
        fPainter.emplace(&fImage);
        fPainter->scale(scale, -scale);
        fPainter->translate(-left, top);
    }
    [[nodiscard]] QPainter& Painter() { return *fPainter; }
    // The smallest rectangle, in logical pixels with y downward, around all pixels that `wanted`
    // answers true for. Empty if there are none.
    template <typename Wanted>
    [[nodiscard]] QRectF BoundsOf(Wanted wanted) const
    {
        QRect found;
        for (int y = 0; y < fImage.height(); ++y)
            for (int x = 0; x < fImage.width(); ++x)
                if (wanted(fImage.pixel(x, y)))
                    found |= QRect(x, y, 1, 1);
        return {found.x() / fScale, found.y() / fScale, found.width() / fScale,
                found.height() / fScale};
    }
    [[nodiscard]] QRectF Painted() const
    {
        return BoundsOf([](QRgb pixel) { return pixel != 0xFF808080; });
    }
    [[nodiscard]] const QImage& Image() const { return fImage; }

private:
    QImage fImage;
    std::optional<QPainter> fPainter;
    double fScale;
};

// The yellow of the texts, however little a pixel has of it; not their shadow.
[[nodiscard]] inline bool IsInk(QRgb pixel) { return qRed(pixel) > qBlue(pixel) + 0x20; }

struct AnnotatedSequence {
    explicit AnnotatedSequence(const FileWords& words) { Add(words); }
    void Add(const FileWords& words)
    {
        files.push_back(
            AddedFile(&sequence, WriteImage(folder, "f" + std::to_string(files.size()), words)));
        sequence.fModalityStr.Assign(words.modality);
    }
    [[nodiscard]] zel_TransformRec& Look(int frame = 1)
    {
        return sequence.GetImageFrameInfo(frame)->fTransform;
    }
    [[nodiscard]] AnnotatedFrame Frame(int frame, const Rect& cell = {0, 0, 400, 400})
    {
        sequence.SetCurrentFrameIndex(frame);
        dk_ImageFrameInfo* info = sequence.GetImageFrameInfo(frame);
        return {cell, sequence, *info, sequence.GetFrameParser(frame),
                info->fImageFile->GetCharacterEncoding()};
    }

    TempFolder folder;
    dk_Sequence sequence;
    std::vector<dk_ImageFile*> files;
};

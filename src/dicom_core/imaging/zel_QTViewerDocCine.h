// The viewer document of a film: the same steps, with words of its own in the log.
#pragma once
#include "dicom_core/imaging/zel_QTViewerDoc.h"

class zel_QTViewerDocCine final : public zel_QTViewerDoc {
protected:
    [[nodiscard]] const char* LoadWords() const override { return "CineLoadImageSource"; }
};

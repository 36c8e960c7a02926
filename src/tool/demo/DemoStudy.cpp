#include "tool/demo/DemoStudy.h"

#include "tool/demo/DemoSeries.h"

#include <new>

namespace {

QvxStatus WriteAll(DemoFolder* folder)
{
    const DemoPhantom phantom;
    // By patient and series, as the directory wants it.
    static constexpr QvxStatus (*kSeries[])(const DemoPhantom&, DemoFolder*) = {
        WriteDemoLocalizer, WriteDemoCT,       WriteDemoRadiograph, WriteDemoChart,
        WriteDemoObliqueMR, WriteDemoPET,      WriteDemoEnhancedMR, WriteDemoUltrasound,
        WriteDemoLateral,   WriteDemoOverlays, WriteDemoAngiogram,  WriteDemoPolarMap,
    };
    if (const QvxStatus status = folder->MakeFolder(""))
        return status;
    for (const auto write : kSeries) {
        if (const QvxStatus status = write(phantom, folder))
            return status;
    }
    return folder->WriteDirectory();
}

}  // namespace

QvxStatus WriteDemoStudy(const std::string& folder, std::string* failure)
{
    try {
        DemoFolder files(folder);
        const QvxStatus status = WriteAll(&files);
        if (status != kQvxOK)
            *failure = files.Failure().empty() ? StatusText(status) : files.Failure();
        return status;
    } catch (const std::bad_alloc&) {
        *failure = StatusText(kQvxNoMemory);
        return kQvxNoMemory;
    }
}

#include "tool/demo/DemoStudy.h"

#include "tool/demo/DemoSeries.h"

#include <new>

namespace {

QvxStatus WriteAll(DemoFolder* folder)
{
    const DemoPhantom phantom;
    QvxStatus status = folder->MakeFolder("");
    if (status == kQvxOK)
        status = WriteDemoCT(phantom, folder);
    if (status == kQvxOK)
        status = WriteDemoLocalizer(phantom, folder);
    if (status == kQvxOK)
        status = WriteDemoRadiograph(phantom, folder);
    return status == kQvxOK ? WriteDemoChart(folder) : status;
}

}  // namespace

QvxStatus WriteDemoStudy(const std::string& folder, std::string* failure)
{
    try {
        DemoFolder files(folder);
        const QvxStatus status = WriteAll(&files);
        if (status != kQvxOK)
            *failure = files.Failure();
        return status;
    } catch (const std::bad_alloc&) {
        *failure = StatusText(kQvxNoMemory);
        return kQvxNoMemory;
    }
}

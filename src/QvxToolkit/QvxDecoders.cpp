#include "QvxToolkit/QvxDecoders.h"

#include "util/Log.h"

#include "QvxToolkit/QvxNativeFrame.h"

QvxStatus QvxPickDecoder(const QvxFrameRecord& record, QvxFrameDecoder* decoder, std::string* why)
{
    if (!record.fEncapsulated) {
        *decoder =
            record.fForm == QvxSampleForm::Integer ? QvxDecodeNativeFrame : QvxDecodeFloatFrame;
        return kQvxOK;
    }
    const std::string& uid = record.fTransferSyntax;
    *why = "(0002,0010): no decoder for frames of transfer syntax " +
           (uid.empty() ? std::string("unknown") : EscapedText(uid));
    return kQvxUnsupported;
}

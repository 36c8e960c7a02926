// The module "dcmtk": see QvxJPEGModule.h.
#include "QvxToolkit/QvxJPEGModule.h"
#include <cstdio>
#include <dcmtk/config/osconfig.h>
#include <dcmtk/dcmjpeg/djcparam.h>
#include <dcmtk/dcmjpeg/djdijg12.h>
#include <dcmtk/dcmjpeg/djdijg16.h>
#include <dcmtk/dcmjpeg/djdijg8.h>
#include <dcmtk/oflog/oflog.h>
#include <exception>
#include <limits>

namespace {

void Say(const QvxJPEGRequest& request, const char* reason)
{
    if (request.fReason && request.fReasonBytes > 0)
        std::snprintf(request.fReason, request.fReasonBytes, "%s", reason);
}

template <typename Decoder>
std::int32_t Decode(const QvxJPEGRequest& request, const DJCodecParameter& parameter)
{
    constexpr std::size_t kMost = std::numeric_limits<Uint32>::max();
    if (request.fStreamBytes > kMost || request.fSampleBytes > kMost) {
        Say(request, "the stream is too large");
        return kQvxJPEGFailed;
    }
    Decoder decoder(parameter, request.fTurnToRGB != 0);
    OFCondition result = decoder.init();
    if (result.good())
        // The decoder takes what it may write to, and reads.
        result = decoder.decode(const_cast<std::uint8_t*>(request.fStream),
                                static_cast<Uint32>(request.fStreamBytes), request.fSamples,
                                static_cast<Uint32>(request.fSampleBytes), OFFalse);
    if (result.good())
        return kQvxJPEGDone;
    if (result == EJ_Suspension)
        return kQvxJPEGCut;
    Say(request, result.text());
    return kQvxJPEGFailed;
}

}  // namespace

extern "C" __attribute__((visibility("default"))) std::int32_t zel_decode_jpeg(
    const QvxJPEGRequest* request)
{
    static const bool sQuiet = [] {
        OFLog::configure(OFLogger::OFF_LOG_LEVEL);
        return true;
    }();
    static_cast<void>(sQuiet);
    try {
        static const DJCodecParameter sParameter(ECC_lossyYCbCr, EDC_photometricInterpretation,
                                                 EUC_default, EPC_colorByPixel, OFFalse);
        if (request->fPrecision <= 8)
            return Decode<DJDecompressIJG8Bit>(*request, sParameter);
        if (request->fPrecision <= 12)
            return Decode<DJDecompressIJG12Bit>(*request, sParameter);
        return Decode<DJDecompressIJG16Bit>(*request, sParameter);
    } catch (const std::exception& fault) {
        Say(*request, fault.what());
        return kQvxJPEGFailed;
    }
}

// Deflated explicit little endian (PS3.5 A.5): the data set is inflated once into memory, behind
// the bytes of the meta group, and the walk goes on there.
#include "Qvx2Parser/QvxTransferSyntax.h"
#include "Qvx2Parser/QvxWalk.h"
#include <algorithm>
#include <memory>
#include <new>
#include <zlib.h>

namespace {

constexpr std::uint32_t kPiece = 64 * 1024;

struct InflateEnd {
    void operator()(z_stream* stream) const { inflateEnd(stream); }
};

// Appends what `input` inflates to, up to `limit` bytes in all. A stream that breaks off gives what
// came before; kQvxMalformed when nothing did, or when the limit is passed.
QvxStatus InflateInto(std::vector<std::byte>* out, std::vector<std::byte>& input,
                      std::uint64_t limit)
{
    z_stream stream{};
    if (inflateInit2(&stream, -MAX_WBITS) != Z_OK)
        return kQvxOutOfMemory;
    const std::unique_ptr<z_stream, InflateEnd> guard(&stream);
    const std::size_t before = out->size();
    stream.next_in = reinterpret_cast<Bytef*>(input.data());
    stream.avail_in = static_cast<uInt>(input.size());
    int result = Z_OK;
    while (result == Z_OK) {
        const std::size_t filled = out->size();
        if (filled >= limit)
            return kQvxMalformed;
        const auto room =
            static_cast<std::uint32_t>(std::min<std::uint64_t>(kPiece, limit - filled));
        out->resize(filled + room);
        stream.next_out = reinterpret_cast<Bytef*>(out->data() + filled);
        stream.avail_out = room;
        result = inflate(&stream, Z_NO_FLUSH);
        out->resize(filled + room - stream.avail_out);
    }
    return out->size() > before ? kQvxOK : kQvxMalformed;
}

}  // namespace

QvxStatus InflateDataSet(std::uint32_t offset, ExtraHeaderDataRec& state)
{
    if (state.fTransferSyntax != kTransferSyntaxDeflated || !state.Wants(kWalkInflate))
        return kQvxOK;
    if (offset >= state.fFileSize)  // a meta group that runs past the end
        return kQvxEndOfFile;
    const std::uint64_t limit =
        std::min<std::uint64_t>(std::uint64_t{state.fFileSize} * kMaxInflateRatio, UINT32_MAX - 1);
    try {
        std::vector<std::byte> bytes(offset), input(state.fFileSize - offset);
        std::uint32_t position = 0;
        const QvxReadProc read = state.fCallbacks->fReadData;
        if (const QvxStatus status = read(state.fDataRef, bytes.data(), &position, offset))
            return status;
        if (const QvxStatus status = read(state.fDataRef, input.data(), &position,
                                          static_cast<std::uint32_t>(input.size())))
            return status;
        if (const QvxStatus status = InflateInto(&bytes, input, limit))
            return status;
        bytes.shrink_to_fit();
        state.fFileSize = static_cast<std::uint32_t>(bytes.size());
        state.fInflated = std::make_unique<MemorySource>(std::move(bytes));
    } catch (const std::bad_alloc&) {
        return kQvxOutOfMemory;
    }
    state.fDataRef = state.fInflated.get();
    if (state.fAhead)
        state.fAhead->fCount = 0;  // it holds bytes of the file
    state.fWasInflated = true;
    state.fByteOrder = 0;
    state.fExplicitVR = 1;
    state.fImageForm = kImageFormNative;
    return kQvxOK;
}

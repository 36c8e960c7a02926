#include "platform/TextConverter.h"

#include <memory>
#include <new>
#include <unicode/ucnv.h>
#include <unicode/ucnv_cb.h>
#include <unicode/ucnv_err.h>

namespace {

constexpr char16_t kReplacement = 0xFFFD;

struct ConverterClose {
    void operator()(UConverter* converter) const { ucnv_close(converter); }
};
using ConverterPtr = std::unique_ptr<UConverter, ConverterClose>;

// The library's own replacement is a control character for a single bad byte of some sets.
void WriteReplacement(const void*, UConverterToUnicodeArgs* args, const char*, std::int32_t,
                      UConverterCallbackReason reason, UErrorCode* error)
{
    if (reason > UCNV_IRREGULAR)  // the converter begins anew or ends: nothing was wrong
        return;
    *error = U_ZERO_ERROR;
    ucnv_cbToUWriteUChars(args, &kReplacement, 1, 0, error);
}

ConverterPtr OpenConverter(const char* encoding, bool lenient)
{
    UErrorCode error = U_ZERO_ERROR;
    ConverterPtr converter(encoding ? ucnv_open(encoding, &error) : nullptr);
    if (converter && U_SUCCESS(error))
        ucnv_setToUCallBack(converter.get(), lenient ? WriteReplacement : UCNV_TO_U_CALLBACK_STOP,
                            nullptr, nullptr, nullptr, &error);
    return U_SUCCESS(error) ? std::move(converter) : nullptr;
}

// All of `bytes`; the room grows until it is enough.
bool Convert(UConverter* converter, std::string_view bytes, QString* text)
{
    const char* source = bytes.data();
    const char* const sourceEnd = source + bytes.size();
    text->resize(static_cast<qsizetype>(bytes.size()) + 8);
    qsizetype filled = 0;
    for (;;) {
        auto* const begin = reinterpret_cast<char16_t*>(text->data());
        char16_t* target = begin + filled;
        UErrorCode error = U_ZERO_ERROR;
        ucnv_toUnicode(converter, &target, begin + text->size(), &source, sourceEnd, nullptr, true,
                       &error);
        filled = target - begin;
        if (error == U_BUFFER_OVERFLOW_ERROR) {
            text->resize(text->size() * 2);
            continue;
        }
        text->resize(filled);
        return U_SUCCESS(error);
    }
}

QString OnlyASCII(std::string_view bytes)
{
    QString text(static_cast<qsizetype>(bytes.size()), QChar(kReplacement));
    for (qsizetype i = 0; i < text.size(); ++i) {
        const auto byte = static_cast<unsigned char>(bytes[static_cast<std::size_t>(i)]);
        if (byte < 0x80)
            text[i] = QChar(byte);
    }
    return text;
}

}  // namespace

std::optional<QString> TextFromBytes(std::string_view bytes, const char* encoding)
{
    try {
        const ConverterPtr converter = OpenConverter(encoding, false);
        QString text;
        if (!converter || !Convert(converter.get(), bytes, &text))
            return std::nullopt;
        return text;
    } catch (const std::bad_alloc&) {
        return std::nullopt;
    }
}

QString TextFromBytesLenient(std::string_view bytes, const char* encoding)
{
    try {
        const ConverterPtr converter = OpenConverter(encoding, true);
        QString text;
        if (!converter || !Convert(converter.get(), bytes, &text))
            return OnlyASCII(bytes);
        return text;
    } catch (const std::bad_alloc&) {
        return {};
    }
}

QString MacRomanText(std::string_view bytes) { return TextFromBytesLenient(bytes, "macintosh"); }

#include "tool/demo/DemoDataSet.h"
#include "tool/demo/DemoEncode.h"
#include "tool/demo/DemoHeader.h"

#include <algorithm>

namespace {

// How many bytes from `at` on are equal; at most 128, as a run can say.
std::size_t RunAt(std::string_view row, std::size_t at)
{
    const std::size_t end = std::min(row.size(), at + 128);
    std::size_t next = at + 1;
    while (next < end && row[next] == row[at])
        ++next;
    return next - at;
}

// Runs begin and end with their row (PS3.5 G.3.1).
void AppendRow(std::string* out, std::string_view row)
{
    for (std::size_t at = 0; at < row.size();) {
        if (const std::size_t run = RunAt(row, at); run > 1) {
            out->push_back(static_cast<char>(257 - run));
            out->push_back(row[at]);
            at += run;
            continue;
        }
        std::size_t end = at + 1;  // literals, up to the next run of three
        while (end < row.size() && end - at < 128 && RunAt(row, end) < 3)
            ++end;
        out->push_back(static_cast<char>(end - at - 1));
        out->append(row.substr(at, end - at));
        at = end;
    }
}

}  // namespace

QvxStatus DemoEncode_RLE(const DemoPixelForm& form, std::string_view pixels, std::string* stream)
{
    constexpr std::size_t kHeader = 64;
    const std::size_t bytes = static_cast<std::size_t>(form.allocated) / 8;
    const std::size_t pixel = bytes * static_cast<std::size_t>(form.samples);
    const std::size_t columns = static_cast<std::size_t>(form.columns);
    if (pixel > 15)
        return kQvxUnsupported;
    std::string header, body;
    DemoAppendLE(&header, static_cast<std::uint32_t>(pixel));
    for (std::size_t segment = 0; segment < pixel; ++segment) {
        DemoAppendLE(&header, static_cast<std::uint32_t>(kHeader + body.size()));
        // The high byte of a sample comes first.
        const std::size_t place = segment / bytes * bytes + (bytes - 1 - segment % bytes);
        std::string row(columns, '\0');
        for (std::size_t at = place; at < pixels.size(); at += pixel * columns) {
            for (std::size_t x = 0; x < columns; ++x)
                row[x] = pixels[at + x * pixel];
            AppendRow(&body, row);
        }
        body.append(body.size() % 2, '\0');
    }
    header.resize(kHeader, '\0');
    *stream = header + body;
    return kQvxOK;
}

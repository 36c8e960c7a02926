#include "util/Sha256.h"

#include <gtest/gtest.h>
#include <vector>

TEST(Sha256, agrees_with_the_published_sums)
{
    const struct {
        const char* fault;
        std::string text, sum;
    } rows[] = {
        {"nothing added", "", "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855"},
        {"one block", "abc", "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad"},
        {"the length needs a block of its own",
         "abcdbcdecdefdefgefghfghighijhijkijkljklmklmnlmnomnopnopq",
         "248d6a61d20638b8e5c026930c3e6039a33ce45964ff2167f6ecedd419db06c1"},
        {"many blocks", std::string(1000000, 'a'),
         "cdc76e5c9914fb9281a1c7e284d73e67f1809a48a497200e046d39ccc7112cd0"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.fault);
        const std::vector<std::uint8_t> bytes(row.text.begin(), row.text.end());
        EXPECT_EQ(Sha256Of(bytes), row.sum);
        Sha256 piecewise;
        for (std::size_t at = 0; at < bytes.size();) {
            const std::size_t count = std::min<std::size_t>(1 + at % 97, bytes.size() - at);
            piecewise.Add({bytes.data() + at, count});
            at += count;
        }
        EXPECT_EQ(piecewise.HexDigest(), row.sum);
    }
}

// JSON as it is written, piece by piece: a tree of a hundred thousand files is never a tree of JSON
// values too. Bytes that are no UTF-8 become lone low surrogates U+DC80 to U+DCFF, so that a path
// can be told exactly.
#pragma once
#include <cstdint>
#include <string>
#include <string_view>

class JsonWriter {
public:
    // What is written collects in `out` and is said (to standard output) in blocks.
    JsonWriter& BeginObject() { return Open('{'); }
    JsonWriter& EndObject() { return Close('}'); }
    JsonWriter& BeginArray() { return Open('['); }
    JsonWriter& EndArray() { return Close(']'); }
    JsonWriter& Key(std::string_view key);
    JsonWriter& Text(std::string_view bytes);
    JsonWriter& Number(std::int64_t number);
    JsonWriter& Real(double number);  // finite, with up to 3 decimals
    JsonWriter& Bool(bool value);
    ~JsonWriter();
    void Flush();

private:
    JsonWriter& Open(char bracket);
    JsonWriter& Close(char bracket);
    void Separate();
    void Put(std::string_view text);
    void PutQuoted(std::string_view bytes);

    std::string fOut;
    bool fFirst = true;  // nothing stands in the innermost object or array yet
    bool fAfterKey = false;
};

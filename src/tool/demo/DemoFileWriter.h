// Writes DICOM files for the demo study: explicit VR, little endian, native pixels.
#pragma once
#include "util/StatusCodes.h"

#include <cstdint>
#include <initializer_list>
#include <map>
#include <string>
#include <string_view>

// The elements of one data set, kept in ascending order whatever the order of the calls. Tags are
// (group << 16 | element). A value is padded to an even length as its VR wants it.
class DemoDataSet {
public:
    void Text(std::uint32_t tag, std::string_view vr, std::string_view text);
    void Decimals(std::uint32_t tag, std::initializer_list<double> numbers);  // DS
    void Integer(std::uint32_t tag, int number);                              // IS
    void Short(std::uint32_t tag, int number, std::string_view vr = "US");    // US or SS
    void Item(std::uint32_t tag, const DemoDataSet& item);  // SQ of one item, lengths stated
    void Pixels(std::string bytes, std::string_view vr);    // (7FE0,0010): OW little endian, or OB

    // The value as it will stand in the file, padding included; empty when there is none.
    [[nodiscard]] std::string ValueOf(std::uint32_t tag) const;
    [[nodiscard]] std::string Encoded() const;

private:
    struct Value {
        std::string vr, bytes;
    };
    std::map<std::uint32_t, Value> fElements;
};

// Takes files of one study into one folder.
class DemoFolder {
public:
    explicit DemoFolder(std::string path) : fPath(std::move(path)) {}
    // Makes the folder `name` below this one, or this one itself when `name` is empty. One that is
    // there already will do.
    [[nodiscard]] QvxStatus MakeFolder(std::string_view name);
    // Writes FOLDER/name with a meta group after (0008,0016) and (0008,0018) of `dataSet`. Under a
    // temporary name beside it until it is whole.
    [[nodiscard]] QvxStatus WriteFile(std::string_view name, const DemoDataSet& dataSet);
    // After a failure: the path, and the system's words.
    [[nodiscard]] const std::string& Failure() const { return fFailure; }

private:
    [[nodiscard]] QvxStatus Fail(const std::string& path, int error);

    std::string fPath, fFailure;
};

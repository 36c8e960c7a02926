// Writes the files of the demo, and the directory over them.
#pragma once
#include "tool/demo/DemoDataSet.h"
#include "tool/demo/DemoDirectory.h"
#include "util/StatusCodes.h"

#include <string>
#include <string_view>

// Takes the files of one file-set (PS3.10) into one folder.
class DemoFolder {
public:
    explicit DemoFolder(std::string path) : fPath(std::move(path)) {}
    // Makes the folder `name` below this one, or this one itself when `name` is empty. One that is
    // there already will do.
    [[nodiscard]] QvxStatus MakeFolder(std::string_view name);
    // Writes FOLDER/name, with folders on the way made, and a meta group after (0008,0016) and
    // (0008,0018) of `dataSet`. Under a temporary name beside it until it is whole. The directory
    // gets a record of it.
    [[nodiscard]] QvxStatus WriteFile(const std::string& name, const DemoDataSet& dataSet,
                                      DemoSyntax syntax);
    // Writes FOLDER/DICOMDIR over all files so far.
    [[nodiscard]] QvxStatus WriteDirectory();
    // After a failure: the path, and the system's words.
    [[nodiscard]] const std::string& Failure() const { return fFailure; }

private:
    [[nodiscard]] QvxStatus Fail(const std::string& path, int error);
    [[nodiscard]] QvxStatus Write(const std::string& name, std::string_view bytes);

    DemoDirectory fDirectory;
    std::string fPath, fFailure;
};

// Preamble, "DICM" and meta group.
[[nodiscard]] std::string DemoFileHead(std::string_view sopClass, std::string_view instance,
                                       DemoSyntax syntax);

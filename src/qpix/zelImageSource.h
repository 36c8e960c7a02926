// The system's handle on one image file: which file, how many frames, how long each shows, and the
// two ways into its content, opened when first needed: the reader for elements, the importer for
// pixels. Frames count from 1, times are milliseconds, names and paths are bytes as the file system
// has them. Between uses no descriptor is held. One thread at a time.
#pragma once
#include "Qvx2Parser/Qvx2Reader.h"
#include "qpix/CImporterFactory.h"
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// How hard ImportFromFSSpec looks at a file.
enum FileImportMode : std::int32_t {
    kImportAny = 0,           // the reader with validation, then importers of plain images
    kImportDicom = 1,         // the reader with validation
    kImportDicomNoCheck = 2,  // the reader without validation
    kImportDeferCheck = 3,    // nothing is opened; validated on first use
    kImportDeferNoCheck = 4,  // nothing is opened; never validated
};

inline constexpr float kDefaultFrameDuration_ms = 66.666664F;  // 15 frames a second
inline constexpr std::size_t kMaxURLBytes = 1024;              // of a URL, what is kept
inline constexpr float kShortestFrameDuration_ms = 1.0F;       // below: taken for a mistake

// What the file system says of the file, in seconds since 1970. Type and creator are those of a
// file system that has them, 0 on others.
struct zelFSInfo {
    std::uint32_t fType = 0, fCreator = 0;
    std::int64_t fCreated = 0, fModified = 0, fAccessed = 0;
};

struct zelMediaInfo {
    std::string fMIMEType;
    std::string fImporterName;
    std::int32_t fFileSize = 0;  // bytes, at most the largest number
};

// Display values.
struct zelSourceVOILimits {
    std::uint32_t fMinWidth = 0, fMaxWidth = 0;
    std::int32_t fMinLevel = 0, fMaxLevel = 0;
};

// "file://…" with all but plain characters escaped; empty without a file.
[[nodiscard]] std::string FileURLOf(const FileRef& file);

class zelImageSource {
public:
    // 0 takes the next number of a counter of the process.
    explicit zelImageSource(std::int32_t id = 0);
    ~zelImageSource();
    zelImageSource(const zelImageSource&) = delete;
    zelImageSource& operator=(const zelImageSource&) = delete;

    // The next number of that counter, which numbers image files too.
    [[nodiscard]] static std::int32_t NextID();

    // Frees reader, importer and frame times and clears everything but the id and the references.
    void Reset();

    // Holders count themselves. RemoveReference with `dispose` marks the source for disposal; the
    // last holder of a marked source destroys it, so who made it must have released it by then. An
    // unmarked source outlives its last holder, with a count of 0.
    void AddReference() { ++fReferences; }
    void RemoveReference(bool dispose);
    [[nodiscard]] std::int32_t ReferenceCount() const { return fReferences; }

    // kQvxBadArgument for no file; kQvxNotOfKind for one that validation refuses; else the codes of
    // opening it. After a failure the source is reset.
    [[nodiscard]] QvxStatus ImportFromFSSpec(const FileRef& file, FileImportMode mode);

    // Takes a file whose header someone has already validated, walked and closed again: as after
    // kImportDicom, but the reader is opened when it is asked for. `identity` is that of the reader
    // it was read with.
    void ImportFromHeader(const FileRef& file, const FileIdentity& identity,
                          std::int32_t frameCount);

    [[nodiscard]] bool IsValid() const { return fValid; }  // as far as was asked for
    [[nodiscard]] bool IsDICOM() const { return fIsDICOM; }
    [[nodiscard]] std::int32_t SourceID() const { return fID; }

    // The file of another source, with all that is known of it without its reader and its importer.
    void ImportFromSource(const zelImageSource& other);

    // A file of this machine by its URL ("file:///a%20b"), of any kind that there is an importer
    // of; opened at once. kQvxNoDataRefType for a URL of another form, else as above.
    [[nodiscard]] QvxStatus ImportFromURL(std::string_view url);

    // Each opens on demand. The status forms say why; the others are null then. A failure ends the
    // source's validity. A file that is opened again must still be the one that was opened first,
    // unchanged: kQvxSeekFailed.
    [[nodiscard]] QvxStatus LoadImporter();
    [[nodiscard]] QvxStatus LoadDicomParser();
    [[nodiscard]] CImporterPlus* GetImporter();
    [[nodiscard]] ParserHandle GetDicomParser();
    // Closes the reader: some 5 KB a file. What was learned from it stays, the next GetDicomParser
    // walks the header again. The importer has a reader of its own.
    void ReleaseParser();
    // The header has been opened without a fault, and will be again if the file lasts.
    [[nodiscard]] bool HasReadHeader() const { return fValid && fHeaderRead; }
    [[nodiscard]] bool HasOpenParser() const { return fParser != nullptr; }

    // What the header claims, without looking at the pixels; 0 on failure.
    [[nodiscard]] QvxStatus GetFrameCount(std::int32_t* count);
    // Pixels. All frames of a DICOM file have one size.
    [[nodiscard]] QvxStatus GetFrameSize(std::int32_t frame, Point* size);
    [[nodiscard]] QvxStatus GetMaxFrameSize(Point* size);

    // kQvxBadArgument for a frame outside of the count, a time below 0 or not below the total, and
    // where the file states as many times as it has no frames.
    [[nodiscard]] QvxStatus GetFrameDuration(std::int32_t frame, double* duration);
    [[nodiscard]] QvxStatus GetTotalSourceDuration(double* duration);
    [[nodiscard]] QvxStatus GetTimePosOfFrame(std::int32_t frame, double* time);  // of its begin
    [[nodiscard]] QvxStatus GetFrameForTimePos(double time, std::int32_t* frame);

    [[nodiscard]] ColorType GetColorType();
    [[nodiscard]] bool IsDICOMGray();
    // The image's own window in user values; true if it has one. One without gives 0 and 0; a
    // source that isn't DICOM leaves both as they are.
    bool GetTheDefaultVOIValuesFromImporter(float* width, float* level);
    // kQvxBadArgument for a maximum below its minimum.
    [[nodiscard]] QvxStatus SetVOILimits(std::uint32_t minWidth, std::int32_t minLevel,
                                         std::uint32_t maxWidth, std::int32_t maxLevel);
    [[nodiscard]] zelSourceVOILimits GetVOILimits() const;

    [[nodiscard]] const FileRef& GetDataFile() const { return fFile; }
    // The importer's file if it is open, else the same as above.
    [[nodiscard]] QvxStatus GetDataRef(FileRef* file) const;
    [[nodiscard]] std::string GetFileURL() const { return FileURLOf(fFile); }
    [[nodiscard]] const std::string& GetDataPath() const;  // or the URL that it came by
    [[nodiscard]] const std::string& GetFileName();
    [[nodiscard]] std::string GetFileNameNoExtension();
    // For display: control characters, and bytes that are no UTF-8, as \xNN.
    [[nodiscard]] const std::string& GetDataPath_UTF8();
    [[nodiscard]] const std::string& GetFileName_UTF8();

    // Run once; null when the importer or the file can't be had. A source that came by a URL has no
    // file information.
    [[nodiscard]] const zelMediaInfo* LoadMediaInfo();
    [[nodiscard]] const zelFSInfo* LoadFSInfo();

    // kQvxOK if the file is a valid DICOM file, through one shared importer instance; null closes
    // that instance. Main thread only.
    [[nodiscard]] static QvxStatus DicomFileFilterProc(const FileRef* file);

private:
    friend class zelParserVisit;
    // How many durations are known; any other number is that of the entries of fFrameTimes.
    enum : std::int32_t { kTimesUnknown = -1, kTimesDefault = 0, kTimesSingle = 1 };

    // What most of the sources of a large folder never need.
    struct Extras {
        CImporterPlusPtr fImporter;
        std::vector<float> fFrameTimes;
        float fSingleFrameTime = 0;
        QvxStatus fFrameTimeStatus = kQvxOK;  // of reading them
        zelSourceVOILimits fVOILimits;
        std::string fFileName, fURL;
        std::optional<std::string> fPathUTF8, fNameUTF8;
        std::optional<zelMediaInfo> fMediaInfo;
        std::optional<zelFSInfo> fFSInfo;
    };

    [[nodiscard]] Extras& More();
    [[nodiscard]] QvxStatus ImportNow(const FileRef& file, FileImportMode mode);
    [[nodiscard]] QvxStatus TakeImporter(const FileRef& file);
    [[nodiscard]] CImporterPlus* Importer() const
    {
        return fMore ? fMore->fImporter.get() : nullptr;
    }
    [[nodiscard]] QvxStatus OpenParser(std::optional<QvxReaderUse>* use);
    [[nodiscard]] QvxStatus LoadDicomParser(std::optional<QvxReaderUse>* use);
    [[nodiscard]] QvxStatus OpenImporter();
    [[nodiscard]] QvxStatus LoadFrameTimes();
    [[nodiscard]] QvxStatus ReadFrameTimes(std::int32_t frames);
    [[nodiscard]] QvxStatus CountClaimedFrames();
    [[nodiscard]] QvxStatus CountImages();
    [[nodiscard]] QvxStatus CheckFrame(std::int32_t frame);
    [[nodiscard]] double SumOfTimes(std::int32_t frames) const;
    [[nodiscard]] QvxStatus WalkFrameSizes(Point* size);

    const std::int32_t fID;
    std::int32_t fReferences = 0;
    bool fDisposeWhenUnreferenced = false;

    // All below is what Reset clears. There may be a hundred thousand of them.
    bool fIsDICOM = false, fValid = false, fValidationPending = true;
    bool fHeaderRead = false, fFromURL = false;
    Point fMaxFrameSize;
    std::int32_t fFrameCount = -1;
    std::int32_t fFrameTimeKind = kTimesUnknown;
    FileRef fFile;
    FileIdentity fIdentity;  // of the first open
    QvxReaderPtr fParser;
    std::unique_ptr<Extras> fMore;
};

// The source's reader for a scope, in use. One that was closed before is closed again: a sweep over
// ten thousand files keeps none of them open. `source` may be null, and must not be reset
// meanwhile.
class zelParserVisit {
public:
    explicit zelParserVisit(zelImageSource* source);
    ~zelParserVisit();
    zelParserVisit(const zelParserVisit&) = delete;
    zelParserVisit& operator=(const zelParserVisit&) = delete;
    [[nodiscard]] ParserHandle Parser() const { return fParser; }  // null when it can't be had

private:
    zelImageSource* fSource = nullptr;  // not owned; null when it is to stay open
    ParserHandle fParser = nullptr;
    std::optional<QvxReaderUse> fUse;
};

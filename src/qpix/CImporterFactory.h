// Makes every importer and lists what it made, so that what is left at the end is destroyed, and
// destroying something twice does nothing. Importers are the factory's; callers hold a pointer that
// names the moment of destruction. The list may be used from several threads, an importer itself
// by one at a time.
#pragma once
#include "qpix/CImporterPlus.h"
#include <memory>

class CImporterFactory {
public:
    virtual ~CImporterFactory() = default;

    // Makes this class the factory of the system, with empty lists. Once at start; another call
    // changes nothing, unless the system's factory is of another class, which is replaced.
    static void InitFactory();
    // Destroys what is still listed, importers first, then bare instances, and the factory.
    static void DeinitFactory();

    // Each in a form that makes an importer and one that makes a bare instance. kQvxNoImporter
    // before InitFactory, kQvxNotOfKind for a kind that the system has no importer of,
    // kQvxNoMemory. The result is null on failure.
    [[nodiscard]] static QvxStatus NewImporter(std::uint32_t subtype, CImporter** importer);
    [[nodiscard]] static QvxStatus NewImporter(std::uint32_t subtype, GraphicsImporter** instance);
    // The importer that suits the file, bound to it.
    [[nodiscard]] static QvxStatus NewImporterForFile(const FileRef& file, CImporter** importer);
    [[nodiscard]] static QvxStatus NewImporterForFile(const FileRef& file,
                                                      GraphicsImporter** instance);
    // Nothing for null and for what isn't listed.
    static void DestroyImporter(CImporter* importer);
    static void DestroyImporter(GraphicsImporter* instance);

protected:
    CImporterFactory() = default;
    // What this factory calls an importer.
    [[nodiscard]] virtual std::unique_ptr<CImporter> CreateImporter(
        std::unique_ptr<GraphicsImporter> instance) const;
    // Replaces the system's factory by `factory`, unless it is of the same class already.
    static void Install(std::unique_ptr<CImporterFactory> factory);
    // Makes an importer of `instance` and lists it.
    [[nodiscard]] static QvxStatus Adopt(std::unique_ptr<GraphicsImporter> instance,
                                         CImporter** importer);
};

// How NewImporterForFileEx finds the kind.
enum class ImporterChoice : std::int32_t {
    ByFile = 0,  // the first kind that takes the file for its own
    Dicom = 1,   // DICOM, without asking
};

// The factory whose importers are CImporterPlus: the program's.
class CImporterPlusFactory final : public CImporterFactory {
public:
    static void InitFactory();
    // The codes above, and those of binding the file. kQvxNoImporter when the system's factory
    // isn't this one.
    [[nodiscard]] static QvxStatus NewImporterForFileEx(const FileRef& file,
                                                        CImporterPlus** importer,
                                                        ImporterChoice choice);

private:
    [[nodiscard]] std::unique_ptr<CImporter> CreateImporter(
        std::unique_ptr<GraphicsImporter> instance) const override;
};

struct CImporterDestroy {
    void operator()(CImporter* importer) const { CImporterFactory::DestroyImporter(importer); }
};
// Holds an importer that is the factory's; harmless after DeinitFactory.
using CImporterPlusPtr = std::unique_ptr<CImporterPlus, CImporterDestroy>;

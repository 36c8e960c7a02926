#include "qpix/CImporterFactory.h"

#include "qpix/DicomImporter.h"
#include <algorithm>
#include <mutex>
#include <new>
#include <typeinfo>
#include <unordered_map>

namespace {

template <typename T>
using Listed = std::unordered_map<const T*, std::unique_ptr<T>>;

// What the system has made. The lock covers the lists alone: an opening worker makes importers
// while the main thread does.
struct Registry {
    std::mutex lock;
    std::unique_ptr<CImporterFactory> factory;
    Listed<CImporter> importers;
    Listed<GraphicsImporter> instances;
};

Registry& System()
{
    static Registry sRegistry;
    return sRegistry;
}

QvxStatus MakeInstance(std::uint32_t subtype, std::unique_ptr<GraphicsImporter>* instance)
{
    if (subtype != kImporterDicom)
        return kQvxNotOfKind;
    instance->reset(new (std::nothrow) DicomImporter);
    return *instance ? kQvxOK : kQvxNoMemory;
}

QvxStatus MakeBound(const FileRef& file, bool check, std::unique_ptr<GraphicsImporter>* instance)
{
    std::unique_ptr<GraphicsImporter> made;
    if (const QvxStatus status = MakeInstance(kImporterDicom, &made))
        return status;
    if (const QvxStatus status = made->SetDataFile(file))
        return status;
    if (check) {
        bool valid = false;
        const QvxStatus asked = made->Validate(&valid);
        if (const QvxStatus status = StatusOfValidation(asked, valid))
            return status;
    }
    // Whether checked or not: what has no image has no importer.
    Rect bounds;
    if (const QvxStatus status = made->GetNaturalBounds(&bounds))
        return status;
    *instance = std::move(made);
    return kQvxOK;
}

template <typename T>
QvxStatus Enlist(Listed<T>& list, std::unique_ptr<T> object, T** result)
{
    T* const address = object.get();
    list.emplace(address, std::move(object));
    *result = address;
    return kQvxOK;
}

template <typename T>
void Remove(Listed<T>& list, const T* object)
{
    std::unique_ptr<T> gone;  // its end, which may take long, comes behind the lock's
    {
        const std::lock_guard guard(System().lock);
        const auto place = list.find(object);
        if (place == list.end())
            return;
        gone = std::move(place->second);
        list.erase(place);
    }
}

QvxStatus AdoptInstance(std::unique_ptr<GraphicsImporter> made, GraphicsImporter** instance)
{
    Registry& system = System();
    const std::lock_guard guard(system.lock);
    if (!system.factory)
        return kQvxNoImporter;
    try {
        return Enlist(system.instances, std::move(made), instance);
    } catch (const std::bad_alloc&) {
        return kQvxNoMemory;
    }
}

}  // namespace

void CImporterFactory::Install(std::unique_ptr<CImporterFactory> factory)
{
    Registry& system = System();
    const std::lock_guard guard(system.lock);
    const CImporterFactory* current = system.factory.get();
    const CImporterFactory* wanted = factory.get();
    if (!current || typeid(*current) != typeid(*wanted))
        system.factory = std::move(factory);
}

void CImporterFactory::InitFactory()
{
    struct Plain final : CImporterFactory {};
    Install(std::make_unique<Plain>());
}

void CImporterFactory::DeinitFactory()
{
    Registry& system = System();
    Listed<CImporter> importers;
    Listed<GraphicsImporter> instances;
    {
        const std::lock_guard guard(system.lock);
        importers.swap(system.importers);
        instances.swap(system.instances);
        system.factory.reset();
    }
    importers.clear();
    instances.clear();
}

std::unique_ptr<CImporter> CImporterFactory::CreateImporter(
    std::unique_ptr<GraphicsImporter> instance) const
{
    return std::make_unique<CImporter>(std::move(instance));
}

QvxStatus CImporterFactory::Adopt(std::unique_ptr<GraphicsImporter> instance, CImporter** importer)
{
    Registry& system = System();
    const std::lock_guard guard(system.lock);
    if (!system.factory)
        return kQvxNoImporter;
    try {
        return Enlist(system.importers, system.factory->CreateImporter(std::move(instance)),
                      importer);
    } catch (const std::bad_alloc&) {
        return kQvxNoMemory;
    }
}

QvxStatus CImporterFactory::NewImporter(std::uint32_t subtype, CImporter** importer)
{
    if (!importer)
        return kQvxBadArgument;
    *importer = nullptr;
    std::unique_ptr<GraphicsImporter> instance;
    if (const QvxStatus status = MakeInstance(subtype, &instance))
        return status;
    return Adopt(std::move(instance), importer);
}

QvxStatus CImporterFactory::NewImporter(std::uint32_t subtype, GraphicsImporter** instance)
{
    if (!instance)
        return kQvxBadArgument;
    *instance = nullptr;
    std::unique_ptr<GraphicsImporter> made;
    if (const QvxStatus status = MakeInstance(subtype, &made))
        return status;
    return AdoptInstance(std::move(made), instance);
}

QvxStatus CImporterFactory::NewImporterForFile(const FileRef& file, CImporter** importer)
{
    if (!importer)
        return kQvxBadArgument;
    *importer = nullptr;
    std::unique_ptr<GraphicsImporter> instance;
    if (const QvxStatus status = MakeBound(file, true, &instance))
        return status;
    return Adopt(std::move(instance), importer);
}

QvxStatus CImporterFactory::NewImporterForFile(const FileRef& file, GraphicsImporter** instance)
{
    if (!instance)
        return kQvxBadArgument;
    *instance = nullptr;
    std::unique_ptr<GraphicsImporter> made;
    if (const QvxStatus status = MakeBound(file, true, &made))
        return status;
    return AdoptInstance(std::move(made), instance);
}

void CImporterFactory::DestroyImporter(CImporter* importer)
{
    Remove(System().importers, importer);
}

void CImporterFactory::DestroyImporter(GraphicsImporter* instance)
{
    Remove(System().instances, instance);
}

void CImporterPlusFactory::InitFactory() { Install(std::make_unique<CImporterPlusFactory>()); }

std::unique_ptr<CImporter> CImporterPlusFactory::CreateImporter(
    std::unique_ptr<GraphicsImporter> instance) const
{
    return std::make_unique<CImporterPlus>(std::move(instance));
}

QvxStatus CImporterPlusFactory::NewImporterForFileEx(const FileRef& file, CImporterPlus** importer,
                                                     ImporterChoice choice)
{
    if (!importer)
        return kQvxBadArgument;
    *importer = nullptr;
    std::unique_ptr<GraphicsImporter> instance;
    if (const QvxStatus status = MakeBound(file, choice == ImporterChoice::ByFile, &instance))
        return status;
    CImporter* made = nullptr;
    if (const QvxStatus status = Adopt(std::move(instance), &made))
        return status;
    *importer = dynamic_cast<CImporterPlus*>(made);
    if (*importer)
        return kQvxOK;
    DestroyImporter(made);
    return kQvxNoImporter;
}

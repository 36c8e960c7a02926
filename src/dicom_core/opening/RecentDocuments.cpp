#include "dicom_core/opening/RecentDocuments.h"

#include "dicom_core/opening/PathNames.h"
#include "platform/PreferenceStore.h"
#include "prefs/Prefs.h"

#include <QVariant>
#include <algorithm>
#include <array>

namespace {

constexpr char kTypeKey[] = "docType";
constexpr char kPathKey[] = "docPath";
constexpr char kBytesKey[] = "docPathBytes";  // of a path that isn't UTF-8

QVariantMap StoredForm(const ZELRecentDocument& document)
{
    const QByteArray bytes = QByteArray::fromStdString(document.docPath);
    const QString path = QString::fromUtf8(bytes);
    QVariantMap map{{kTypeKey, document.docType}, {kPathKey, path}};
    if (path.toUtf8() != bytes)
        map.insert(kBytesKey, bytes);
    return map;
}

ZELRecentDocument FromStored(const QVariantMap& map)
{
    const QByteArray bytes = map.contains(kBytesKey) ? map.value(kBytesKey).toByteArray()
                                                     : map.value(kPathKey).toString().toUtf8();
    return {map.value(kTypeKey).toInt(), bytes.toStdString(), {}};
}

bool NamesItsFolder(std::int32_t type)
{
    return type == kOpenFlavorFolderDICOMDIR || type == kOpenFlavorCDDICOMDIR ||
           type == kOpenFlavorDICOMDIRFile;
}

}  // namespace

bool ZELRecentDocument::matches(const ZELRecentDocument& other) const
{
    return docType == other.docType && StandardisedPath(docPath) == StandardisedPath(other.docPath);
}

QString ZELRecentDocument::menuTitle() const
{
    return DisplayName(NamesItsFolder(docType) ? ParentFolder(docPath) : docPath);
}

ZELRecentDocument::MenuImage ZELRecentDocument::menuImage() const
{
    struct Row {
        std::int32_t type;
        MenuImage image;
    };
    static constexpr auto kRows = std::to_array<Row>({
        {kOpenFlavorFolder, {"folder_w", 20, 16}},
        {kOpenFlavorFolderRecursive, {"subs2", 20, 16}},
        {kOpenFlavorFolderDICOMDIR, {"recent_folder_dicomdir2", 20, 16}},
        {kOpenFlavorDICOMDIRFile, {"recent_folder_dicomdir2", 20, 16}},
        {kOpenFlavorCDDICOMDIR, {"media-optical", 16, 16}},
    });
    const auto row = std::ranges::find(kRows, docType, &Row::type);
    return row != kRows.end() ? row->image : MenuImage{};
}

void ZELRecentDocuments::loadSavedRecents()
{
    fList.clear();
    for (const QVariant& stored : prefs_Store().Array(kPrefsKeyRecentDocuments)) {
        ZELRecentDocument document = FromStored(stored.toMap());
        if (document.docType != kOpenFlavorNone && !document.docPath.empty() &&
            fList.size() < static_cast<std::size_t>(maxZELRecentDocs()))
            fList.push_back(std::move(document));
    }
    if (fChanged)
        fChanged();
}

void ZELRecentDocuments::saveRecents() const
{
    QVariantList stored;
    for (const ZELRecentDocument& document : fList)
        stored.push_back(StoredForm(document));
    if (stored.isEmpty())
        prefs_Store().Remove(kPrefsKeyRecentDocuments);
    else
        prefs_Store().Set(kPrefsKeyRecentDocuments, stored);
    prefs_Store().Synchronize();
}

void ZELRecentDocuments::SaveAndTell() const
{
    saveRecents();
    if (fChanged)
        fChanged();
}

void ZELRecentDocuments::U_AddZELRecentItem(const ZELRecentDocument& document)
{
    const auto known = std::ranges::find_if(
        fList, [&](const ZELRecentDocument& entry) { return entry.matches(document); });
    if (known != fList.end())
        std::rotate(fList.begin(), known, known + 1);
    else
        fList.insert(fList.begin(), document);
    if (fList.size() > static_cast<std::size_t>(maxZELRecentDocs()))
        fList.pop_back();
    SaveAndTell();
}

void ZELRecentDocuments::remove(const ZELRecentDocument& document)
{
    std::erase_if(fList, [&](const ZELRecentDocument& entry) { return entry.matches(document); });
    SaveAndTell();
}

void ZELRecentDocuments::clearZELRecentDocuments()
{
    fList.clear();
    SaveAndTell();
}

const ZELRecentDocument* ZELRecentDocuments::topRecentDoc() const
{
    return fList.empty() ? nullptr : fList.data();
}

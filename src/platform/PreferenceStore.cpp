#include "platform/PreferenceStore.h"

#include "platform/PreferenceFile.h"
#include "platform/PropertyList.h"
#include "util/Log.h"

#include <cmath>
#include <functional>
#include <mutex>
#include <shared_mutex>
#include <unordered_map>
#include <unordered_set>

namespace {

struct KeyHash {
    using is_transparent = void;
    std::size_t operator()(std::string_view key) const noexcept
    {
        return std::hash<std::string_view>{}(key);
    }
};
using Values = std::unordered_map<std::string, QVariant, KeyHash, std::equal_to<>>;

Values ValuesOf(const QVariantMap& map)
{
    Values values;
    for (auto entry = map.begin(); entry != map.end(); ++entry)
        values.insert_or_assign(entry.key().toStdString(), entry.value());
    return values;
}

QString OwnText(const QString& text) { return QString(text.constData(), text.size()); }

// A copy that shares nothing with `value`, as what is stored and what is given out live on in
// different threads. Numbers get the kinds that reading a file gives, so that a value is the same
// before and after.
QVariant OwnCopy(const QVariant& value)
{
    switch (value.typeId()) {
        case QMetaType::Int:
        case QMetaType::UInt:
            return value.toLongLong();
        case QMetaType::Float:
            return value.toDouble();
        case QMetaType::QString:
            return OwnText(value.toString());
        case QMetaType::QByteArray: {
            const QByteArray bytes = value.toByteArray();
            return QByteArray(bytes.constData(), bytes.size());
        }
        case QMetaType::QVariantList:
        case QMetaType::QStringList: {
            QVariantList copy;
            for (const QVariant& entry : value.toList())
                copy.append(OwnCopy(entry));
            return copy;
        }
        case QMetaType::QVariantMap: {
            QVariantMap copy;
            const QVariantMap map = value.toMap();
            for (auto entry = map.begin(); entry != map.end(); ++entry)
                copy.insert(OwnText(entry.key()), OwnCopy(entry.value()));
            return copy;
        }
        default:
            return value;
    }
}

bool IsNumber(const QVariant& value)
{
    const int kind = value.typeId();
    return kind == QMetaType::Bool || kind == QMetaType::LongLong || kind == QMetaType::Double;
}

qint64 IntegerOf(const QVariant& value)
{
    constexpr double kLimit = 9.2e18;
    const bool fits = value.typeId() != QMetaType::Double || std::abs(value.toDouble()) < kLimit;
    return IsNumber(value) && fits ? value.toLongLong() : 0;
}

}  // namespace

struct PreferenceStore::Layers {
    mutable std::shared_mutex fMutex;
    std::string fPath;
    bool fIsLoaded = false;
    bool fIsDamaged = false;  // the file is written anew although no key has changed
    Values fRun, fStored, fDefaults;
    std::unordered_set<std::string> fChanged;  // keys that the file doesn't have yet

    void Load();  // with fMutex held alone
    // Answers true where a layer's value is of a kind that it takes; else the next layer is asked.
    using Taker = std::function<bool(const QVariant&)>;
    void Find(std::string_view key, const Taker& take) const;
    void ReadShared(std::string_view key, const Taker& take);
    QvxStatus Write();
};

void PreferenceStore::Layers::Load()
{
    if (fIsLoaded)
        return;
    fIsLoaded = true;
    if (fPath.empty())
        return;
    const PropertyListReading reading = ReadPropertyListFile(fPath);
    const bool isOther = reading.IsSound() && reading.fRoot.typeId() != QMetaType::QVariantMap;
    if (isOther || (!reading.IsSound() && reading.fStatus != kQvxFileNotFound))
        LogLine("damaged preferences in " + fPath + ": " +
                (isOther ? "no dictionary" : reading.fFault));
    fIsDamaged = isOther || reading.fStatus == kQvxMalformed;
    fStored = ValuesOf(reading.fRoot.toMap());
}

void PreferenceStore::Layers::Find(std::string_view key, const Taker& take) const
{
    for (const Values* values : {&fRun, &fStored, &fDefaults}) {
        const auto found = values->find(key);
        if (found != values->end() && take(found->second))
            return;
    }
}

void PreferenceStore::Layers::ReadShared(std::string_view key, const Taker& take)
{
    {
        const std::shared_lock lock(fMutex);
        if (fIsLoaded)
            return Find(key, take);
    }
    const std::unique_lock lock(fMutex);
    Load();
    Find(key, take);
}

QvxStatus PreferenceStore::Layers::Write()
{
    QVariantMap changes;  // an invalid value takes a key out
    for (const std::string& key : fChanged) {
        const auto stored = fStored.find(key);
        changes.insert(QString::fromStdString(key),
                       stored != fStored.end() ? stored->second : QVariant());
    }
    QVariantMap merged;
    const QvxStatus status = MergeIntoPreferenceFile(fPath, changes, &merged);
    if (status != kQvxOK)
        return status;
    fStored = ValuesOf(merged);
    fChanged.clear();
    fIsDamaged = false;
    return kQvxOK;
}

PreferenceStore::PreferenceStore(std::string path) : fLayers(std::make_unique<Layers>())
{
    fLayers->fPath = std::move(path);
}

PreferenceStore::~PreferenceStore() { Synchronize(); }

namespace {

// `read` is asked for a number alone.
template <class Kind, class Read>
auto NumberTaker(Kind* answer, Read read)
{
    return [answer, read](const QVariant& value) {
        if (IsNumber(value))
            *answer = read(value);
        return IsNumber(value);
    };
}

// A copy, if the value is of this kind.
template <class Kind>
auto TakerOf(QMetaType::Type kind, Kind* answer)
{
    return [kind, answer](const QVariant& value) {
        if (value.typeId() != kind)
            return false;
        *answer = OwnCopy(value).template value<Kind>();
        return true;
    };
}

}  // namespace

bool PreferenceStore::Bool(std::string_view key) const
{
    bool answer = false;
    fLayers->ReadShared(
        key, NumberTaker(&answer, [](const QVariant& value) { return value.toDouble() != 0; }));
    return answer;
}

qint64 PreferenceStore::Integer(std::string_view key) const
{
    qint64 answer = 0;
    fLayers->ReadShared(key, NumberTaker(&answer, IntegerOf));
    return answer;
}

double PreferenceStore::Float(std::string_view key) const
{
    double answer = 0;
    fLayers->ReadShared(
        key, NumberTaker(&answer, [](const QVariant& value) { return value.toDouble(); }));
    return answer;
}

QString PreferenceStore::String(std::string_view key) const
{
    QString answer;
    fLayers->ReadShared(key, TakerOf(QMetaType::QString, &answer));
    return answer;
}

QByteArray PreferenceStore::Data(std::string_view key) const
{
    QByteArray answer;
    fLayers->ReadShared(key, TakerOf(QMetaType::QByteArray, &answer));
    return answer;
}

QVariantList PreferenceStore::Array(std::string_view key) const
{
    QVariantList answer;
    fLayers->ReadShared(key, TakerOf(QMetaType::QVariantList, &answer));
    return answer;
}

QVariantMap PreferenceStore::Dictionary(std::string_view key) const
{
    QVariantMap answer;
    fLayers->ReadShared(key, TakerOf(QMetaType::QVariantMap, &answer));
    return answer;
}

bool PreferenceStore::Has(std::string_view key) const
{
    bool answer = false;
    fLayers->ReadShared(key, [&answer](const QVariant&) { return answer = true; });
    return answer;
}

QvxStatus PreferenceStore::Set(std::string_view key, const QVariant& value)
{
    QByteArray unused;
    const QvxStatus status = WritePropertyList(QVariantMap{{QString(), value}}, &unused);
    if (status != kQvxOK)
        return status;
    const std::unique_lock lock(fLayers->fMutex);
    fLayers->Load();
    const QVariant plain = OwnCopy(value);
    QVariant& stored = fLayers->fStored[std::string(key)];
    if (stored.isValid() && stored == plain)
        return kQvxOK;  // so that nothing is written
    stored = plain;
    fLayers->fChanged.emplace(key);
    return kQvxOK;
}

void PreferenceStore::Remove(std::string_view key)
{
    const std::unique_lock lock(fLayers->fMutex);
    fLayers->Load();
    if (fLayers->fStored.erase(std::string(key)) > 0)
        fLayers->fChanged.emplace(key);
}

void PreferenceStore::RegisterDefaults(const QVariantMap& defaults)
{
    const std::unique_lock lock(fLayers->fMutex);
    fLayers->fDefaults = ValuesOf(defaults);
}

void PreferenceStore::Override(std::string_view key, const QVariant& value)
{
    const std::unique_lock lock(fLayers->fMutex);
    if (value.isValid())
        fLayers->fRun.insert_or_assign(std::string(key), OwnCopy(value));
    else
        fLayers->fRun.erase(std::string(key));
}

QvxStatus PreferenceStore::Synchronize()
{
    const std::unique_lock lock(fLayers->fMutex);
    if (fLayers->fPath.empty() || (fLayers->fChanged.empty() && !fLayers->fIsDamaged))
        return kQvxOK;
    return fLayers->Write();
}

std::string PreferenceStore::FilePath() const
{
    const std::shared_lock lock(fLayers->fMutex);
    return fLayers->fPath;
}

void PreferenceStore::UseFile(std::string path)
{
    const std::unique_lock lock(fLayers->fMutex);
    fLayers->fPath = std::move(path);
    fLayers->fIsLoaded = false;
    fLayers->fIsDamaged = false;
    fLayers->fRun.clear();
    fLayers->fStored.clear();
    fLayers->fChanged.clear();
}

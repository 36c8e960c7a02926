// Settings of one user by key. Three layers answer, the first that has the key as the kind asked
// for: values for this run only, stored values, registered defaults. Safe to use from any thread; a
// read takes a shared lock and a look-up.
#pragma once
#include "util/StatusCodes.h"

#include <QVariant>
#include <memory>
#include <string>
#include <string_view>

class PreferenceStore {
public:
    // `path` is the property list that keeps the values, read at the first question. An empty path
    // keeps them in memory only.
    explicit PreferenceStore(std::string path);
    ~PreferenceStore();  // synchronizes
    PreferenceStore(const PreferenceStore&) = delete;
    PreferenceStore& operator=(const PreferenceStore&) = delete;

    // A key that no layer has, or has as another kind, answers false, 0 or empty. Numbers and bools
    // serve for each other; a real that no integer holds reads as 0.
    [[nodiscard]] bool Bool(std::string_view key) const;
    [[nodiscard]] qint64 Integer(std::string_view key) const;
    [[nodiscard]] double Float(std::string_view key) const;
    [[nodiscard]] QString String(std::string_view key) const;
    [[nodiscard]] QByteArray Data(std::string_view key) const;
    [[nodiscard]] QVariantList Array(std::string_view key) const;
    [[nodiscard]] QVariantMap Dictionary(std::string_view key) const;
    // True if any layer has the key.
    [[nodiscard]] bool Has(std::string_view key) const;

    // Stores a value of a kind that a property list has; the file follows at Synchronize. A value
    // for this run goes on hiding it. Any other kind is refused with kQvxBadArgument.
    QvxStatus Set(std::string_view key, const QVariant& value);
    // Forgets the stored value; defaults and values for this run stay.
    void Remove(std::string_view key);
    // Replaces the defaults.
    void RegisterDefaults(const QVariantMap& defaults);
    // A value for this run, never stored. An invalid QVariant takes it away.
    void Override(std::string_view key, const QVariant& value);

    // Writes what has changed since the last time; nothing if nothing has, unless the file was
    // found damaged. The file is read again before, under a lock between programs, so that another
    // program's changes to other keys stay. A damaged file is kept beside the new one under
    // "….damaged" with a number. An errno if it can't be written; the changes then wait for the
    // next time.
    QvxStatus Synchronize();

    [[nodiscard]] std::string FilePath() const;  // empty: in memory only
    // Drops all but the defaults, unwritten changes too, and goes on with another file.
    void UseFile(std::string path);

private:
    struct Layers;
    std::unique_ptr<Layers> fLayers;
};

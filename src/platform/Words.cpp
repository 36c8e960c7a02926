#include "platform/Words.h"

#include "platform/WordFiles.h"

#include <QLocale>
#include <QString>
#include <QStringList>
#include <QTranslator>
#include <algorithm>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace {

constexpr std::string_view kFallback = "en";

// Translators in the order in which they are asked.
class WordTables {
public:
    WordTables()
    {
        // Each of the user's languages is listed as "de-AT", then "de"; files are named with "_".
        for (const QString& language : QLocale::system().uiLanguages()) {
            const std::string name = language.toStdString();
            if (Add(name))
                break;
        }
        Add(kFallback);
    }
    QString Word(const char* table, const char* key) const
    {
        for (const auto& translator : fTranslators)
            if (const QString word = translator->translate(table, key); !word.isNull())
                return word;
        return QString::fromUtf8(key);
    }

private:
    // True if there is such a language.
    bool Add(std::string_view language)
    {
        for (const WordFile& file : WordFiles()) {
            std::string name(file.fLanguage);
            std::ranges::replace(name, '_', '-');
            if (name != language)
                continue;
            auto translator = std::make_unique<QTranslator>();
            translator->moveToThread(nullptr);  // the first who asks may be a thread that ends
            if (translator->load(file.fBytes.data(), static_cast<int>(file.fBytes.size())))
                fTranslators.push_back(std::move(translator));
            return true;
        }
        return false;
    }
    std::vector<std::unique_ptr<QTranslator>> fTranslators;
};

}  // namespace

QString ZelWord(const char* table, const char* key)
{
    static const WordTables tables;  // only read once it stands
    return tables.Word(table, key);
}

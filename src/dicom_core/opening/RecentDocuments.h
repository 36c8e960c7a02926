// The list of what was opened lately: at most 12 entries, newest first, kept in the preferences.
// Main thread only.
#pragma once
#include "dicom_core/opening/OpenSettings.h"

#include <QString>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

struct ZELRecentDocument {
    std::int32_t docType = 0;             // a flavor
    std::string docPath;                  // bytes
    std::vector<std::string> multiPaths;  // not kept
    // Equal types, and paths that are equal once they are written one way.
    [[nodiscard]] bool matches(const ZELRecentDocument& other) const;
    [[nodiscard]] QString menuTitle() const;
    // Icon by name, and its size in points; an empty name stands for the icon of the path's own
    // kind.
    struct MenuImage {
        std::string_view name;
        int width = 16, height = 16;
    };
    [[nodiscard]] MenuImage menuImage() const;
};

class ZELRecentDocuments {
public:
    static constexpr int maxZELRecentDocs() { return 12; }
    // Called whenever the list has changed, so that the menu is made anew.
    explicit ZELRecentDocuments(std::function<void()> changed = nullptr)
        : fChanged(std::move(changed))
    {
    }
    void loadSavedRecents();
    void saveRecents() const;
    // To the front, whether it is new or not.
    void U_AddZELRecentItem(const ZELRecentDocument& document);
    void remove(const ZELRecentDocument& document);
    void clearZELRecentDocuments();
    [[nodiscard]] const ZELRecentDocument* topRecentDoc() const;
    [[nodiscard]] const std::vector<ZELRecentDocument>& list() const { return fList; }

private:
    void SaveAndTell() const;
    std::vector<ZELRecentDocument> fList;
    std::function<void()> fChanged;
};

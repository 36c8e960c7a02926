// The pane "Presets": the table of window presets and its buttons. Main thread only.
#pragma once
#include "app_prefs/PrefsPane.h"
#include "app_prefs/PresetTableModel.h"
#include "platform/NotificationCenter.h"

class QPushButton;
class QTableView;
class QVBoxLayout;

class WLPresetsViewController final : public PrefsPane {
    Q_OBJECT

public:
    explicit WLPresetsViewController(PresetList::AlertForError ask, QWidget* parent = nullptr);
    ~WLPresetsViewController() override;

    [[nodiscard]] QString title() const override;
    [[nodiscard]] QString windowTitle() const override;
    [[nodiscard]] QString identifier() const override;
    [[nodiscard]] QIcon image() const override;
    void willBeDisplayed() override;

    [[nodiscard]] QTableView* table() const { return _table; }
    void addPreset();
    void offerPreset(float width, float level);  // a new one, whose name is typed next
    void removePreset();
    void resetToDefaults();
    void movePreset(int rows);  // up is negative

private:
    QPushButton* addButton(const char* title, QVBoxLayout* column, const QKeySequence& key,
                           std::function<void()> work);
    void prepareTable();
    void selectRow(int row);
    void enableButtons();
    void editSelected(int column);          // once the event at hand is over
    [[nodiscard]] int selectedRow() const;  // -1 for none

    PresetList _list;
    PresetTableModel _model;
    PresetList::AlertForError _ask;
    QTableView* _table;
    QPushButton *_remove = nullptr, *_up = nullptr, *_down = nullptr;
    NotificationCenter::Observation _changed;
};

// The list of presets for a table: titles, level, width. A row is moved by dragging it between two
// others of the same table. Main thread only.
#pragma once
#include "app_prefs/PresetList.h"

#include <QAbstractTableModel>

class PresetTableModel final : public QAbstractTableModel {
    Q_OBJECT

public:
    // `list` outlives the model.
    explicit PresetTableModel(PresetList* list, QObject* parent = nullptr);

    // The list has been changed as a whole.
    void reset();
    int addPreset(int row);
    int addPresetOf(float width, float level);
    void removePresets(const std::vector<int>& rows);
    std::optional<int> movePreset(int row, int target);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    [[nodiscard]] Qt::DropActions supportedDropActions() const override;
    [[nodiscard]] QStringList mimeTypes() const override;
    [[nodiscard]] QMimeData* mimeData(const QModelIndexList& indexes) const override;
    [[nodiscard]] bool canDropMimeData(const QMimeData* data, Qt::DropAction action, int row,
                                       int column, const QModelIndex& parent) const override;
    bool dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                      const QModelIndex& parent) override;

signals:
    void moved(int row);  // by a drop; where the preset stands now

private:
    [[nodiscard]] QByteArray mark() const;

    PresetList* _list;
};

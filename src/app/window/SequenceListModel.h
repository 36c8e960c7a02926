// The list beside the pictures: patients, studies and series as headings, sequences below them to
// choose from. Titles are asked for when a row shows, so that a tree of any size is listed at once.
// Main thread only.
#pragma once
#include "app/window/TreeFrames.h"

#include <QAbstractTableModel>
#include <functional>

class SequenceListModel final : public QAbstractTableModel {
public:
    enum Column { kTitle, kModality, kFrames, kColumns };

    // The tree of the rows outlives the model.
    explicit SequenceListModel(std::vector<TreeRow> rows) : _rows(std::move(rows)) {}

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    [[nodiscard]] QMimeData* mimeData(const QModelIndexList& indexes) const override;
    [[nodiscard]] const TreeRow& treeRow(int row) const;
    [[nodiscard]] QModelIndex firstSequence() const;  // invalid if there is none
    [[nodiscard]] QModelIndex indexOf(const dk_SequenceBase* sequence) const;  // the same

    // Makes what a dragged sequence carries.
    std::function<QMimeData*(dk_SequenceBase*)> dataOfDrag;

private:
    std::vector<TreeRow> _rows;
};

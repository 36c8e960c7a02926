// The rows of the info pane: the values of one sequence's current file that people ask for most,
// under headings. Main thread only.
#pragma once
#include "app/nodes/InfoFields.h"
#include "platform/NotificationCenter.h"

#include <QAbstractTableModel>

class dk_SequenceBase;

inline constexpr int kInfoHeadingHeight = 19, kInfoRowHeight = 17;  // points
inline constexpr int kInfoTextPixels = 11;                          // logical

class InfoTableSource final : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { kInfoTitle, kInfoData, kInfoColumns };

    // `windowKey`: of the window whose grids and browser count.
    explicit InfoTableSource(const void* windowKey, QObject* parent = nullptr);

    void setTableSequenceTo(dk_SequenceBase* sequence);  // null: no rows. Not owned
    [[nodiscard]] dk_SequenceBase* theSequence() const { return _theSequence; }
    [[nodiscard]] bool isHeading(int row) const;
    [[nodiscard]] int heightOfRow(int row) const;
    [[nodiscard]] int totalTableHeight() const;  // with a line between rows

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    void U_CheckAndSetNewTableSequenceFor(const Notification& note);
    void changeDisplayedInfo(const Notification& note);                // of grids
    void changeDisplayedInfoForPatientList(const Notification& note);  // of the browser
    [[nodiscard]] const CategoryInfoField* fieldAt(int row) const;     // or null

    const void* _windowKey;
    InfoFields _theFields;
    dk_SequenceBase* _theSequence = nullptr;
    std::vector<NotificationCenter::Observation> _observations;
};

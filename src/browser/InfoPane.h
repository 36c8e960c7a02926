// The table of DICOM values under the browser, folding down to its title bar. It is the second
// widget of a splitter. Main thread only.
#pragma once
#include "browser/InfoTableSource.h"

#include <QVariantAnimation>
#include <QWidget>

class QSplitter;
class QTableView;
class QToolButton;

inline constexpr int kInfoTitleHeight = 24;  // points
inline constexpr int kInfoFold_ms = 250;
inline constexpr int kLeastBrowserHeight = 120;

// Of the lower part's height and the divider's thickness.
[[nodiscard]] bool U_InfoIsClosed(int lower, int divider);
// Where the divider goes when the pane is opened (`isClosed`) or closed, from the splitter's top.
[[nodiscard]] int U_InfoDividerPosition(bool isClosed, int splitHeight, int tableHeight,
                                        int divider);

class InfoPane final : public QWidget {
    Q_OBJECT

public:
    // Adds itself to the splitter, which holds the browser already.
    InfoPane(const void* windowKey, QSplitter* split);
    ~InfoPane() override;

    [[nodiscard]] InfoTableSource* source() const { return _source; }
    void toggleInfoPane();
    [[nodiscard]] bool viewIsClosed() const;
    [[nodiscard]] int totalTableHeight() const { return _source->totalTableHeight(); }
    [[nodiscard]] QSize sizeHint() const override { return {220, 240}; }
    void updateView();  // the button, after the pane got another height

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    [[nodiscard]] QWidget* newTitleBox();
    [[nodiscard]] QTableView* newTable();
    void layOutRows();
    void fitColumns();
    void copySelected() const;
    void moveDivider(int position);

    QSplitter* _split;
    InfoTableSource* _source;
    QWidget* _titleBox = nullptr;  // children, these three
    QToolButton* _collapseButton = nullptr;
    QTableView* _theInfoView = nullptr;
    QVariantAnimation _folding;
};

// Under the browser: text only, the size of thumbnails, pictures only. Main thread only.
#pragma once
#include <QWidget>

class PatTreeDataSource;
class QSlider;
class QToolButton;

class BrowserBar final : public QWidget {
    Q_OBJECT

public:
    explicit BrowserBar(PatTreeDataSource* source, QWidget* parent = nullptr);

    void setToTextOnly();
    void setToIconOnly();
    void sizeSliderAction(double value);  // cut to a whole size

private:
    [[nodiscard]] QToolButton* newButton(const char* title, const char* icon);
    void showSize(int size);

    PatTreeDataSource* _source;
    QToolButton* _textOnly;  // children, these three
    QSlider* _size;
    QToolButton* _iconOnly;
};

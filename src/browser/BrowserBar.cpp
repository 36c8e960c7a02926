#include "browser/BrowserBar.h"

#include "app/views/MenuFromEntries.h"
#include "browser/PatTreeDataSource.h"
#include "platform/Words.h"

#include <QHBoxLayout>
#include <QSignalBlocker>
#include <QSlider>
#include <QToolButton>

BrowserBar::BrowserBar(PatTreeDataSource* source, QWidget* parent)
    : QWidget(parent),
      _source(source),
      _textOnly(newButton("Text Only", "browser_text")),
      _size(new QSlider(Qt::Horizontal, this)),
      _iconOnly(newButton("Icon Only", "browser_icons"))
{
    const QString title = ZelWord(kWordsMenuItems, "Thumbnail Size");
    _size->setToolTip(title);
    _size->setAccessibleName(title);
    _size->setRange(kTextOnlySize, kIconOnlySize);
    _size->setPageStep(32);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(4, 2, 4, 2);
    for (QWidget* each : {static_cast<QWidget*>(_textOnly), static_cast<QWidget*>(_size),
                          static_cast<QWidget*>(_iconOnly)})
        layout->addWidget(each);
    connect(_textOnly, &QToolButton::clicked, this, [this] { setToTextOnly(); });
    connect(_iconOnly, &QToolButton::clicked, this, [this] { setToIconOnly(); });
    connect(_size, &QSlider::valueChanged, this, [this](int value) { sizeSliderAction(value); });
    connect(source, &PatTreeDataSource::iconSizeChanged, this,
            [this](int size) { showSize(size); });
    showSize(source->iconSize());
}

QToolButton* BrowserBar::newButton(const char* title, const char* icon)
{
    auto* button = new QToolButton(this);
    const QString words = ZelWord(kWordsMenuItems, title);
    button->setText(words);
    button->setIcon(MenuIcon(QLatin1String(icon)));
    button->setToolTip(words);
    button->setAccessibleName(words);
    button->setCheckable(true);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

void BrowserBar::setToTextOnly()
{
    _source->setIconSize(kTextOnlySize);
    showSize(_source->iconSize());
}

void BrowserBar::setToIconOnly()
{
    _source->setIconSize(kIconOnlySize);
    showSize(_source->iconSize());
}

void BrowserBar::sizeSliderAction(double value) { _source->setIconSize(static_cast<int>(value)); }

void BrowserBar::showSize(int size)
{
    const QSignalBlocker quiet(_size);
    _size->setValue(size);
    _textOnly->setChecked(IsTextOnly(size));
    _iconOnly->setChecked(IsIconOnly(size));
}

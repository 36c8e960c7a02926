#include "app_prefs/TestGeneralViewController.h"

#include "app/tools/GridMenuItems.h"
#include "app/views/LayoutIcons.h"
#include "app_prefs/AnnotationFont.h"
#include "app_prefs/PrefsWords.h"
#include "prefs/Prefs.h"

#include <QComboBox>
#include <QFontDialog>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QVBoxLayout>
#include <algorithm>

namespace {

constexpr double kMostSamplePoints = 24;  // a larger size would push the window about

}  // namespace

TestGeneralViewController::TestGeneralViewController(QWidget* parent)
    : PrefsPane(parent), _arrangement(new QComboBox), _sample(new QLabel)
{
    auto* columns = new QHBoxLayout(this);
    auto* left = new QVBoxLayout;
    auto* right = new QVBoxLayout;
    columns->addLayout(left);
    columns->addLayout(right);
    addArrangement(left);
    auto* opening = new QVBoxLayout(AddGroup("Opening", left));
    _opening = AddFlags(OpeningFlags(), opening);
    addText(right);
    addMeasurements(right);
    left->addStretch();
    right->addStretch();
    willBeDisplayed();
}

QString TestGeneralViewController::title() const { return PrefsWord("General"); }
QString TestGeneralViewController::windowTitle() const { return PrefsWord("General title"); }
QString TestGeneralViewController::identifier() const { return QStringLiteral("General"); }
QIcon TestGeneralViewController::image() const { return PrefsIcon("prefs_general"); }

void TestGeneralViewController::addArrangement(QVBoxLayout* column)
{
    _arrangement->addItem(PrefsWord("Automatic"), 0);
    for (std::size_t i = 0; i < kGridLayouts.size(); ++i)
        _arrangement->addItem(LayoutIcon(kGridLayouts[i]),
                              ZelWord(kWordsMenuItems, kLayoutMenuItems[i].title),
                              kGridLayouts[i].id);
    _arrangement->setToolTip(PrefsTip("First layout"));
    _arrangement->setAccessibleName(PrefsWord("First layout"));
    connect(_arrangement, &QComboBox::activated, this,
            &TestGeneralViewController::setGridArrangement);
    auto* form = new QFormLayout(AddGroup("Windows", column));
    form->addRow(PrefsWord("First layout") + QLatin1Char(':'), _arrangement);
}

void TestGeneralViewController::addText(QVBoxLayout* column)
{
    auto* form = new QFormLayout(AddGroup("Text and grids", column));
    for (ColorButton* button : AddColors(TextAndGridColors(), form))
        _colors.push_back(button);
    auto* button = new QPushButton(PrefsWord("Choose font"));
    button->setToolTip(PrefsTip("Choose font"));
    button->setAccessibleName(PrefsWord("Choose font"));
    connect(button, &QPushButton::clicked, this, &TestGeneralViewController::changeFontSize);
    form->addRow(PrefsWord("Text font") + QLatin1Char(':'), button);
    _sample->setTextFormat(Qt::PlainText);
    _sample->setAccessibleName(PrefsWord("Text font"));
    _sample->setMinimumWidth(180);
    form->addRow(_sample);
}

void TestGeneralViewController::addMeasurements(QVBoxLayout* column)
{
    auto* form = new QFormLayout(AddGroup("Measurements", column));
    for (ColorButton* button : AddColors(MeasurementColors(), form))
        _colors.push_back(button);
}

void TestGeneralViewController::willBeDisplayed()
{
    // A layout that there isn't opens as the automatic choice does.
    const int item = _arrangement->findData(prefs_SequenceInitialGridArrangement());
    _arrangement->setCurrentIndex(std::max(item, 0));
    RefreshFlags(OpeningFlags(), _opening);
    for (ColorButton* button : _colors)
        button->refresh();
    showFont();
}

void TestGeneralViewController::setGridArrangement(int index)
{
    prefs_Set_SequenceInitialGridArrangement(_arrangement->itemData(index).toInt());
}

void TestGeneralViewController::changeFontSize()
{
    bool chosen = false;
    const QFont font =
        QFontDialog::getFont(&chosen, AnnotationFont::current(), this, PrefsWord("Text font"));
    if (chosen)
        AnnotationFont::changeFontForInfoText(font);
    showFont();
}

void TestGeneralViewController::showFont()
{
    QFont font = AnnotationFont::current();
    font.setPointSizeF(std::min(font.pointSizeF(), kMostSamplePoints));
    _sample->setFont(font);
    _sample->setText(AnnotationFont::sampleText());
}

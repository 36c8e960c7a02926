#include "app/shell/OpenPanel.h"

#include "app/window/WindowWords.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFile>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QGridLayout>
#include <QIdentityProxyModel>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

std::string BytesOf(const QString& path) { return QFile::encodeName(path).toStdString(); }

// Grays out what the dialog doesn't offer.
class OfferedFiles final : public QIdentityProxyModel {
public:
    using QIdentityProxyModel::QIdentityProxyModel;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override
    {
        const Qt::ItemFlags all = QIdentityProxyModel::flags(index);
        const QString path = index.data(QFileSystemModel::FilePathRole).toString();
        if (ZELOpenPanelRules::shouldEnableURL(BytesOf(path)))
            return all;
        return all & ~(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
    }
};

}  // namespace

// Qt's own dialog: those of desktops choose either files or folders. In the mode for folders files
// are shown too, and a double click enters a folder.
OpenPanel::OpenPanel(const std::string& startFolder, QWidget* parent)
    : QFileDialog(parent, ViewerWord("Open")),
      _hint(new QLabel(this)),
      _ignore(new QCheckBox(ViewerWord("&Ignore DICOMDIR"), this)),
      _recursive(new QCheckBox(ViewerWord("Include &subfolders"), this))
{
    setOptions(DontUseNativeDialog | DontResolveSymlinks | ReadOnly);
    setFileMode(Directory);
    setFilter(QDir::AllDirs | QDir::Files | QDir::Drives | QDir::NoDotAndDotDot);
    setProxyModel(new OfferedFiles(this));
    setLabelText(FileName, ViewerWord("&Name:"));
    for (const char* name : {"fileTypeCombo", "fileTypeLabel"})  // there is one type only
        if (auto* widget = findChild<QWidget*>(QString::fromLatin1(name)))
            widget->hide();
    addAccessory();
    setDirectory(QFile::decodeName(startFolder.c_str()));

    connect(this, &QFileDialog::currentChanged, this, [this] { selectionDidChange(); });
    if (const auto* files = findChild<QFileSystemModel*>())
        connect(files, &QFileSystemModel::rootPathChanged, this, [this] { selectionDidChange(); });
    if (const auto* name = findChild<QLineEdit*>(QStringLiteral("fileNameEdit")))
        connect(name, &QLineEdit::textChanged, this, [this] { selectionDidChange(); });
    selectionDidChange();
}

void OpenPanel::addAccessory()
{
    _hint->setTextFormat(Qt::PlainText);
    _hint->setWordWrap(true);
    _ignore->setToolTip(ViewerWord("Search the folder for images even if a DICOMDIR lists them"));
    _recursive->setToolTip(ViewerWord("Search the folders in the chosen folder too"));
    connect(_ignore, &QCheckBox::clicked, this, [this](bool on) {
        _rules.checkIgnoreDICOMDIR(on);
        showState();
    });
    connect(_recursive, &QCheckBox::clicked, this, [this](bool on) {
        _rules.checkDoRecursive(on);
        showState();
    });
    auto* accessory = new QVBoxLayout;
    accessory->addWidget(_hint);
    accessory->addWidget(_ignore);
    accessory->addWidget(_recursive);
    if (auto* grid = qobject_cast<QGridLayout*>(layout()))
        grid->addLayout(accessory, grid->rowCount(), 0, 1, grid->columnCount());
}

std::string OpenPanel::chosenPath() const { return BytesOf(selectedFiles().value(0)); }

std::string OpenPanel::shownFolder() const { return BytesOf(directory().absolutePath()); }

void OpenPanel::selectionDidChange()
{
    _rules.userSelected(chosenPath());
    showState();
}

void OpenPanel::showState()
{
    const OpenPanelState& state = _rules.state();
    setLabelText(Accept, state.prompt);
    _hint->setText(state.hint);
    _ignore->setEnabled(state.ignoreEnabled);
    _ignore->setChecked(state.ignoreOn);
    _recursive->setEnabled(state.recursiveEnabled);
    _recursive->setChecked(state.recursiveOn);
    const std::string path = chosenPath();
    const bool canChoose =
        ZELOpenPanelRules::shouldEnableURL(path) && ZELOpenPanelRules::validateURL(path);
    if (const auto* buttons = findChild<QDialogButtonBox*>())
        if (auto* choose = buttons->button(QDialogButtonBox::Open))
            choose->setEnabled(canChoose);
}

void OpenPanel::accept()
{
    const QString path = selectedFiles().value(0);
    if (!QFileInfo::exists(path))
        return QFileDialog::accept();  // tells what is wrong with the typed name
    const std::string bytes = BytesOf(path);
    if (ZELOpenPanelRules::shouldEnableURL(bytes) && ZELOpenPanelRules::validateURL(bytes))
        QDialog::accept();
}

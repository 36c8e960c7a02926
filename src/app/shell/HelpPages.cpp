#include "app/shell/HelpPages.h"

#include "app/window/WindowWords.h"
#include "dicom_core/store/TempFolder.h"
#include "platform/Words.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFile>
#include <QMessageBox>
#include <QPdfWriter>
#include <QSaveFile>
#include <QTextBrowser>
#include <QTextDocument>
#include <QUrl>
#include <QVBoxLayout>

namespace {

constexpr const char* kWordsVendor = "VendorStrings_zel";
constexpr QSize kFirstSize(640, 560);  // view points

QString Page(const QString& name)
{
    QFile file(QStringLiteral(":/help/%1").arg(name));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

void ShowInWindow(const QString& title, const QString& markdown, QWidget* over)
{
    auto* dialog = new QDialog(over);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(title);
    auto* column = new QVBoxLayout(dialog);
    auto* text = new QTextBrowser(dialog);
    text->setMarkdown(markdown);
    text->setAccessibleName(title);
    column->addWidget(text);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, dialog);
    QObject::connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::close);
    column->addWidget(buttons);
    dialog->resize(kFirstSize);
    dialog->show();
}

// True when the desktop shows it.
bool Open(const QString& path) { return QDesktopServices::openUrl(QUrl::fromLocalFile(path)); }

// Empty without a folder for temporary files.
QString PathInTemp(const QString& name)
{
    const std::string& folder = GetProgramTempFolder();
    return folder.empty() ? QString()
                          : QFile::decodeName(QByteArray::fromStdString(folder)) + u'/' + name;
}

bool Write(const QString& path, const QByteArray& bytes)
{
    QSaveFile file(path);
    return !path.isEmpty() && file.open(QIODevice::WriteOnly) &&
           file.write(bytes) == bytes.size() && file.commit();
}

// Paragraphs and headings of one level are all that the page has.
QByteArray RtfOf(const QString& markdown)
{
    QByteArray rtf = "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0\\fswiss Sans;}}\\fs22\n";
    for (QString line : markdown.split(u'\n')) {
        const bool heading = line.startsWith(QLatin1String("# "));
        line.remove(QLatin1String("# "));
        rtf += heading ? "{\\b\\fs28 " : "{";
        for (const QChar letter : line) {
            if (letter.unicode() >= 0x80)
                rtf += QStringLiteral("\\u%1?").arg(letter.unicode()).toLatin1();
            else if (letter == u'\\' || letter == u'{' || letter == u'}')
                rtf += QByteArray("\\") + letter.toLatin1();
            else
                rtf += letter.toLatin1();
        }
        rtf += "}\\par\n";
    }
    return rtf + "}\n";
}

bool WritePdf(const QString& path, const QString& markdown)
{
    QSaveFile file(path);
    if (path.isEmpty() || !file.open(QIODevice::WriteOnly))
        return false;
    QTextDocument document;
    document.setMarkdown(markdown);
    QPdfWriter writer(&file);
    writer.setTitle(QGuiApplication::applicationDisplayName());
    document.print(&writer);
    return file.commit();
}

}  // namespace

void ShowHelp(QWidget* over)
{
    const QString text = Page(QStringLiteral("help.md"));
    const QString path = PathInTemp(ZelWord(kWordsVendor, "HelpFileName"));
    if (!WritePdf(path, text) || !Open(path))
        ShowInWindow(ZelWord(kWordsMenuItems, "Help"), text, over);
}

void ShowAcknowledgments(QWidget* over)
{
    const QString text = Page(QStringLiteral("acknowledgments.md"));
    const QString path = PathInTemp(QStringLiteral("Acknowledgments.rtf"));
    if (!Write(path, RtfOf(text)) || !Open(path))
        ShowInWindow(ZelWord(kWordsMenuItems, "Acknowledgments"), text, over);
}

void ShowAbout(QWidget* over)
{
    const QString name = QGuiApplication::applicationDisplayName();
    QMessageBox about(QMessageBox::NoIcon,
                      U_FixApplicationMenuTitle(ZelWord(kWordsMenuItems, "About")),
                      QStringLiteral("%1 %2").arg(name, QCoreApplication::applicationVersion()),
                      QMessageBox::Close, over);
    about.setInformativeText(ZelWord(kWordsVendor, "AboutText"));
    about.setIconPixmap(QIcon(QStringLiteral(":/icons/zelora-viewer.svg")).pixmap(64, 64));
    about.exec();
}

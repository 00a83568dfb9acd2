// The dialogs that ask for a file.
#include "desktop/QtPlatform.h"

#include <QApplication>
#include <QFileDialog>
#include <QFileIconProvider>
#include <QHeaderView>
#include <QStandardPaths>
#include <QTreeView>

namespace velorix {
namespace {

// The folder to start in. Where it can't be made, as in an installed program, the user's own documents.
QString StartFolder(const std::filesystem::path& Wanted)
{
    std::error_code Problem;
    std::filesystem::create_directories(Wanted, Problem);
    const QFileInfo Folder(Wanted);
    return Folder.isDir() ? Folder.absoluteFilePath()
                          : QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
}

// The extension that a filter such as "Projects (*.vlx)" asks for; empty when it takes all files.
QString SuffixOf(const QString& Filter)
{
    const QString Pattern = Filter.section('(', -1).section(')', 0, 0).section(' ', 0, 0);
    return Pattern.startsWith("*.") ? Pattern.mid(2) : QString();
}

// Tells folders from files and looks no further: the toolkit would read from each file to draw its kind, and
// some, as those of the system's own state, never end or wait for what never comes.
class PlainIcons : public QFileIconProvider {
public:
    using QFileIconProvider::icon;

    QIcon icon(const QFileInfo& Entry) const override { return icon(Entry.isDir() ? Folder : File); }
    QString type(const QFileInfo&) const override { return {}; } // its column doesn't show
};

std::optional<std::filesystem::path> Ask(const FileDialog& Dialog, QFileDialog::AcceptMode Mode)
{
    PlainIcons Icons;
    QFileDialog Window(QApplication::activeWindow(), QString::fromStdString(Dialog.Title),
                       StartFolder(Dialog.Folder));
    Window.setIconProvider(&Icons);
    const bool Saves = Mode == QFileDialog::AcceptSave;
    Window.setOption(QFileDialog::DontUseNativeDialog, QGuiApplication::platformName() == "offscreen");
    Window.setOption(QFileDialog::DontConfirmOverwrite, !Dialog.OverwritePrompt);
    Window.setAcceptMode(Mode);
    Window.setFileMode(Saves ? QFileDialog::AnyFile : QFileDialog::ExistingFile);

    const QStringList Filters = NameFilters(Dialog.Filter);
    Window.setNameFilters(Filters);
    if (!Filters.isEmpty())
        Window.selectNameFilter(Filters.value(Dialog.FilterIndex - 1, Filters.constFirst()));
    const auto SetSuffix = [&Window](const QString& Chosen) { Window.setDefaultSuffix(SuffixOf(Chosen)); };
    if (Saves) {
        SetSuffix(Window.selectedNameFilter());
        QObject::connect(&Window, &QFileDialog::filterSelected, &Window, SetSuffix);
    }

    if (!Dialog.Name.empty()) Window.selectFile(QString::fromStdString(Dialog.Name));

    if (auto* const Entries = Window.findChild<QTreeView*>()) { // the toolkit's own dialog cuts size and date
        constexpr int KindOfFile = 2;
        Entries->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
        Entries->hideColumn(KindOfFile);
    }

    if (Window.exec() != QDialog::Accepted || Window.selectedFiles().isEmpty()) return std::nullopt;
    return QFileInfo(Window.selectedFiles().constFirst()).filesystemFilePath();
}

} // namespace

QStringList NameFilters(const std::string& Filter)
{
    QStringList Filters;
    const QStringList Parts = QString::fromStdString(Filter).split('|');
    for (qsizetype Name = 0; Name + 1 < Parts.size(); Name += 2) {
        const QString Patterns = Parts[Name + 1].trimmed().replace(';', ' ').replace("*.*", "*");
        Filters += Parts[Name].section('(', 0, 0).trimmed() + " (" + Patterns + ')';
    }
    return Filters;
}

std::optional<std::filesystem::path> QtPlatform::AskFileToOpen(const FileDialog& Dialog)
{
    return Ask(Dialog, QFileDialog::AcceptOpen);
}

std::optional<std::filesystem::path> QtPlatform::AskFileToSave(const FileDialog& Dialog)
{
    return Ask(Dialog, QFileDialog::AcceptSave);
}

} // namespace velorix

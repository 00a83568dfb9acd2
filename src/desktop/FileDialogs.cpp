// The dialogs that ask for a file.
#include "desktop/Binding.h"
#include "desktop/QtPlatform.h"

#include <QApplication>
#include <QFileDialog>
#include <QStandardPaths>

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
    return Pattern.startsWith("*.") && Pattern != "*.*" ? Pattern.mid(2) : QString();
}

// Where a filter takes all files, the first that asks for one tells it.
QString DefaultSuffix(const QString& Chosen, const QStringList& Filters)
{
    QString Suffix = SuffixOf(Chosen);
    for (const QString& Each : Filters)
        if (Suffix.isEmpty()) Suffix = SuffixOf(Each);
    return Suffix;
}

std::optional<std::filesystem::path> Ask(const FileDialog& Dialog, QFileDialog::AcceptMode Mode)
{
    QFileDialog Window(QApplication::activeWindow(), QString::fromStdString(Dialog.Title),
                       StartFolder(Dialog.Folder));
    const bool Saves = Mode == QFileDialog::AcceptSave;
    Window.setOption(QFileDialog::DontUseNativeDialog, QGuiApplication::platformName() == "offscreen");
    Window.setOption(QFileDialog::DontConfirmOverwrite, !Dialog.OverwritePrompt);
    Window.setAcceptMode(Mode);
    Window.setFileMode(Saves ? QFileDialog::AnyFile : QFileDialog::ExistingFile);

    const QStringList Filters = NameFilters(Dialog.Filter);
    Window.setNameFilters(Filters);
    if (!Filters.isEmpty())
        Window.selectNameFilter(Filters.value(Dialog.FilterIndex - 1, Filters.constFirst()));
    const auto SetSuffix = [&Window, &Filters](const QString& Chosen) {
        Window.setDefaultSuffix(DefaultSuffix(Chosen, Filters));
    };
    if (Saves) {
        SetSuffix(Window.selectedNameFilter());
        QObject::connect(&Window, &QFileDialog::filterSelected, &Window, SetSuffix);
    }

    if (Window.exec() != QDialog::Accepted || Window.selectedFiles().isEmpty()) return std::nullopt;
    return QFileInfo(Window.selectedFiles().constFirst()).filesystemFilePath();
}

} // namespace

QStringList NameFilters(const std::string& Filter)
{
    QStringList Filters;
    const QStringList Parts = QString::fromStdString(Filter).split('|');
    for (qsizetype Name = 0; Name + 1 < Parts.size(); Name += 2)
        Filters += Parts[Name].section('(', 0, 0).trimmed() + " (" +
                   QString(Parts[Name + 1]).replace(';', ' ') + ')';
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

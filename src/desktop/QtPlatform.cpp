// Message boxes, dialogs, focus, pointer, clipboard and folders.
#include "desktop/QtPlatform.h"

#include "desktop/Binding.h"
#include "desktop/MessageBoxes.h"
#include "paint/ImageFile.h"
#include "paint/Painter.h"
#include "shell/Help.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QClipboard>
#include <QDate>
#include <QDialog>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLineEdit>
#include <QProcess>
#include <QScopeGuard>
#include <QScopedValueRollback>
#include <QScreen>
#include <QShortcut>
#include <QStandardPaths>

#include <memory>
#include <stdexcept>

namespace velorix {
namespace {

bool Painting = false;

// What a new dialog stands over.
QWidget* TopWindow()
{
    for (QWidget* Each : {QApplication::activeModalWidget(), QApplication::activeWindow()})
        if (Each && Each->isVisible()) return Each;
    return nullptr;
}

// Turns the frame's closing button and Escape into the screen's own closing.
class DialogFrame : public QObject {
public:
    DialogFrame(Screen& Framed, QDialog* Dialog)
        : QObject(Dialog)
        , Shown(Framed)
    {
        Dialog->installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* Event) override
    {
        const bool Escape = Event->type() == QEvent::KeyPress &&
                            static_cast<QKeyEvent*>(Event)->matches(QKeySequence::Cancel);
        if (Event->type() != QEvent::Close && !Escape) return false;
        Event->setAccepted(Escape);
        Guarded([this] { Shown.CloseByFrame(); });
        return true;
    }

private:
    Screen& Shown;
};

// Keeps keys and mouse presses from every widget while it stands.
class InputEater : public QObject {
public:
    InputEater() { QCoreApplication::instance()->installEventFilter(this); }

    bool eventFilter(QObject*, QEvent* Event) override
    {
        if (QApplication::activeModalWidget() != Dialog) return false; // a message that has come up meanwhile
        switch (Event->type()) {
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
        case QEvent::ShortcutOverride:
        case QEvent::Shortcut:
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
        case QEvent::Wheel:
        case QEvent::Close: return true;
        default: return false;
        }
    }

private:
    const QWidget* const Dialog = QApplication::activeModalWidget();
};

// Lets go of the keys and mouse presses that came while the program was busy: they weren't meant for what the
// screen shows now.
void DropInput()
{
    const QScopedValueRollback<bool> Now(Painting, true);
    InputEater Eater;
    QCoreApplication::eventDispatcher()
        ->wakeUp(); // for what was read, and left, by an earlier look at the events
    QCoreApplication::processEvents();
}

// The cross hair is the cursor of the surfaces themselves; only the hourglass stands over everything.
void ChangePointer(PointerShape& Pointer, PointerShape Shape)
{
    const bool WasBusy = Pointer == PointerShape::Hourglass;
    const bool IsBusy = Shape == PointerShape::Hourglass;
    Pointer = Shape;
    if (IsBusy && !WasBusy) QApplication::setOverrideCursor(Qt::WaitCursor);
    if (!IsBusy && WasBusy) QApplication::restoreOverrideCursor();
}

// Shows the default pointer for as long as the user has to answer.
class PointerPause {
public:
    explicit PointerPause(PointerShape& InUse)
        : Pointer(InUse)
        , Before(InUse)
    {
        ChangePointer(Pointer, PointerShape::Default);
    }
    ~PointerPause() { ChangePointer(Pointer, Before); }
    PointerPause(const PointerPause&) = delete;
    PointerPause& operator=(const PointerPause&) = delete;

private:
    PointerShape& Pointer;
    const PointerShape Before;
};

} // namespace

void QtPlatform::RegisterDialog(Screen& Shown, DialogMaker Make)
{
    Dialogs[&Shown] = std::move(Make);
}

Answer QtPlatform::Show(const Message& Box)
{
    const KeepArithmeticFlags Keep;
    const PointerPause Pause(Pointer);
    return ShowMessageBox(Box, TopWindow());
}

void QtPlatform::ShowModal(Screen& Shown)
{
    const auto Maker = Dialogs.find(&Shown);
    if (Maker == Dialogs.end()) throw std::logic_error("no dialog shows the screen " + Shown.Name);
    const KeepArithmeticFlags Keep;
    const PointerPause Pause(Pointer);

    const std::unique_ptr<QDialog> Dialog(Maker->second(TopWindow()));
    Dialog->setModal(true);
    new DialogFrame(Shown, Dialog.get());
    Standing.push_back(&Shown);
    const auto Leave = qScopeGuard([this] { Standing.pop_back(); });
    QObject::connect(new QShortcut(QKeySequence("F1"), Dialog.get()), &QShortcut::activated, Dialog.get(),
                     [this] { Guarded([this] { ShowHelpOf(Standing); }); });
    QEventLoop Open;
    Follow(Shown.Caption, Dialog.get(), [&Dialog](const std::string& Caption) {
        Dialog->setWindowTitle(QString::fromStdString(Caption));
    });
    Follow(Shown.Enabled, Dialog.get(), [&Dialog](bool Enabled) { Dialog->setEnabled(Enabled); });
    Follow(Shown.Visible, Dialog.get(), [&Dialog, &Open](bool Visible) {
        Dialog->setVisible(Visible);
        Dialog->setAttribute(Qt::WA_KeyboardFocusChange); // else options hide the focus until the first Tab
        if (!Visible) Open.quit();
    });

    Shown.LoadHidden();
    Shown.Visible = true;
    if (Shown.Visible) Open.exec();
}

std::optional<PrintChoice> QtPlatform::AskPrinter(const PrintDialog& Dialog)
{
    const KeepArithmeticFlags Keep;
    const PointerPause Pause(Pointer);
    return Prints.Ask(Dialog, TopWindow());
}

void QtPlatform::PrintPage(const PrintedPage& Page)
{
    const KeepArithmeticFlags Keep;
    Prints.Take(Page);
}

void QtPlatform::EndPrintRun()
{
    const KeepArithmeticFlags Keep;
    Prints.End();
}

void QtPlatform::ShowPrintRun()
{
    const KeepArithmeticFlags Keep;
    const PointerPause Pause(Pointer);
    Prints.Show(TopWindow());
}

void QtPlatform::SetFocus(Control& Target)
{
    const KeepArithmeticFlags Keep;
    QWidget* const View = FocusTarget(Target);
    if (!View) return;
    // On a page that doesn't show the focus stays in reach: on the tabs that lead there.
    NearestInReach(View)->setFocus(Qt::OtherFocusReason);
    // A window that isn't active yet, as behind a message box, hands the focus on later, for another reason.
    if (auto* const Line = qobject_cast<QLineEdit*>(View); Line && Line->focusPolicy() & Qt::TabFocus)
        Line->selectAll();
    if (!View->hasFocus()) TellFocus(Target); // nor while another window is in front
}

bool QtPlatform::IsInReach(const Control& Target)
{
    QWidget* const View = FocusTarget(Target);
    return View && NearestInReach(View) == View;
}

void QtPlatform::SetPointer(PointerShape Shape)
{
    if (Pointer == PointerShape::Hourglass && Shape == PointerShape::Default) DropInput();
    ChangePointer(Pointer, Shape);
}

void QtPlatform::Repaint()
{
    const KeepArithmeticFlags Keep;
    const QScopedValueRollback<bool> Now(Painting, true);
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

bool OnlyPainting()
{
    return Painting;
}

std::string QtPlatform::ClipboardText()
{
    QString Text = QApplication::clipboard()->text();
    return Text.replace("\r\n", "\n").replace('\n', "\r\n").toStdString();
}

void QtPlatform::SetClipboardText(const std::string& Text)
{
    QApplication::clipboard()->setText(QString::fromStdString(Text));
}

void QtPlatform::SetClipboardPicture(const DisplayList& Image)
{
    const double Scale = 2 * qGuiApp->devicePixelRatio(); // twice as fine as the screen
    const KeepArithmeticFlags Keep;
    QApplication::clipboard()->setImage(ToImage(Image, Scale));
}

double QtPlatform::TextWidth(const std::string& Text, const Font& Face)
{
    const KeepArithmeticFlags Keep;
    return PaintedTextWidth(QString::fromStdString(Text), Face);
}

double QtPlatform::TextHeight(const Font& Face)
{
    const KeepArithmeticFlags Keep;
    return PaintedTextHeight(Face);
}

Date QtPlatform::Today()
{
    const QDate Now = QDate::currentDate();
    return {Now.year(), Now.month(), Now.day()};
}

PixelSize QtPlatform::ScreenSize()
{
    const QScreen* const Screen = QApplication::primaryScreen();
    return {Screen->size().width(), Screen->size().height()};
}

bool QtPlatform::ShowSystemInformation()
{
    for (const char* Tool : {"hardinfo2", "hardinfo", "kinfocenter", "msinfo32"}) {
        const QString Found = QStandardPaths::findExecutable(Tool);
        if (!Found.isEmpty() && QProcess::startDetached(Found, {})) return true;
    }
    return false;
}

std::filesystem::path ProgramFolderOf(const std::filesystem::path& BinaryFolder)
{
    const std::filesystem::path Installed = BinaryFolder.parent_path() / "share" / "velorix";
    std::error_code NotThere;
    if (std::filesystem::is_directory(BinaryFolder / "Projects", NotThere)) return BinaryFolder;
    return std::filesystem::is_directory(Installed, NotThere) ? Installed : BinaryFolder;
}

std::filesystem::path QtPlatform::ProgramFolder()
{
    return ProgramFolderOf(QFileInfo(QCoreApplication::applicationDirPath()).filesystemAbsoluteFilePath());
}

// The window belongs to the one that asks for it: beside a dialog it can be used while the dialog stands.
void QtPlatform::ShowHelp(const std::filesystem::path& HelpFile, int Topic)
{
    QFile File(HelpFile);
    std::vector<HelpTopic> Topics;
    if (File.open(QIODevice::ReadOnly)) Topics = HelpTopicsIn(QString::fromUtf8(File.readAll()));
    if (Topics.empty()) {
        Show({.Text = "The help file can't be opened:\n\n" + HelpFile.string(),
              .Icon = MessageIcon::Information});
        return;
    }
    QWidget* const Owner = TopWindow();
    if (!Help) Help = new HelpWindow(std::move(Topics), Owner);
    Help->Ask(Topic, Owner);
}

void QtPlatform::EndProgram()
{
    Ended = true;
    QCoreApplication::exit(0); // asks no window whether it may close
}

} // namespace velorix

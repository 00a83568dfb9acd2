// Menus, tool buttons, screens and status bar of the main window.
#include "desktop/MainWindowLayout.h"

#include "desktop/Binding.h"
#include "desktop/FormRows.h"
#include "desktop/Icons.h"
#include "desktop/InputLayout.h"
#include "desktop/KeyEvents.h"
#include "desktop/ResultsLayout.h"
#include "desktop/RoughnessLayout.h"
#include "desktop/ViewerLayouts.h"
#include "desktop/Views.h"
#include "platform/Keys.h"
#include "platform/Platform.h"
#include "screens/Lcc.h"
#include "screens/MainWindow.h"
#include "screens/Results.h"
#include "screens/RoughnessScreen.h"
#include "screens/Viewers.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QDateTime>
#include <QDragEnterEvent>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace velorix {
namespace {

constexpr QSize FirstSize(1100, 740);
constexpr QSize LeastSize(640, 420);
constexpr int ToolIconSize = 22;

// A menu under its heading; a nullptr is a separator.
QAction* MenuOf(MenuItem& Heading, const std::vector<QAction*>& Entries, QWidget* Owner)
{
    auto* const Menu = new QMenu(Owner);
    for (QAction* Each : Entries)
        if (Each)
            Menu->addAction(Each);
        else
            Menu->addSeparator();
    QAction* const Entry = View(Heading);
    Entry->setMenu(Menu);
    return Entry;
}

QAction* Command(MenuItem& Record, const char* Icon = nullptr, const QKeySequence& Shortcut = {})
{
    QAction* const Entry = View(Record);
    if (Icon) Entry->setIcon(MenuIcon(Icon));
    Entry->setShortcut(Shortcut);
    return Entry;
}

QAction* FileMenu(QWidget* Owner)
{
    QAction* const Transfer = MenuOf(MDIProject.munImportExport,
                                     {Command(MDIProject.mnuImport), Command(MDIProject.mnuExport)}, Owner);
    QAction* const Screens = MenuOf(
        MDIProject.mnuView,
        {Command(MDIProject.mnuGeneral, nullptr, QKeySequence("F6")), Command(MDIProject.mnuResults)}, Owner);
    return MenuOf(MDIProject.mnuFile,
                  {Command(MDIProject.mnuNew, "new", QKeySequence("Ctrl+N")),
                   Command(MDIProject.mnuOpen, "open", QKeySequence("Ctrl+O")),
                   Command(MDIProject.mnuSave, "save", QKeySequence("Ctrl+S")),
                   Command(MDIProject.mnuSaveAs, nullptr, QKeySequence("Ctrl+Shift+S")),
                   Command(MDIProject.mnuDelete), Transfer, nullptr, Screens,
                   Command(MDIProject.mnuPrint, "print", QKeySequence("Ctrl+P")), nullptr,
                   Command(MDIProject.mnuExit)},
                  Owner);
}

QAction* HelpMenu(QWidget* Owner)
{
    return MenuOf(MDIProject.mnuHelp,
                  {Command(MDIProject.mnuContents, "help", QKeySequence("F1")), Command(MDIProject.mnuHelpOn),
                   nullptr, Command(MDIProject.mnuStep), Command(MDIProject.mnuConvert),
                   Command(MDIProject.mnuMethod), Command(MDIProject.mnuDisclaimer), nullptr,
                   Command(MDIProject.mnuAbout)},
                  Owner);
}

// A tool button for a command of the menu bar, which itself shows text only.
QToolButton* Tool(MenuItem& Record, QAction* Action, const QString& IconName)
{
    auto* const Button = new QToolButton;
    Button->setIcon(DrawnIcon(IconName));
    Button->setAutoRaise(true);
    Button->setToolTip(Action->toolTip());
    NameField(Button, Action->text());
    QObject::connect(Button, &QToolButton::clicked, Action, &QAction::trigger);
    RaiseEvents(Record, Button);
    const auto Show = [Button, Action] {
        Button->setEnabled(Action->isEnabled());
        Button->setVisible(Action->isVisible());
    };
    QObject::connect(Action, &QAction::changed, Button, Show);
    return Button;
}

// The tool buttons, the two commands of the menu bar that are wanted most among them.
QWidget* ToolStrip(QAction* Analyse, QAction* Preferences)
{
    const std::vector<QToolButton*> Buttons = {ToolView(MDIProject.sscNew, "new"),
                                               ToolView(MDIProject.sscOpen, "open"),
                                               ToolView(MDIProject.sscSave, "save"),
                                               ToolView(MDIProject.sscPrint, "print"),
                                               Tool(MDIProject.mnuAnalyse, Analyse, "analyse"),
                                               Tool(MDIProject.mnuPreferences, Preferences, "preferences"),
                                               ToolView(MDIProject.sscHelp, "help")};
    QGroupBox* const Strip = WithRole(View(MDIProject.sspProject), "bar");
    auto* const Layout = new QHBoxLayout(Strip);
    Layout->setContentsMargins(Gap, Gap / 2, Gap, Gap / 2);
    Layout->setSpacing(Gap / 2);
    for (QToolButton* Each : Buttons) {
        Each->setIconSize(QSize(ToolIconSize, ToolIconSize));
        Layout->addWidget(Each);
    }
    Layout->addStretch(1);
    for (int Place : {4, 7}) Layout->insertSpacing(Place, 2 * Gap); // ahead of Analyse, and ahead of Help
    return Strip;
}

// What shows while no screen stands, with the line that tells how to go on.
QWidget* PicturePage(QLabel* WayOn)
{
    constexpr int PictureWidth = 640;
    auto* const Page = new QWidget;
    auto* const Layout = new QVBoxLayout(Page);
    Layout->addStretch(1);
    Layout->addWidget(WayOn);
    Layout->addSpacing(2 * Gap);
    auto* const Row = new QHBoxLayout;
    Row->addStretch(1);
    QWidget* const Picture = new PictureView("pipe", PictureWidth, "Pipeline between two reservoirs");
    Row->addWidget(Picture, 1000);
    Row->addStretch(1);
    Layout->addLayout(Row, 1000);
    Layout->addStretch(1);
    Page->setFocusPolicy(Qt::StrongFocus); // else the focus would go to a tool button
    WayOn->setBuddy(Page);                 // names it to a screen reader
    for (QWidget* Each : {Page, Picture}) RaiseEvents(MDIProject.sspProject, Each);
    return Page;
}

QLabel* WayOnLine()
{
    QLabel* const Line = WithRole(View(MDIProject.lblWayOn), "screen");
    Line->setAlignment(Qt::AlignCenter);
    Line->setWordWrap(true);
    QSizePolicy Room = Line->sizePolicy();
    Room.setRetainSizeWhenHidden(true);
    Line->setSizePolicy(Room);
    return Line;
}

// The time and the date of the day.
QWidget* Clock()
{
    constexpr int Second = 1000;
    auto* const Time = new QLabel;
    auto* const Day = new QLabel;
    const auto Show = [Time, Day] {
        const QDateTime Now = QDateTime::currentDateTime();
        Time->setText(Now.toString("HH:mm"));
        Day->setText(QLocale::c().toString(Now.date(), "d MMMM yyyy"));
    };
    auto* const Beat = new QTimer(Time);
    QObject::connect(Beat, &QTimer::timeout, Time, Show);
    Beat->start(Second);
    Show();
    QWidget* const Panels = InRow({Time, Day});
    Panels->layout()->setSpacing(2 * Gap);
    Panels->layout()->setContentsMargins(Gap, 0, Gap, 0);
    return Panels;
}

void FillStatusBar(QStatusBar* Bar)
{
    constexpr int ProgressWidth = 140;
    QProgressBar* const Progress = View(MDIProject.proProgressBar);
    Progress->setFixedWidth(ProgressWidth);
    Progress->setTextVisible(false);
    NameField(Progress, "Progress");
    QLabel* const Hint = Elided(View(MDIProject.StatusText));
    Hint->setContentsMargins(Gap, 0, 0, 0);

    Bar->setSizeGripEnabled(false);
    Bar->addWidget(Hint, 1);
    Bar->addPermanentWidget(View(MDIProject.lblProgessBar));
    Bar->addPermanentWidget(Progress);
    QLabel* const System = View(MDIProject.lblSystem);
    System->setContentsMargins(Gap, 0, 0, 0);
    Bar->addPermanentWidget(System);
    Bar->addPermanentWidget(Clock());
}

// The first widget of the page that takes the focus; the page itself when there is none.
QWidget* FirstField(QWidget* Page)
{
    QWidget* Field = Page;
    do Field = Field->nextInFocusChain();
    while (Field != Page && !(Page->isAncestorOf(Field) && Field->focusPolicy() & Qt::TabFocus));
    return Field;
}

// Options and ticks keep to the space bar.
QAbstractButton* ButtonWithFocus()
{
    QWidget* const Now = QApplication::focusWidget();
    if (auto* const Button = qobject_cast<QPushButton*>(Now)) return Button;
    return qobject_cast<QToolButton*>(Now);
}

// Of the pane or the viewer on top; nullptr when neither stands open.
QAbstractButton* ClosingButton()
{
    const CommandButton* const Closing[] = {
        &frmLCC.sscOK,           &frmLCC.sscCancelLaying,  &frmResults.sscHideHydraulicTable,
        &frmResults.sscHideDuty, &frmResults.sscHideTable, &frmView.sscOK,
        &frmViewRoughness.sscOK, &frmPumpView.sscOK,       &frmIRRView.sscOK};
    for (const CommandButton* Each : Closing)
        if (auto* const Button = static_cast<QAbstractButton*>(FocusTarget(*Each));
            Button->isVisible() && Button->isEnabled())
            return Button;
    return nullptr;
}

// The one local file of a drag; nothing for anything else.
QString DraggedFile(const QDropEvent& Event)
{
    const QList<QUrl> Found = Event.mimeData()->urls();
    return Found.size() == 1 ? Found.front().toLocalFile() : QString();
}

} // namespace

MainWindow::MainWindow()
    : Screens(new QStackedWidget)
    , WayOn(WayOnLine())
    , Picture(PicturePage(WayOn))
    , Places{{&frmIRRView, IrrViewLayout()},     {&frmViewRoughness, RoughnessViewLayout()},
             {&frmRoughness, RoughnessLayout()}, {&frmView, ProfileViewLayout()},
             {&frmPumpView, PumpViewLayout()},   {&frmResults, ResultsScreenLayout()},
             {&frmLCC, InputScreenLayout()}}
{
    QAction* const Analyse = Command(MDIProject.mnuAnalyse, nullptr, QKeySequence("F5"));
    QAction* const Preferences = Command(MDIProject.mnuPreferences);
    menuBar()->addActions({FileMenu(this), Command(MDIProject.mnuExit1), Analyse,
                           Command(MDIProject.mnuRoughness), Preferences, HelpMenu(this)});
    FillStatusBar(statusBar());

    Screens->addWidget(Picture);
    for (const Place& Each : Places) Screens->addWidget(Each.Layout);
    auto* const Middle = new QWidget;
    auto* const Layout = new QVBoxLayout(Middle);
    Layout->setContentsMargins(0, 0, 0, 0);
    Layout->setSpacing(0);
    Layout->addWidget(ToolStrip(Analyse, Preferences));
    Layout->addWidget(Screens, 1);
    setCentralWidget(Middle);
    setAcceptDrops(true);
    setMinimumSize(LeastSize);
    TakeFirstSize();

    Follow(MDIProject.Caption, this,
           [this](const std::string& Title) { setWindowTitle(QString::fromStdString(Title)); });
    Follow(MDIProject.Visible, this, [this](bool Visible) { setVisible(Visible); });
    for (const auto& [Record, Shown] : Places) {
        Follow(Record->Visible, this, [this](bool) { ShowScreen(); });
        Follow(Record->Enabled, Shown, [Page = Shown](bool Enabled) { Page->setEnabled(Enabled); });
    }
}

// A display without room for window and frame is filled.
void MainWindow::TakeFirstSize()
{
    const QSize Room = screen()->availableSize();
    resize(FirstSize.boundedTo(Room));
    if ((FirstSize + FrameAllowance).boundedTo(Room) != FirstSize + FrameAllowance)
        setWindowState(Qt::WindowMaximized);
}

void MainWindow::ShowScreen()
{
    const auto Shown = std::find_if(Places.begin(), Places.end(),
                                    [](const Place& Each) { return Each.Record->Visible.Get(); });
    QWidget* const Top = Shown == Places.end() ? Picture : Shown->Layout;
    if (Screens->currentWidget()->isAncestorOf(focusWidget()))
        Screens->setFocus(); // a page that goes would hand it to a tool button
    Screens->setCurrentWidget(Top);
    // The screen remembers who had its focus. A list that had it stays closed.
    NearestInReach(Top->focusWidget() ? Top->focusWidget() : FirstField(Top))->setFocus(Qt::TabFocusReason);
}

// While a dialog stands no menu can be opened, nor does the one that has asked for it stay marked.
bool MainWindow::event(QEvent* Event)
{
    if (Event->type() == QEvent::WindowBlocked) {
        WayOn->hide();
        menuBar()->setActiveAction(nullptr);
    }
    if (Event->type() == QEvent::WindowUnblocked) WayOn->show();
    return QMainWindow::event(Event);
}

// What nothing inside has had a use for: Enter presses the button with the focus, as in a dialog, and Escape
// the one that closes what stands open.
void MainWindow::keyPressEvent(QKeyEvent* Key)
{
    const int Code = SpecialKey(*Key);
    QAbstractButton* Pressed = nullptr;
    if (Code == Keys::Enter) Pressed = ButtonWithFocus();
    if (Code == Keys::Escape) Pressed = ClosingButton();
    if (!Pressed || Key->isAutoRepeat()) return QMainWindow::keyPressEvent(Key);
    Pressed->click();
}

void MainWindow::closeEvent(QCloseEvent* Event)
{
    Event->accept();
    System().EndProgram();
}

void MainWindow::dragEnterEvent(QDragEnterEvent* Event)
{
    if (!DraggedFile(*Event).isEmpty()) Event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* Event)
{
    const QString Path = DraggedFile(*Event);
    if (Path.isEmpty() || !FileDropped) return;
    Event->acceptProposedAction();
    FileDropped(std::filesystem::path(Path.toStdU16String()));
}

} // namespace velorix

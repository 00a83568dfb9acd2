// Views of what is chosen or pressed: lists, options, buttons, menu entries, tabs.
#include "desktop/Binding.h"
#include "desktop/Icons.h"
#include "desktop/Views.h"

#include <QAbstractItemView>
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QEvent>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QShortcut>
#include <QTabBar>
#include <QTabWidget>
#include <QToolButton>

namespace velorix {
namespace {

void Click(const Handler& Clicked)
{
    FinishTyping();
    Guarded([&] { Clicked(); });
}

// A list of long entries may get narrower than they are where the window has less room; opened, it shows
// them whole.
void SetEntries(QComboBox& View, const std::vector<std::string>& Entries)
{
    constexpr qsizetype LeastLetters = 12;
    qsizetype Longest = 0;
    View.clear();
    for (const std::string& Each : Entries) {
        const QString Entry = QString::fromStdString(Each).trimmed();
        View.addItem(Entry);
        Longest = std::max(Longest, Entry.size());
    }
    View.setMinimumContentsLength(Longest > LeastLetters ? LeastLetters : 0);
    // Drops both widths of the entries before. The policy that follows the entries keeps the lesser one, and
    // resizes the list some time later, which takes it out of the place that it was given.
    QEvent Restyled(QEvent::StyleChange);
    QCoreApplication::sendEvent(&View, &Restyled);
    View.updateGeometry();
    View.view()->setMinimumWidth(std::max(View.view()->minimumWidth(), View.sizeHint().width()));
}

// Qt's group keeps one of its options checked; the record may have none.
void ForceChecked(QRadioButton& View, bool Checked)
{
    View.setAutoExclusive(false);
    View.setChecked(Checked);
    View.setAutoExclusive(true);
    if (!Checked || !View.parentWidget()) return;
    // The Tab key goes to the option that is set, the arrows from there to the others.
    for (auto* Each : View.parentWidget()->findChildren<QRadioButton*>(Qt::FindDirectChildrenOnly))
        Each->setFocusPolicy(Each == &View ? Qt::StrongFocus : Qt::ClickFocus);
}

// The caption says what a button does; the tool tip only says more.
void NameByCaption(QWidget& View)
{
    View.setAccessibleName(QString());
    View.setAccessibleDescription(View.toolTip());
}

// Ctrl+Tab and Ctrl+Shift+Tab, from any field: a list would take the keys for a search among its entries.
void StepWithKeys(QTabWidget* Tabs)
{
    const auto Step = [Tabs](int Direction) {
        int Tab = Tabs->currentIndex();
        do Tab = (Tab + Direction + Tabs->count()) % Tabs->count();
        while (!Tabs->isTabVisible(Tab) && Tab != Tabs->currentIndex());
        Tabs->setCurrentIndex(Tab);
    };
    for (const auto& [Keys, Direction] : {std::pair("Ctrl+Tab", 1), std::pair("Ctrl+Shift+Tab", -1)}) {
        auto* const Shortcut = new QShortcut(QKeySequence(Keys), Tabs);
        Shortcut->setContext(Qt::WidgetWithChildrenShortcut);
        QObject::connect(Shortcut, &QShortcut::activated, Tabs,
                         [Step, Direction = Direction] { Step(Direction); });
    }
}

} // namespace

QComboBox* View(ComboBox& Record)
{
    auto* const View = new QComboBox;
    IgnoreStrayWheel(View);
    Follow(Record.List, View, [&Record, View](const std::vector<std::string>& Entries) {
        SetEntries(*View, Entries);
        View->setCurrentIndex(Record.ListIndex);
    });
    Follow(Record.ListIndex, View, [View](int Index) { View->setCurrentIndex(Index); });
    QObject::connect(View, &QComboBox::currentIndexChanged, View,
                     [&Record, View](int Index) { Enter(Record.ListIndex, Index, View); });
    QObject::connect(View, &QComboBox::activated, View, [&Record] { Guarded([&] { Record.Click(); }); });
    Attach(Record, View);
    return View;
}

QListWidget* OpenView(ComboBox& Record)
{
    constexpr int Space = 2; // around an entry
    auto* const View = new QListWidget;
    View->setSpacing(Space);
    View->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    Follow(Record.List, View, [&Record, View](const std::vector<std::string>& Entries) {
        View->clear();
        for (const std::string& Each : Entries) View->addItem(QString::fromStdString(Each).trimmed());
        View->setCurrentRow(Record.ListIndex);
        View->ensurePolished(); // its letters have their size
        View->setFixedHeight(View->count() * (View->sizeHintForRow(0) + 2 * Space) + 2 * View->frameWidth());
    });
    Follow(Record.ListIndex, View, [View](int Index) { View->setCurrentRow(Index); });
    QObject::connect(View, &QListWidget::currentRowChanged, View,
                     [&Record, View](int Index) { Enter(Record.ListIndex, Index, View); });
    QObject::connect(View, &QListWidget::itemClicked, View, [&Record] { Guarded([&] { Record.Click(); }); });
    Attach(Record, View);
    return View;
}

QRadioButton* View(OptionButton& Record)
{
    auto* const View = new QRadioButton;
    Follow(Record.Caption, View,
           [View](const std::string& Text) { View->setText(QString::fromStdString(Text)); });
    Follow(Record.Value, View, [View](bool Value) { ForceChecked(*View, Value); });
    QObject::connect(View, &QRadioButton::clicked, View,
                     [&Record, View] { Enter(Record.Value, true, View); });
    Attach(Record, View);
    NameByCaption(*View);
    return View;
}

QCheckBox* View(CheckBox& Record)
{
    auto* const View = new QCheckBox;
    Follow(Record.Caption, View,
           [View](const std::string& Text) { View->setText(QString::fromStdString(Text)); });
    Follow(Record.Value, View, [View](bool Value) { View->setChecked(Value); });
    QObject::connect(View, &QCheckBox::clicked, View,
                     [&Record, View](bool Ticked) { Enter(Record.Value, Ticked, View); });
    Attach(Record, View);
    NameByCaption(*View);
    return View;
}

QPushButton* View(CommandButton& Record)
{
    auto* const View = new QPushButton;
    Follow(Record.Caption, View,
           [View](const std::string& Text) { View->setText(QString::fromStdString(Text)); });
    QObject::connect(View, &QPushButton::clicked, View, [&Record] { Click(Record.Click); });
    Attach(Record, View);
    if (!Record.Caption.Get().empty()) NameByCaption(*View);
    return View;
}

QToolButton* ToolView(CommandButton& Record, const QString& IconName)
{
    auto* const View = new QToolButton;
    View->setIcon(DrawnIcon(IconName));
    View->setAutoRaise(true);
    QObject::connect(View, &QToolButton::clicked, View, [&Record] { Click(Record.Click); });
    Attach(Record, View);
    return View;
}

QTabWidget* View(TabControl& Record, const std::vector<QWidget*>& Pages)
{
    auto* const View = new QTabWidget;
    for (std::size_t Page = 0; Page < Pages.size(); ++Page)
        View->addTab(Pages[Page], QString::fromStdString(Record.TabCaptions.at(Page)));
    Follow(Record.Tab, View, [View](int Tab) { View->setCurrentIndex(Tab); });
    Follow(Record.TabVisible, View, [&Record, View](const std::vector<bool>& Shown) {
        for (int Tab = 0; Tab < View->count(); ++Tab) {
            const bool Wanted = Shown.at(static_cast<std::size_t>(Tab));
            // A call that changes nothing would make the bar forget that an earlier one has.
            if (View->isTabVisible(Tab) != Wanted) View->setTabVisible(Tab, Wanted);
            View->setTabEnabled(Tab, Wanted); // Ctrl+Tab would go to a hidden page
        }
        Record.Tab.Assign(View->currentIndex(), View); // a page that goes gives way to its neighbour
    });
    QObject::connect(View, &QTabWidget::currentChanged, View,
                     [&Record, View](int Tab) { Enter(Record.Tab, Tab, View); });
    Attach(Record, View);
    RaiseEvents(Record, View->tabBar()); // which takes the focus
    View->setToolTip(QString());
    StepWithKeys(View);
    return View;
}

QAction* View(MenuItem& Record)
{
    auto* const View = new QAction(qApp);
    View->setMenuRole(QAction::NoRole);
    View->setToolTip(QString::fromStdString(Record.ToolTip));
    Follow(Record.Caption, View,
           [View](const std::string& Text) { View->setText(QString::fromStdString(Text)); });
    Follow(Record.Visible, View, [View](bool Visible) { View->setVisible(Visible); });
    Follow(Record.Enabled, View, [View](bool Enabled) { View->setEnabled(Enabled); });
    QObject::connect(View, &QAction::triggered, View, [&Record] { Click(Record.Click); });
    QObject::connect(View, &QAction::hovered, View, [&Record] { Guarded([&] { Record.MouseMove(); }); });
    return View;
}

} // namespace velorix

// The pages, and above them the buttons of page and size.
#include "desktop/PreviewWindow.h"

#include "desktop/FormRows.h"
#include "desktop/PagesView.h"

#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QToolButton>
#include <QVBoxLayout>

#include <cmath>

namespace velorix {
namespace {

constexpr QSize WindowSize(960, 900);

class PreviewWindow : public QDialog {
public:
    PreviewWindow(QWidget* Owner, const std::vector<PrintedPage>& Shown, std::function<void()> Save);

private:
    QWidget* PageButtons();
    QWidget* SizeButtons();
    QToolButton* Button(const QString& Face, const QString& Name, const QKeySequence& Keys,
                        std::function<void()> Do);
    void Follow();

    const std::vector<PrintedPage>& Pages;
    PagesView* const View;
    QSpinBox* const Number = new QSpinBox;
    QLabel* const Scale = Text("");
    QToolButton* ToWidth = nullptr;
    QToolButton* ToPage = nullptr;
};

PreviewWindow::PreviewWindow(QWidget* Owner, const std::vector<PrintedPage>& Shown,
                             std::function<void()> Save)
    : QDialog(Owner,
              Qt::Dialog | Qt::WindowTitleHint | Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint)
    , Pages(Shown)
    , View(new PagesView(Shown))
{
    resize(WindowSize.boundedTo(screen()->availableSize() * 0.9));
    NameField(View, "Pages");

    auto* const ToFile = new QPushButton("&Save as PDF...");
    auto* const Close = new QPushButton("&Close");
    for (QPushButton* Each : {ToFile, Close}) Each->setAutoDefault(false);
    connect(ToFile, &QPushButton::clicked, this, std::move(Save));
    connect(Close, &QPushButton::clicked, this, &QDialog::accept);

    auto* const Layout = new QVBoxLayout(this);
    Layout->setContentsMargins(0, Gap, 0, 0);
    QWidget* const Bar = InRow({PageButtons(), nullptr, SizeButtons(), nullptr, ToFile, Close});
    Bar->layout()->setContentsMargins(Gap, 0, Gap, 0);
    Layout->addWidget(Bar);
    Layout->addWidget(View, 1);
    View->Changed = [this] { Follow(); };
    View->setFocus();
    Follow();
}

QToolButton* PreviewWindow::Button(const QString& Face, const QString& Name, const QKeySequence& Keys,
                                   std::function<void()> Do)
{
    auto* const Made = new QToolButton;
    Made->setText(Face);
    Made->setToolTip(Name + " (" + Keys.toString(QKeySequence::NativeText) + ")");
    Made->setFocusPolicy(Qt::TabFocus);
    NameField(Made, Name);
    // A shortcut of the button's own would wait for it to be shown as pressed.
    connect(new QShortcut(Keys, this), &QShortcut::activated, this, Do);
    connect(Made, &QToolButton::clicked, this, std::move(Do));
    return Made;
}

QWidget* PreviewWindow::PageButtons()
{
    const int Count = static_cast<int>(Pages.size());
    QToolButton* const Back = Button("", "Previous page", QKeySequence("Ctrl+PgUp"),
                                     [this] { View->GoTo(View->CurrentPage() - 1); });
    QToolButton* const Next =
        Button("", "Next page", QKeySequence("Ctrl+PgDown"), [this] { View->GoTo(View->CurrentPage() + 1); });
    Back->setArrowType(Qt::UpArrow);
    Next->setArrowType(Qt::DownArrow);
    Number->setRange(1, Count);
    Number->setButtonSymbols(QAbstractSpinBox::NoButtons);
    Number->setAlignment(Qt::AlignRight);
    Number->setKeyboardTracking(false);
    connect(Number, &QSpinBox::valueChanged, this, [this](int Wanted) { View->GoTo(Wanted - 1); });
    QLabel* const Caption = Text("&Page");
    TieCaption(Caption, Number);
    return InRow({Back, Next, Caption, Number, Text(QString("of %1").arg(Count))});
}

QWidget* PreviewWindow::SizeButtons()
{
    QToolButton* const Smaller =
        Button("\u2212", "Smaller", QKeySequence("Ctrl+-"), [this] { View->Zoom(-1); });
    QToolButton* const Larger = Button("+", "Larger", QKeySequence("Ctrl++"), [this] { View->Zoom(1); });
    ToWidth =
        Button("Width", "Fit the width", QKeySequence("Ctrl+1"), [this] { View->FitTo(PageFit::Width); });
    ToPage = Button("Whole page", "Fit the whole page", QKeySequence("Ctrl+0"),
                    [this] { View->FitTo(PageFit::WholePage); });
    for (QToolButton* Each : {ToWidth, ToPage}) Each->setCheckable(true);
    Scale->setAlignment(Qt::AlignCenter);
    Scale->setMinimumWidth(Scale->fontMetrics().horizontalAdvance("400 %"));
    return InRow({Smaller, Scale, Larger, ToWidth, ToPage});
}

// What title and bar tell of page and size.
void PreviewWindow::Follow()
{
    const int Page = View->CurrentPage();
    const QSignalBlocker Silent(Number);
    Number->setValue(Page + 1);
    setWindowTitle("Print Preview: " + QString::fromStdString(Pages[static_cast<std::size_t>(Page)].Section));
    Scale->setText(QString("%1 %").arg(std::lround(100 * View->Scale())));
    ToWidth->setChecked(View->Fit() == PageFit::Width);
    ToPage->setChecked(View->Fit() == PageFit::WholePage);
}

} // namespace

void ShowPreview(QWidget* Owner, const std::vector<PrintedPage>& Pages, std::function<void()> Save)
{
    PreviewWindow(Owner, Pages, std::move(Save)).exec();
}

} // namespace velorix

// Search, history and text of the help.
#include "desktop/HelpWindow.h"

#include "desktop/FormRows.h"
#include "desktop/Style.h"

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QImage>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QScreen>
#include <QScrollBar>
#include <QShortcut>
#include <QSignalBlocker>
#include <QSplitter>
#include <QSvgRenderer>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextTable>
#include <QToolButton>

#include <algorithm>
#include <numeric>

namespace velorix {
namespace {

constexpr QSize WindowSize(900, 640);

// A dialog's window stays over its owner's.
constexpr Qt::WindowFlags Flags =
    Qt::Dialog | Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint | Qt::WindowTitleHint;

QToolButton* StepButton(Qt::ArrowType Arrow, const QString& Name, const QKeySequence& Keys)
{
    auto* const Button = new QToolButton;
    Button->setArrowType(Arrow);
    Button->setAutoRaise(true);
    Button->setShortcut(Keys);
    Button->setToolTip(Name + " (" + Keys.toString() + ")");
    NameField(Button, Name);
    return Button;
}

// Thin lines and some air; the reader of Markdown leaves tables without.
void FormatTables(QTextDocument& Document)
{
    constexpr int Padding = 4;
    for (QTextFrame* Each : Document.rootFrame()->childFrames()) {
        auto* const Table = qobject_cast<QTextTable*>(Each);
        if (!Table) continue;
        QTextTableFormat Format = Table->format();
        Format.setCellPadding(Padding);
        Format.setCellSpacing(0);
        Format.setBorder(1);
        Format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
        Format.setBorderBrush(Colors().Border);
        Format.setBorderCollapse(true);
        Format.setTopMargin(Gap);
        Format.setBottomMargin(Gap);
        Table->setFormat(Format);
    }
}

// Room above headings and below lists, of which it leaves little.
void FormatBlocks(const QTextDocument& Document)
{
    for (QTextBlock Block = Document.begin().next(); Block.isValid(); Block = Block.next()) {
        QTextBlockFormat Format = Block.blockFormat();
        const bool IsHeading = Format.headingLevel() > 0;
        if (!IsHeading && (Block.textList() || !Block.previous().textList())) continue;
        Format.setTopMargin(IsHeading ? 2 * Gap : Gap);
        QTextCursor(Block).setBlockFormat(Format);
    }
}

// A topic's address is its place in their list.
QUrl AddressOf(int Topic)
{
    return QUrl("topic:" + QString::number(Topic));
}

int TopicOf(const QUrl& Address)
{
    return Address.path().toInt();
}

// A picture of the help's text, by the name of its file, no wider than told; nothing when there is none.
QVariant Picture(const QString& Name, int Widest)
{
    constexpr int Least = 300; // to be legible
    QSvgRenderer Drawing(":/help/" + Name);
    if (!Drawing.isValid()) return {};
    const QSize Own = Drawing.defaultSize();
    const QSize Size = Own.scaled(qMax(Widest, Least), Own.height(), Qt::KeepAspectRatio);
    const double Scale = qGuiApp->devicePixelRatio();
    QImage Drawn(Size * Scale, QImage::Format_ARGB32_Premultiplied);
    Drawn.fill(Qt::transparent);
    QPainter Painter(&Drawn);
    Drawing.render(&Painter);
    Painter.end();
    Drawn.setDevicePixelRatio(Scale);
    return Drawn;
}

// A browser of topics in place of files.
class TopicBrowser : public QTextBrowser {
public:
    explicit TopicBrowser(const std::vector<HelpTopic>& AllTopics)
        : Topics(AllTopics)
    {
    }

    QVariant loadResource(int Kind, const QUrl& Address) override
    {
        if (Kind == QTextDocument::ImageResource) return Picture(Address.fileName(), TextWidth());
        const auto Topic = static_cast<std::size_t>(TopicOf(Address));
        return Topic < Topics.size() ? Topics[Topic].Text : QString();
    }

private:
    // Between the margins, when a long text has brought the scroll bar up.
    int TextWidth() const
    {
        return maximumViewportSize().width() - verticalScrollBar()->sizeHint().width() -
               2 * static_cast<int>(document()->documentMargin());
    }

    const std::vector<HelpTopic>& Topics;
};

} // namespace

HelpWindow::HelpWindow(std::vector<HelpTopic> AllTopics, QWidget* Owner)
    : QWidget(Owner, Flags)
    , Topics(std::move(AllTopics))
    , Listed(Topics.size())
{
    std::iota(Listed.begin(), Listed.end(), 0);
    setWindowTitle("Velorix Help");
    setAttribute(Qt::WA_DeleteOnClose);
    resize(WindowSize.boundedTo(screen()->availableSize() - FrameAllowance));

    auto* const Panes = new QSplitter;
    Panes->addWidget(TopicPane());
    Panes->addWidget(TextPane());
    Panes->setStretchFactor(1, 1);
    Panes->setChildrenCollapsible(false);
    auto* const Layout = new QVBoxLayout(this);
    Layout->setContentsMargins(Gap, Gap, Gap, Gap);
    Layout->addWidget(Panes);

    connect(new QShortcut(QKeySequence::Cancel, this), &QShortcut::activated, this, &QWidget::close);
    connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, Words,
            [this] { Words->setFocus(); });
}

QWidget* HelpWindow::TopicPane()
{
    Words = new QLineEdit;
    Words->setPlaceholderText("Search for help on...");
    Words->setClearButtonEnabled(true);
    NameField(Words, "Search for help on");
    List = new QListWidget;
    List->setSpacing(2);
    List->setSizeAdjustPolicy(QListWidget::AdjustToContents); // the rest is the text's
    NameField(List, "Topics");
    for (const HelpTopic& Each : Topics) List->addItem(Each.Title);
    connect(Words, &QLineEdit::textChanged, this, &HelpWindow::Search);
    connect(List, &QListWidget::currentRowChanged, this, [this](int Row) {
        if (Row >= 0) Choose(Listed[static_cast<std::size_t>(Row)]);
    });
    return InColumn({Words, List});
}

QWidget* HelpWindow::TextPane()
{
    QToolButton* const Back = StepButton(Qt::LeftArrow, "Back", QKeySequence::Back);
    QToolButton* const Forward = StepButton(Qt::RightArrow, "Forward", QKeySequence::Forward);
    Text = new TopicBrowser(Topics);
    connect(Back, &QToolButton::clicked, Text, &QTextBrowser::backward);
    connect(Forward, &QToolButton::clicked, Text, &QTextBrowser::forward);
    connect(Text, &QTextBrowser::backwardAvailable, Back, &QWidget::setEnabled);
    connect(Text, &QTextBrowser::forwardAvailable, Forward, &QWidget::setEnabled);
    connect(Text, &QTextBrowser::sourceChanged, this,
            [this](const QUrl& Address) { ShowChosen(TopicOf(Address)); });

    Text->setOpenLinks(false);
    Text->document()->setDocumentMargin(2 * Gap);
    NameField(Text, "Help text");
    connect(Text, &QTextBrowser::anchorClicked, this,
            [this](const QUrl& Link) { ShowTopic(Link.fragment().toInt()); });
    return InColumn({InRow({Back, Forward, nullptr}), Text});
}

void HelpWindow::Ask(int Number, QWidget* Owner)
{
    if (Owner != this && Owner != parentWidget()) {
        const QPoint Corner = pos();
        setParent(Owner, Flags);
        move(Corner);
    }
    ShowTopic(Number);
    show();
    raise();
    activateWindow();
    Words->setFocus();
    Words->selectAll();
}

void HelpWindow::ShowTopic(int Number)
{
    int Found = 0;
    for (std::size_t Index = 0; Index < Topics.size(); ++Index)
        if (Topics[Index].Number == Number) Found = static_cast<int>(Index);
    Choose(Found);
}

// The topics come in the order of what they have to tell. The one that shows stays if the list has it.
void HelpWindow::Search(const QString& Wanted)
{
    std::vector<qsizetype> Weights;
    for (const HelpTopic& Each : Topics) Weights.push_back(Relevance(Each, Wanted));
    const auto WeightOf = [&Weights](int Topic) { return Weights[static_cast<std::size_t>(Topic)]; };
    std::iota(Listed.begin(), Listed.end(), 0);
    std::stable_sort(Listed.begin(), Listed.end(),
                     [&WeightOf](int One, int Other) { return WeightOf(One) > WeightOf(Other); });
    {
        const QSignalBlocker Silent(List);
        for (int Row = 0; Row < List->count(); ++Row) {
            const int Topic = Listed[static_cast<std::size_t>(Row)];
            List->item(Row)->setText(Topics[static_cast<std::size_t>(Topic)].Title);
            List->item(Row)->setHidden(WeightOf(Topic) < 0);
        }
        List->setCurrentRow(RowOf(TopicOf(Text->source())));
    }
    const int Best = Listed.front();
    if (WeightOf(TopicOf(Text->source())) < std::min<qsizetype>(WeightOf(Best), 1)) Choose(Best);
    MarkWords();
    if (const auto Marks = Text->extraSelections(); !Marks.isEmpty()) {
        QTextCursor Hit = Marks.constFirst().cursor;
        Hit.clearSelection();
        Text->setTextCursor(Hit); // brings it into view
    }
}

int HelpWindow::RowOf(int Topic) const
{
    return static_cast<int>(std::find(Listed.begin(), Listed.end(), Topic) - Listed.begin());
}

// The browser remembers the steps.
void HelpWindow::Choose(int Topic)
{
    Text->setSource(AddressOf(Topic), QTextDocument::MarkdownResource);
}

// Another topic has come up, by a choice or by a step through the choices.
void HelpWindow::ShowChosen(int Topic)
{
    if (List->item(RowOf(Topic))->isHidden()) Words->clear(); // the search that left it out is over
    {
        const QSignalBlocker Silent(List);
        List->setCurrentRow(RowOf(Topic));
    }
    FormatTables(*Text->document());
    FormatBlocks(*Text->document());
    MarkWords();
}

// Shows the words that are searched for, those inside of others only where none begins so.
void HelpWindow::MarkWords()
{
    QList<QTextEdit::ExtraSelection> Marks;
    QTextCharFormat Format;
    Format.setBackground(Colors().Tint);
    const QTextDocument& Document = *Text->document();
    for (const QString& Word : Words->text().split(' ', Qt::SkipEmptyParts)) {
        const QRegularExpression Beginning = BeginningWith(Word);
        const bool Begins = !Document.find(Beginning).isNull();
        QTextCursor At(Text->document());
        while (!(At = Begins ? Document.find(Beginning, At) : Document.find(Word, At)).isNull())
            Marks.push_back({At, Format});
    }
    Text->setExtraSelections(Marks);
}

} // namespace velorix

// Palette and style sheet.
#include "desktop/Style.h"

#include "desktop/Icons.h"

#include <QApplication>
#include <QFontInfo>
#include <QPalette>
#include <QProxyStyle>
#include <QTabBar>

namespace velorix {
namespace {

// clang-format off
const ColorSet LightColors = {
    .Dark = false,
    .Window = "#eef2f5", .Card = "#ffffff", .Field = "#ffffff", .Button = "#e9eef2", .Border = "#d3dbe2",
    .Ink = "#1d2830", .Muted = "#596773", .Disabled = "#98a4ae", .Accent = "#1f6f9f", .Tint = "#cfe3ef"};
const ColorSet DarkColors = {
    .Dark = true,
    .Window = "#1a2026", .Card = "#232b32", .Field = "#1b2228", .Button = "#323d46", .Border = "#3b4751",
    .Ink = "#e4eaef", .Muted = "#a3b0bb", .Disabled = "#8e9ba6", .Accent = "#5db4e3", .Tint = "#2b4a5e"};
// clang-format on

const ColorSet* InUse = &LightColors;

// Message boxes with the program's own drawings, and buttons without any.
class ProgramStyle : public QProxyStyle {
public:
    ProgramStyle()
        : QProxyStyle("Fusion")
    {
    }

    int styleHint(StyleHint Hint, const QStyleOption* Option, const QWidget* Widget,
                  QStyleHintReturn* Answer) const override
    {
        if (Hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
        return QProxyStyle::styleHint(Hint, Option, Widget, Answer);
    }

    // A tab with the focus is tinted; the toolkit's own mark would lie over its text.
    void drawPrimitive(PrimitiveElement Element, const QStyleOption* Option, QPainter* Painter,
                       const QWidget* Widget) const override
    {
        if (Element == PE_FrameFocusRect && qobject_cast<const QTabBar*>(Widget)) return;
        QProxyStyle::drawPrimitive(Element, Option, Painter, Widget);
    }

    QIcon standardIcon(StandardPixmap Kind, const QStyleOption* Option, const QWidget* Widget) const override
    {
        switch (Kind) {
        case SP_MessageBoxInformation: return DrawnIcon("message-information");
        case SP_MessageBoxQuestion: return DrawnIcon("message-question");
        case SP_MessageBoxWarning: return DrawnIcon("message-exclamation");
        case SP_MessageBoxCritical: return DrawnIcon("message-critical");
        default: return QProxyStyle::standardIcon(Kind, Option, Widget);
        }
    }
};

QPalette PaletteOf(const ColorSet& Set)
{
    QPalette Palette(Set.Button, Set.Window);
    Palette.setColor(QPalette::Base, Set.Field);
    Palette.setColor(QPalette::AlternateBase, Set.Window);
    Palette.setColor(QPalette::ToolTipBase, Set.Card);
    Palette.setColor(QPalette::PlaceholderText, Set.Muted);
    Palette.setColor(QPalette::Link, Set.Accent);
    Palette.setColor(QPalette::Highlight, Set.Dark ? QColor("#2f7fae") : Set.Accent);
    for (QPalette::ColorRole Role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText})
        Palette.setColor(Role, Set.Ink);
    for (QPalette::ColorRole Role : {QPalette::BrightText, QPalette::HighlightedText})
        Palette.setColor(Role, Qt::white);
    for (QPalette::ColorRole Role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        Palette.setColor(QPalette::Disabled, Role, Set.Disabled);
    Palette.setColor(QPalette::Disabled, QPalette::Base, Set.Window);
    Palette.setColor(QPalette::Disabled, QPalette::Highlight, Set.Border);
    return Palette;
}

// Frames are cards with their heading inside; a frame in a frame is only a group of rows. Headings and
// figures of the results name themselves by their "role".
constexpr const char* Sheet = R"(
QGroupBox {
    background: @card; border: 1px solid @border; border-radius: 6px; padding-top: 1.75em;
    font-weight: bold;
}
QGroupBox::title {
    subcontrol-origin: padding; subcontrol-position: top left; left: 8px; top: 0.55em;
    color: @ink;
}
QGroupBox::title:disabled { color: @disabled; }
QGroupBox[role="rows"] { border: none; padding-top: 0; background: transparent; }
QGroupBox[role="rows"]::title { width: 0; height: 0; color: transparent; }
QGroupBox[role="bar"] {
    background: transparent; border: none; border-bottom: 1px solid @border; border-radius: 0; padding-top: 0;
}
QGroupBox[role="bar"]::title { width: 0; height: 0; color: transparent; }
QFrame[role="card"] { background: @card; border: 1px solid @border; border-radius: 6px; }
QLabel[role="screen"] { font-size: @title; font-weight: bold; }
QLabel[role="heading"] { font-weight: bold; }
QLabel[role="muted"] { color: @muted; }
QLabel[role="figure"] { font-size: @figure; font-weight: bold; color: @accent; }
QListWidget { background: @field; border: 1px solid @border; }
QListWidget:focus { border-color: @accent; }
QTabWidget::pane { border: none; border-top: 1px solid @border; }
QTabBar { qproperty-drawBase: 0; }
QTabBar::tab {
    padding: 0.45em 1.1em; color: @muted; border: none; border-bottom: 2px solid transparent;
}
QTabBar::tab:hover { color: @ink; }
QTabBar::tab:selected { color: @ink; border-bottom: 2px solid @accent; }
QTabBar::tab:focus { background: @tint; }
QMenu, QComboBox QAbstractItemView { border: 1px solid @disabled; }
QMenu::separator { height: 1px; margin: 2px 4px; background: @border; }
QMenuBar { border-bottom: 1px solid @border; }
QStatusBar { border-top: 1px solid @border; }
QStatusBar::item { border: none; }
)";

QString SheetOf(const ColorSet& Set)
{
    QString Text = Sheet;
    const std::pair<const char*, QColor> Names[] = {
        {"@card", Set.Card},   {"@border", Set.Border}, {"@ink", Set.Ink},       {"@disabled", Set.Disabled},
        {"@field", Set.Field}, {"@muted", Set.Muted},   {"@accent", Set.Accent}, {"@tint", Set.Tint}};
    for (const auto& [Name, Color] : Names) Text.replace(Name, Color.name());
    const auto Larger = [](double Factor) {
        return QString::number(QFontInfo(QApplication::font()).pointSizeF() * Factor, 'f', 1) + "pt";
    };
    Text.replace("@title", Larger(1.1)).replace("@figure", Larger(1.35));
    return Text;
}

// The outlines of fields are drawn in a shade of the window behind them, which vanishes when that is dark,
// and with the focus in a shade of what is selected. The fields that don't paint the window's colour
// themselves can be told a lighter one.
void LiftOutlines(QPalette Palette)
{
    Palette.setColor(QPalette::Highlight, Colors().Accent);
    Palette.setColor(QPalette::HighlightedText, Colors().Field);
    for (const char* Kind : {"QComboBox", "QPushButton"}) QApplication::setPalette(Palette, Kind);
    Palette.setColor(QPalette::Window, "#8494a0");
    for (const char* Kind :
         {"QLineEdit", "QPlainTextEdit", "QAbstractSpinBox", "QRadioButton", "QCheckBox", "QProgressBar"})
        QApplication::setPalette(Palette, Kind);
}

} // namespace

const ColorSet& Colors()
{
    return *InUse;
}

void ApplyStyle(QApplication& Program)
{
    constexpr int HalfLight = 128;
    const bool Dark = QApplication::palette().color(QPalette::Window).lightness() < HalfLight;
    InUse = Dark ? &DarkColors : &LightColors;
    QApplication::setStyle(new ProgramStyle);
    QApplication::setPalette(PaletteOf(*InUse));
    if (Dark) LiftOutlines(PaletteOf(*InUse));
    Program.setStyleSheet(SheetOf(*InUse));
}

} // namespace velorix

// Drawings in the colours of the style in use.
#include "desktop/Icons.h"

#include "desktop/Style.h"

#include <QFile>
#include <QIconEngine>
#include <QPainter>

#include <array>

namespace velorix {
namespace {

struct Recoloring {
    const char* Drawn; // as the drawing has it, for light desktops
    const char* Dark;
};

constexpr std::array<Recoloring, 12> Recolorings = {{
    {"#24313c", "#dbe3e9"}, // lines
    {"#1f6f9f", "#5db4e3"}, // what the drawing is about
    {"#cfe3ef", "#2b4a5e"}, // water
    {"#9fc7dd", "#3f6d88"}, // pipe
    {"#e8f1f6", "#212a32"}, // sky
    {"#d6e4e0", "#27343a"}, // hills
    {"#b9d0c6", "#2f4343"}, // ground
    {"#b9a68c", "#54493b"}, // natural ground
    {"#9c8769", "#6d604f"}, // its hatching
    {"#cdbb9d", "#6b5f4c"}, // backfill
    {"#e2d6bd", "#857759"}, // blanket
    {"#efe3b4", "#a3935f"}, // bedding
}};
constexpr std::size_t OfIcons = 3; // the first ones are those that icons are drawn in

QByteArray Drawing(const QString& Name)
{
    QFile File(":/icons/" + Name + ".svg");
    if (!File.open(QIODevice::ReadOnly)) qFatal("There is no drawing %s", qPrintable(Name));
    return File.readAll();
}

QByteArray InColorsInUse(const QString& Name)
{
    QByteArray Text = Drawing(Name);
    if (Colors().Dark)
        for (const Recoloring& Each : Recolorings) Text.replace(Each.Drawn, Each.Dark);
    return Text;
}

// An icon in other colours than its own: lines, what it is about, and surfaces.
QByteArray Recolored(const QString& Name, const std::array<QColor, OfIcons>& Wanted)
{
    QByteArray Text = Drawing(Name);
    for (std::size_t Index = 0; Index < OfIcons; ++Index)
        Text.replace(Recolorings[Index].Drawn, Wanted[Index].name().toLatin1());
    return Text;
}

QByteArray InMode(const QString& Name, QIcon::Mode Mode)
{
    const ColorSet& Set = Colors();
    switch (Mode) {
    case QIcon::Disabled: return Recolored(Name, {Set.Disabled, Set.Disabled, Set.Window});
    case QIcon::Selected: return Recolored(Name, {Qt::white, Qt::white, Set.Accent});
    default: return InColorsInUse(Name);
    }
}

class DrawingEngine : public QIconEngine {
public:
    DrawingEngine(QString DrawingName, bool OfMenu)
        : Name(std::move(DrawingName))
        , InMenu(OfMenu)
    {
    }

    void paint(QPainter* Painter, const QRect& Place, QIcon::Mode Mode, QIcon::State) override
    {
        const bool Highlit = InMenu && Mode == QIcon::Active;
        QSvgRenderer(InMode(Name, Highlit ? QIcon::Selected : Mode)).render(Painter, Place);
    }

    QPixmap pixmap(const QSize& Size, QIcon::Mode Mode, QIcon::State State) override
    {
        QPixmap Image(Size);
        Image.fill(Qt::transparent);
        QPainter Painter(&Image);
        paint(&Painter, QRect(QPoint(0, 0), Size), Mode, State);
        return Image;
    }

    QIconEngine* clone() const override { return new DrawingEngine(Name, InMenu); }

private:
    const QString Name;
    const bool InMenu;
};

} // namespace

QIcon DrawnIcon(const QString& Name)
{
    return QIcon(new DrawingEngine(Name, false));
}

QIcon MenuIcon(const QString& Name)
{
    return QIcon(new DrawingEngine(Name, true));
}

PictureView::PictureView(const QString& Name, int Width, const QString& Description, QWidget* Owner)
    : QWidget(Owner)
    , NaturalWidth(Width)
{
    Draw(Name);
    setAccessibleName(Description);
    setMaximumSize(Scaled(Width));
}

void PictureView::Draw(const QString& Name)
{
    Drawing.load(InColorsInUse(Name));
    Drawing.setAspectRatioMode(Qt::KeepAspectRatio);
    update();
}

QSize PictureView::Scaled(int Width) const
{
    const QSize Own = Drawing.defaultSize();
    return {Width, Width * Own.height() / Own.width()};
}

QSize PictureView::sizeHint() const
{
    return Scaled(NaturalWidth);
}

QSize PictureView::minimumSizeHint() const
{
    return Scaled(NaturalWidth / 2);
}

void PictureView::paintEvent(QPaintEvent*)
{
    QPainter Painter(this);
    Painter.setRenderHint(QPainter::Antialiasing);
    Drawing.render(&Painter, rect());
}

} // namespace velorix

// The pen, and what it leaves on the display list.
#include "platform/DrawingSurface.h"

#include "base/Arithmetic.h"
#include "platform/Platform.h"

namespace velorix {

DrawingSurface::DrawingSurface(int Width, int Height, std::string Hint)
    : Control(std::move(Hint))
    , Drawn{Width, Height, {}}
{
    Keep(Drawn, CurrentX, CurrentY, InUse);
    DesignIsBack = [this] { View(); };
}

void DrawingSurface::Clear()
{
    Drawn.Items.clear();
    CurrentX = CurrentY = 0;
    View();
}

void DrawingSurface::Line(int X1, int Y1, int X2, int Y2)
{
    Line(X1, Y1, X2, Y2, InUse.Ink);
}

void DrawingSurface::Line(int X1, int Y1, int X2, int Y2, Color Ink)
{
    Add(LineItem{X1, Y1, X2, Y2, Ink, InUse.Width, InUse.Style == DrawStyle::Dashed});
    CurrentX = X2;
    CurrentY = Y2;
}

void DrawingSurface::LineTo(int X, int Y)
{
    Line(RoundToInt32(CurrentX), RoundToInt32(CurrentY), X, Y);
}

void DrawingSurface::FilledBox(int X1, int Y1, int X2, int Y2, Color Fill)
{
    Add(BoxItem{X1, Y1, X2, Y2, Fill});
    CurrentX = X2;
    CurrentY = Y2;
}

void DrawingSurface::Circle(int X, int Y, int Radius, Color Ink)
{
    Add(CircleItem{X, Y, Radius, Ink, InUse.Width});
    CurrentX = X;
    CurrentY = Y;
}

void DrawingSurface::DrawPicture(const StoredPicture& Picture, int X, int Y)
{
    Add(PictureItem{X, Y, Picture.Width, Picture.Height, Picture.Name});
}

void DrawingSurface::PrintText(const std::string& Text)
{
    Add(TextItem{CurrentX, CurrentY, TextWidth(Text), Text, InUse.Face, InUse.Ink});
    CurrentX = 0;
    CurrentY += System().TextHeight(InUse.Face);
}

double DrawingSurface::TextWidth(const std::string& Text) const
{
    return System().TextWidth(Text, InUse.Face);
}

void DrawingSurface::CopyImageToClipboard() const
{
    System().SetClipboardPicture(Drawn);
}

void DrawingSurface::Add(DisplayItem Item)
{
    Drawn.Items.push_back(std::move(Item));
    View();
}

} // namespace velorix

// A surface that plots are drawn on with a pen, as a control of a screen.
#pragma once

#include "platform/Controls.h"
#include "platform/DisplayList.h"

#include <string>

namespace velorix {

enum class DrawStyle { Solid, Dashed };

struct Pen {
    Color Ink = Black;
    int Width = 1; // pixels
    DrawStyle Style = DrawStyle::Solid;
    Font Face;
    bool operator==(const Pen&) const = default;
};

// The size is fixed; a view scales the list to the room that it has. Every operation adds to the display list
// and tells the view. Widths of texts come from the platform.
class DrawingSurface : public Control {
public:
    DrawingSurface(int Width, int Height, std::string Hint = {});

    double ScaleWidth() const { return Drawn.Width; }
    double ScaleHeight() const { return Drawn.Height; }

    void Clear(); // pen position back to the top left; pen and font stay

    void SetForeColor(Color Ink) { InUse.Ink = Ink; }
    void SetDrawWidth(int Pixels) { InUse.Width = Pixels; }
    void SetDrawStyle(DrawStyle Chosen) { InUse.Style = Chosen; }
    void SetFontSize(double Points) { InUse.Face.Size = Points; }
    void SetFontBold(bool Bold) { InUse.Face.Bold = Bold; }
    void SetFontName(std::string Name) { InUse.Face.Name = std::move(Name); }

    // The pen position, where a text starts.
    double CurrentX = 0;
    double CurrentY = 0;

    void Line(int X1, int Y1, int X2, int Y2);
    void Line(int X1, int Y1, int X2, int Y2, Color Ink);
    void LineTo(int X, int Y); // from the pen position
    void FilledBox(int X1, int Y1, int X2, int Y2, Color Fill);
    void Circle(int X, int Y, int Radius, Color Ink);
    void DrawPicture(const StoredPicture& Picture, int X, int Y); // top left at (X, Y)
    void PrintText(const std::string& Text);                      // top left at the pen position
    double TextWidth(const std::string& Text) const;

    void CopyImageToClipboard() const;

    const DisplayList& Image() const { return Drawn; }

    Handler View;                       // set by the attached view: the image has changed
    Event<double, double> PointerMoved; // at (x, y) of the surface
    Event<> RightButtonPressed;

private:
    void Add(DisplayItem Item);

    DisplayList Drawn;
    Pen InUse;
};

} // namespace velorix

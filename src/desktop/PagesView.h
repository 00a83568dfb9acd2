// Printed pages under each other, scrolled and scaled.
#pragma once

#include "platform/PrintedPage.h"

#include <QAbstractScrollArea>

#include <functional>
#include <vector>

namespace velorix {

// How large the pages are: as the window allows, or as the user has set it.
enum class PageFit { Width, WholePage, Free };

class PagesView : public QAbstractScrollArea {
public:
    explicit PagesView(const std::vector<PrintedPage>& Shown);

    std::function<void()> Changed; // another page, or another scale

    int CurrentPage() const; // the one in the middle of the view, from 0
    void GoTo(int Page);     // its top comes to the top

    double Scale() const { return InUse; } // 1 is the size on paper
    PageFit Fit() const { return Follows; }
    void FitTo(PageFit Wanted);
    void Zoom(int Steps);

protected:
    void paintEvent(QPaintEvent* Event) override;
    void resizeEvent(QResizeEvent* Event) override;
    void keyPressEvent(QKeyEvent* Event) override;
    void wheelEvent(QWheelEvent* Event) override;
    void scrollContentsBy(int Right, int Down) override;

private:
    int LastPage() const { return static_cast<int>(Pages.size()) - 1; }
    double PixelsPerTwip() const;
    double FittingScale() const;
    void Rescale(double Wanted);
    void Arrange();

    const std::vector<PrintedPage>& Pages;
    PageFit Follows = PageFit::Width;
    double InUse = 1;
    std::vector<QRectF> Places; // of the pages (pixels), the first page's top and the widest one's left at 0
};

} // namespace velorix

// The view of a PDF viewer: the pages, and the tools that go to a chapter or a page and change the size.
#pragma once

#include "platform/Controls.h"

#include <QPdfDocument>
#include <QPdfView>
#include <QWidget>

class QComboBox;
class QSpinBox;

namespace velorix {

// The pages under each other, as wide as the window until another size is chosen. What stands at the top
// stays there when the size changes.
class PdfPages : public QPdfView {
public:
    explicit PdfPages(QPdfDocument& Shown);
    ~PdfPages() override;

    void GoTo(int Page); // to its top
    int CurrentPage() const;
    void Zoom(int Steps);
    void Fit(ZoomMode Chosen); // the width, or the whole page

protected:
    void showEvent(QShowEvent* Event) override;
    void resizeEvent(QResizeEvent* Event) override;
    void keyPressEvent(QKeyEvent* Key) override;
    void wheelEvent(QWheelEvent* Wheel) override;

private:
    double Top() const; // of what shows, as a part of the document
    void SetTop(double Part);
    double Size() const; // 1 for the size on paper

    QPdfDocument& Document;
    int FirstPage = 0; // until the window has come up
};

class PdfView : public QWidget {
public:
    explicit PdfView(PdfViewer& Shown);
    ~PdfView() override;

    QWidget* Tools() const { return Bar; }

private:
    QWidget* MakeTools();
    void Open(const std::string& Path);
    void Read(const std::string& Path);
    void ShowPage(int Page);
    int PageOf(const QString& Bookmark) const; // the first where there is none

    PdfViewer& Record;
    QPdfDocument Document;
    PdfPages* const Pages;
    QComboBox* Chapters = nullptr;
    QSpinBox* Page = nullptr;
    QWidget* const Bar;
};

PdfView* View(PdfViewer& Record);

} // namespace velorix

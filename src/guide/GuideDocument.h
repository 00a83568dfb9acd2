// The guide, laid out into pages.
#pragma once

#include "guide/Figures.h"
#include "paint/PdfOutline.h"

#include <QString>
#include <QTextDocument>

#include <vector>

class QPdfWriter;

namespace velorix {

class GuideDocument {
public:
    // For the pages of the paper, which must outlive it.
    GuideDocument(const QString& Markdown, const QStringList& FigureFolders, QPdfWriter& Paper);

    int PageCount() const;
    const std::vector<PdfBookmark>& Chapters() const { return Marks; }

    // One page with its head and foot; the painter's units are the dots of the paper.
    void PaintPage(QPainter& Painter, int Page);

private:
    struct Part; // a block or a table, and the room that it wants on one page

    double Dots(double Pixels) const;
    void PutCover();
    std::vector<Part> Parts() const;
    void KeepTogether();
    void FindChapters();
    void FillContents();
    QString ChapterOn(int Page) const;
    void PaintBoxRules(QPainter& Painter, int Page) const;

    QPdfWriter& Paper;
    Figures Drawn;
    QTextDocument Text;
    std::vector<PdfBookmark> Marks;
};

} // namespace velorix

// The figures of the guide: SVG drawings, set as vectors where the text has an image.
#pragma once

#include <QAbstractTextDocumentLayout>
#include <QStringList>
#include <QSvgRenderer>

#include <map>
#include <memory>

namespace velorix {

// Draws the images of a document, in place of the toolkit's own handler, which would draw pixels.
class Figures : public QObject, public QTextObjectInterface {
    Q_OBJECT
    Q_INTERFACES(QTextObjectInterface)

public:
    explicit Figures(double FigureWidth)
        : Width(FigureWidth)
    {
    }

    // Takes over the document's images, looked for in the folders. Throws Failure when there is no such file,
    // or it is no drawing.
    void Load(QTextDocument& Document, const QStringList& Folders);

    QSizeF intrinsicSize(QTextDocument* Document, int Position, const QTextFormat& Format) override;
    void drawObject(QPainter* Painter, const QRectF& Place, QTextDocument* Document, int Position,
                    const QTextFormat& Format) override;

private:
    QSvgRenderer& Drawing(const QTextFormat& Format) const;

    const double Width;                                      // of every figure, in the document's units
    std::map<QString, std::unique_ptr<QSvgRenderer>> Loaded; // by file name
};

} // namespace velorix

// Read-outs and the key of lines.
#include "desktop/ChartParts.h"

#include "desktop/Binding.h"
#include "desktop/FormRows.h"
#include "desktop/Painting.h"
#include "desktop/Style.h"
#include "desktop/Views.h"

#include <QLabel>
#include <QPainter>

namespace velorix {
namespace {

class Stroke : public QWidget {
public:
    explicit Stroke(QColor Shown)
        : Ink(std::move(Shown))
    {
        setFixedSize(24, 12);
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        constexpr int Ends = 3;
        QPainter Painter(this);
        Painter.fillRect(rect(), Colors().Border);
        Painter.fillRect(rect().adjusted(1, 1, -1, -1), Qt::white);
        Painter.fillRect(QRect(Ends, height() / 2 - 1, width() - 2 * Ends, 2), Ink);
    }

private:
    const QColor Ink;
};

} // namespace

QWidget* ReadOut(const char* Name, Label& Value)
{
    QLabel* const Shown = View(Value);
    Shown->setMinimumWidth(Shown->fontMetrics().horizontalAdvance("12345.678 miles"));
    QLabel* const Caption = MutedText(Name);
    QSizePolicy Room = Caption->sizePolicy();
    Room.setRetainSizeWhenHidden(true);
    Caption->setSizePolicy(Room);
    Follow(Value.Caption, Shown, [Shown, Caption](const std::string& Text) {
        Shown->setText(QString::fromStdString(Text));
        Caption->setVisible(!Text.empty());
    });
    return InRow({Caption, Shown});
}

QWidget* LineKey(const std::vector<KeyEntry>& Entries)
{
    std::vector<QWidget*> All;
    for (const KeyEntry& Each : Entries)
        All.insert(All.end(), {new Stroke(ToQColor(Each.Ink)), MutedText(Each.Words)});
    QWidget* const Row = InRow(All);
    Row->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Preferred);
    return Row;
}

} // namespace velorix

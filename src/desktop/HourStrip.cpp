// Fields, focus and painting of the hours.
#include "desktop/HourStrip.h"

#include "desktop/Binding.h"
#include "desktop/Painting.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace velorix {
namespace {

// One hour. Its keys and presses are the strip's affair.
class HourField : public QLabel {
public:
    HourField(Label& Shown, QString ToldName)
        : Record(Shown)
        , Name(std::move(ToldName))
    {
        setAlignment(Qt::AlignCenter);
        setFrameStyle(QFrame::Box | QFrame::Plain);
        setMargin(2);
        Attach(Record, this);
        setAccessibleDescription(toolTip());
        Follow(Record.BackColor, this, [this](Color) { ShowClass(); });
    }

protected:
    // The Tab key comes back to the hour that had the focus last.
    void focusInEvent(QFocusEvent* Focus) override
    {
        for (auto* Each : parentWidget()->findChildren<QLabel*>(Qt::FindDirectChildrenOnly))
            Each->setFocusPolicy(Each == this ? Qt::StrongFocus : Qt::ClickFocus);
        QLabel::focusInEvent(Focus);
        update();
    }

    void focusOutEvent(QFocusEvent* Focus) override
    {
        QLabel::focusOutEvent(Focus);
        update();
    }

    void mouseMoveEvent(QMouseEvent* Move) override { Move->ignore(); } // the toolkit's label keeps it

    void paintEvent(QPaintEvent* Paint) override
    {
        QLabel::paintEvent(Paint);
        if (!hasFocus()) return;
        QPainter Painter(this);
        DrawFrame(Painter, rect(), Qt::black);
        DrawFrame(Painter, rect().adjusted(2, 2, -2, -2), Qt::white);
    }

private:
    // An hour of a foreign file may have no class.
    void ShowClass()
    {
        const Color Back = Record.BackColor;
        const auto Class = std::find_if(RateClasses.begin(), RateClasses.end(),
                                        [Back](const RateClass& Each) { return Each.Fill == Back; });
        const QString ClassName = Class == RateClasses.end() ? QString() : Class->Name;
        setText(QString::fromStdString(Record.Caption) + '\n' + ClassName.left(1));
        setAccessibleName(ClassName.isEmpty() ? Name : Name + ", " + ClassName.toLower());
        PaintBack(*this, Back);
    }

    Label& Record;
    const QString Name;
};

class Strip : public QWidget {
public:
    Strip(Array0<Label, 24>& Shown, const QString& Season)
        : Hours(Shown)
    {
        constexpr int LeastWidth = 22;
        constexpr int Apart = 2;
        auto* const Row = new QHBoxLayout(this);
        Row->setContentsMargins(0, 0, 0, 0);
        Row->setSpacing(Apart);
        for (Label& Each : Hours) {
            auto* const Field =
                new HourField(Each, QString("%1, hour %2").arg(Season).arg(Fields.size() + 1));
            Field->setMinimumWidth(LeastWidth);
            Field->setFocusPolicy(Fields.empty() ? Qt::StrongFocus : Qt::ClickFocus);
            Row->addWidget(Field, 1);
            Fields.push_back(Field);
        }
    }

protected:
    void keyPressEvent(QKeyEvent* Key) override
    {
        const int Hour = Current();
        if (Hour < 0 || Key->modifiers() & ~Qt::KeypadModifier) return Key->ignore();
        switch (Key->key()) {
        case Qt::Key_Left:
        case Qt::Key_Up: return Go(Hour - 1);
        case Qt::Key_Right:
        case Qt::Key_Down: return Go(Hour + 1);
        case Qt::Key_Home: return Go(0);
        case Qt::Key_End: return Go(Last());
        case Qt::Key_Space:
        case Qt::Key_Return:
        case Qt::Key_Enter: return StepClass(Hour);
        default: Key->ignore();
        }
    }

    // The press has given its hour the focus.
    void mousePressEvent(QMouseEvent* Press) override
    {
        Painting = Press->button() == Qt::LeftButton && Current() == HourAt(Press->position().toPoint());
        if (Painting) StepClass(Current());
    }

    void mouseMoveEvent(QMouseEvent* Move) override
    {
        if (!Painting || !(Move->buttons() & Qt::LeftButton)) return;
        const int To = HourAt(Move->position().toPoint());
        for (int At = Current(); At >= 0 && At != To;) { // the pointer may have jumped over some
            const Color Fill = Hours[At].BackColor;
            At += At < To ? 1 : -1;
            Go(At);
            Guarded([&] { Hours[At].BackColor = Fill; });
        }
    }

private:
    int Last() const { return static_cast<int>(Fields.size()) - 1; }

    // The hour with the focus; -1 when it is elsewhere.
    int Current() const
    {
        const auto Found =
            std::find_if(Fields.begin(), Fields.end(), [](const QWidget* Each) { return Each->hasFocus(); });
        return Found == Fields.end() ? -1 : static_cast<int>(Found - Fields.begin());
    }

    // The hour over or under the place; beyond an end the last one there.
    int HourAt(QPoint Place) const
    {
        const auto Found = std::find_if(Fields.begin(), Fields.end(), [Place](const QWidget* Each) {
            return Place.x() <= Each->geometry().right();
        });
        return std::min(static_cast<int>(Found - Fields.begin()), Last());
    }

    void Go(int Hour) { Fields.at(static_cast<std::size_t>(std::clamp(Hour, 0, Last())))->setFocus(); }

    void StepClass(int Hour)
    {
        Guarded([&] { Hours[Hour].Click(); });
    }

    Array0<Label, 24>& Hours;
    std::vector<QWidget*> Fields;
    bool Painting = false;
};

} // namespace

QWidget* HourStrip(Array0<Label, 24>& Hours, const QString& Season)
{
    return new Strip(Hours, Season);
}

} // namespace velorix

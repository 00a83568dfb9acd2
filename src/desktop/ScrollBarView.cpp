// How slider and number field share one value.
#include "desktop/ScrollBarView.h"

#include "desktop/Binding.h"
#include "desktop/Views.h"

#include <QFocusEvent>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QSlider>
#include <QSpinBox>

#include <cmath>

namespace velorix {
namespace {

// Shows a whole number as so many times a power of ten, and steps as a scroll bar does.
class NumberField : public QSpinBox {
public:
    NumberField(const ScrollBar& Shown, int ShownDecimals)
        : Record(Shown)
        , Decimals(ShownDecimals)
    {
        connect(lineEdit(), &QLineEdit::inputRejected, this,
                [this] { Guarded([this] { Record.Refused(); }); });
    }

    // The page keys come as ten steps.
    void stepBy(int Steps) override
    {
        constexpr int PageSteps = 10;
        const bool Page = std::abs(Steps) == PageSteps;
        setSingleStep(Page ? Record.LargeChange : Record.SmallChange);
        QSpinBox::stepBy(Page ? Steps / PageSteps : Steps);
    }

protected:
    // As by the Tab key, when the program or a page gives the focus.
    void focusInEvent(QFocusEvent* Focus) override
    {
        QSpinBox::focusInEvent(Focus);
        if (Focus->reason() == Qt::OtherFocusReason) selectAll();
    }

    QString textFromValue(int Value) const override
    {
        return QString::number(Value / Scale(), 'f', Decimals);
    }

    int valueFromText(const QString& Text) const override
    {
        return static_cast<int>(std::lround(Number(Text) * Scale()));
    }

    QValidator::State validate(QString& Text, int& Position) const override
    {
        if (Decimals == 0) return QSpinBox::validate(Text, Position);
        bool Readable = false;
        const double Value = Number(Text, &Readable) * Scale();
        if (!Readable || Value < minimum())
            return Number(Text + '0', &Readable) >= 0 && Readable ? QValidator::Intermediate
                                                                  : QValidator::Invalid;
        return Value <= maximum() ? QValidator::Acceptable : QValidator::Invalid;
    }

private:
    double Scale() const { return std::pow(10.0, Decimals); }

    double Number(QString Text, bool* Readable = nullptr) const
    {
        Text.remove(suffix());
        return Text.trimmed().toDouble(Readable);
    }

    const ScrollBar& Record;
    const int Decimals;
};

} // namespace

ScrollBarView::ScrollBarView(ScrollBar& Shown, const QString& Suffix, int Decimals)
    : Record(Shown)
    , Slider(new QSlider(Qt::Horizontal))
    , Box(new NumberField(Shown, Decimals))
{
    auto* const Row = new QHBoxLayout(this);
    Row->setContentsMargins(0, 0, 0, 0);
    Row->addWidget(Slider, 1);
    Row->addWidget(Box);
    setFocusProxy(Box);

    Slider->setSingleStep(Record.SmallChange);
    Slider->setPageStep(Record.LargeChange);
    Slider->setToolTip(QString::fromStdString(Record.ToolTip));
    Box->setSuffix(Suffix);
    Box->setLocale(QLocale::c());
    Box->setAlignment(Qt::AlignRight);
    Box->setKeyboardTracking(false);
    IgnoreStrayWheel(Slider);
    IgnoreStrayWheel(Box);
    Slider->setFocusProxy(Box); // one stop of the Tab key for both

    for (Property<int>* Each : {&Record.Min, &Record.Max, &Record.Value})
        Follow(*Each, this, [this](int) { ShowState(); });
    connect(Slider, &QSlider::valueChanged, this, [this](int Value) { Take(Value); });
    connect(Box, &QSpinBox::valueChanged, this, [this](int Value) { Take(Value); });
    Attach(Record, this, Box);
}

void ScrollBarView::ShowState()
{
    const QSignalBlocker QuietSlider(Slider);
    const QSignalBlocker QuietBox(Box);
    Slider->setRange(Record.Min, Record.Max);
    Box->setRange(Record.Min, Record.Max);
    Slider->setValue(Record.Value);
    Box->setValue(Record.Value);
}

void ScrollBarView::Take(int Value)
{
    Enter(Record.Value, Value, this);
    ShowState();
}

// The layout names the pair; both parts go by that name.
void ScrollBarView::showEvent(QShowEvent* Event)
{
    QWidget::showEvent(Event);
    Slider->setAccessibleName(accessibleName());
    Box->setAccessibleName(accessibleName());
}

ScrollBarView* View(ScrollBar& Record, const QString& Suffix)
{
    return new ScrollBarView(Record, Suffix);
}

ScrollBarView* HundredthsView(ScrollBar& Record, const QString& Suffix)
{
    constexpr int Decimals = 2;
    return new ScrollBarView(Record, Suffix, Decimals);
}

} // namespace velorix

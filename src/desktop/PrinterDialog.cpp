// The system's printers in one list with the PDF file and the preview.
#include "desktop/PrinterDialog.h"

#include "desktop/FormRows.h"

#include <QComboBox>
#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QPrinterInfo>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

namespace velorix {
namespace {

constexpr int DialogMargin = 16;
constexpr int MostCopies = 99;

// What an entry of the list stands for.
constexpr int TargetRole = Qt::UserRole;
constexpr int HintRole = Qt::UserRole + 1;

QString HintOf(const QString& Printer)
{
    const QPrinterInfo Info = QPrinterInfo::printerInfo(Printer);
    QStringList Parts = {Info.description(), Info.location()};
    Parts.removeAll(QString());
    Parts.removeAll(Printer);
    return Parts.isEmpty() ? QString("A printer of this system") : Parts.join(", ");
}

class PrinterDialog : public QDialog {
public:
    PrinterDialog(QWidget* Owner, const PrintSettings& Earlier, PrinterQuestion Why);

    PrintSettings Chosen() const;

private:
    void FillTargets();
    void AddTarget(const QString& Name, PrintTarget Target, const QString& Hint);
    void Choose(const PrintSettings& Earlier);
    QWidget* Buttons();

    QComboBox* const Targets = new QComboBox;
    QLabel* const Hint = MutedText("");
    QSpinBox* const Copies = new QSpinBox(this);
};

PrinterDialog::PrinterDialog(QWidget* Owner, const PrintSettings& Earlier, PrinterQuestion Why)
    : QDialog(Owner)
{
    const bool Setup = Why == PrinterQuestion::Setup;
    setWindowTitle(Setup ? "Printer Setup" : "Print");
    FillTargets();
    connect(Targets, &QComboBox::currentIndexChanged, this,
            [this] { Hint->setText(Targets->currentData(HintRole).toString()); });
    Choose(Earlier);
    Copies->setRange(1, MostCopies);
    Copies->setValue(Earlier.Copies);

    auto* const Box = new QGroupBox("Printer");
    FormRows Rows(Box);
    Rows.AddLong("&Print to", Targets);
    Rows.AddLong("", Elided(Hint));
    if (Setup)
        Copies->hide();
    else
        Rows.AddLong("&Copies", Copies, new QWidget);

    auto* const Layout = new QVBoxLayout(this);
    Layout->setContentsMargins(DialogMargin, DialogMargin, DialogMargin, DialogMargin);
    Layout->setSpacing(DialogMargin - 4);
    Layout->addWidget(Box);
    Layout->addWidget(Buttons());
    Layout->setSizeConstraint(QLayout::SetFixedSize);
}

void PrinterDialog::FillTargets()
{
    constexpr int Characters = 36;
    Targets->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    Targets->setMinimumContentsLength(Characters);
    const QStringList Printers = QPrinterInfo::availablePrinterNames();
    for (const QString& Each : Printers) AddTarget(Each, PrintTarget::Printer, HintOf(Each));
    if (!Printers.isEmpty()) Targets->insertSeparator(Targets->count());
    AddTarget("PDF file", PrintTarget::PdfFile, "All pages in one file");
    AddTarget("Preview", PrintTarget::Preview, "All pages in a window");
}

void PrinterDialog::AddTarget(const QString& Name, PrintTarget Target, const QString& Told)
{
    Targets->addItem(Name);
    Targets->setItemData(Targets->count() - 1, static_cast<int>(Target), TargetRole);
    Targets->setItemData(Targets->count() - 1, Told, HintRole);
}

void PrinterDialog::Choose(const PrintSettings& Earlier)
{
    const auto Find = [this](PrintTarget Target, const QString& Printer) {
        for (int Index = 0; Index < Targets->count(); ++Index)
            if (Targets->itemData(Index, TargetRole) == static_cast<int>(Target) &&
                (Printer.isEmpty() || Targets->itemText(Index) == Printer))
                return Index;
        return -1;
    };
    const int Found = Find(Earlier.Target, Earlier.Printer);
    Targets->setCurrentIndex(-1); // so that the hint is told
    Targets->setCurrentIndex(Found >= 0 ? Found : Find(PrintTarget::PdfFile, {}));
}

QWidget* PrinterDialog::Buttons()
{
    auto* const Ok = new QPushButton("&OK");
    auto* const Cancel = new QPushButton("Ca&ncel");
    Ok->setDefault(true);
    connect(Ok, &QPushButton::clicked, this, &QDialog::accept);
    connect(Cancel, &QPushButton::clicked, this, &QDialog::reject);
    return InRow({nullptr, Ok, Cancel});
}

PrintSettings PrinterDialog::Chosen() const
{
    const auto Target = static_cast<PrintTarget>(Targets->currentData(TargetRole).toInt());
    return {.Target = Target,
            .Printer = Target == PrintTarget::Printer ? Targets->currentText() : QString(),
            .Copies = Copies->value()};
}

} // namespace

PrintSettings FirstSettings()
{
    const QString Printer = QPrinterInfo::defaultPrinterName();
    if (Printer.isEmpty()) return {};
    return {.Target = PrintTarget::Printer, .Printer = Printer};
}

std::optional<PrintSettings> AskForPrinter(QWidget* Owner, const PrintSettings& Earlier, PrinterQuestion Why)
{
    PrinterDialog Dialog(Owner, Earlier, Why);
    if (Dialog.exec() != QDialog::Accepted) return std::nullopt;
    return Dialog.Chosen();
}

} // namespace velorix

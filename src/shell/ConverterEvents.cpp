// Lists, conversion and closing of the unit converter.
#include "shell/ConverterEvents.h"

#include "base/Failure.h"
#include "input/KeyFilters.h"
#include "input/ViewState.h"
#include "platform/Platform.h"
#include "screens/ConverterScreen.h"
#include "shell/Help.h"
#include "tools/Converter.h"

namespace velorix {
namespace {

// A result stands only as long as what it belongs to.
void DropResult()
{
    frmConverter.lblConvert.Caption = "=";
}

void FillUnits()
{
    const std::vector<std::string> Texts = ConverterUnitTexts(frmConverter.lstUnit.Text());
    for (ComboBox& Each : frmConverter.comUnit) {
        Each.ListIndex = -1;
        Each.List = Texts;
    }
    for (ComboBox& Each : frmConverter.comUnit) Each.ListIndex = 0;
}

void LoadConverter()
{
    frmConverter.lstUnit.List = ConverterGroupTexts();
    frmConverter.lstUnit.ListIndex = 0;
}

// The one try of this command.
void ConvertPressed()
{
    try {
        frmConverter.lblConvert.Caption =
            "= " + ConvertUnits(frmConverter.lstUnit.Text(), frmConverter.comUnit[0].Text(),
                                frmConverter.comUnit[1].Text(), frmConverter.txtConvert.Text.Get());
    } catch (const Failure&) {
        Warn(ConversionFailed);
    }
}

void CloseConverter()
{
    frmConverter.Unload();
    RestoreScreens();
}

} // namespace

void ConnectConverter()
{
    frmConverter.Load = LoadConverter;
    frmConverter.lstUnit.Change = frmConverter.lstUnit.Click = FillUnits;
    for (ComboBox& Each : frmConverter.comUnit) Each.Change = Each.Click = DropResult;
    FilterKeys(frmConverter.txtConvert, NumberKeys);
    frmConverter.txtConvert.KeyPress = [Filter = frmConverter.txtConvert.KeyPress](int& Key) {
        DropResult(); // be the key taken or not
        Filter(Key);
    };
    frmConverter.txtConvert.Change = DropResult; // pasted or cut
    frmConverter.sscConvert.Click = ConvertPressed;
    frmConverter.sscExit.Click = frmConverter.Close = CloseConverter;
    HelpOn(frmConverter.sscHelp, 8500);
}

} // namespace velorix

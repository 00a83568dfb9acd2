// The import wizard as it opens.
#include "screens/ImportWizard.h"

namespace velorix {

ImportScreen::ImportScreen()
    : Screen("frmImport", "  IMPORT PROFILE DATA WIZARD")
{
    int Number = 0;
    for (Image& Each : imgWiz) {
        Each.Picture = "w" + std::to_string(++Number);
        Each.Visible = false;
    }
    imgWizard.Picture = imgWiz[1].Picture.Get();
    imgWizard2.Picture = imgWiz[1].Picture.Get();

    constexpr std::array<const char*, 3> Steps = {
        "The first step is this screen, providing instructions on how to import an existing profile data set "
        "from a spreadsheet type program.",
        "The next step is to goto the spreadsheet, select the relevant data (pipeline profile), copy it to "
        "the clipboard and return to this program in which you will paste the data.",
        "The final step shows your imported data and if you are satisfied that the data is correct import it "
        "into the existing project."};
    for (int Step = 1; Step <= 3; ++Step) {
        lblStepName[Step].Caption = "STEP " + std::to_string(Step) + ":";
        lblStepText[Step].Caption = Steps.at(static_cast<std::size_t>(Step - 1));
    }

    msgFImport.FixedCols = 1;
    msgFImport.Centred = true;
    msgFImport.HeaderHeight = 500;
    msgFImport.ColWidth = {800, 1400, 1400, 1200, 1200, 1200, 1200, 1200};
    for (Control* Each :
         std::initializer_list<Control*>{&fraStep2, &fraStep3, &lblPaste, &lblAdvice, &sscPrevious})
        Each->Visible = false;
    DesignEnds();
}

} // namespace velorix

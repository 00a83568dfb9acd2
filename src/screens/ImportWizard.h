// The wizard that takes a pipeline profile from a spreadsheet by way of the clipboard.
#pragma once

#include "base/Arrays.h"
#include "platform/Controls.h"
#include "platform/Grid.h"
#include "platform/Screen.h"

namespace velorix {

constexpr int WizardPictures = 19;

struct ImportScreen : Screen {
    ImportScreen();

    Array1<Image, WizardPictures> imgWiz; // the pictures of the animation, never shown themselves

    Frame fraStep1{"STEP 1"};
    Array1<Label, 3> lblStepName;
    Array1<Label, 3> lblStepText;
    Label lblGoOn{"To go to the next step click on the &Next button."};
    Image imgWizard;

    Frame fraStep2{"STEP 2"};
    Label lblSelect{"Goto your spreadsheet, select the data and click on the paste button below. "};
    Image imgWizard2;
    CommandButton sscPaste{"         PASTE", "Paste the profile data copied to the clipboard"};
    Label lblPaste{"DATA WAS SUCCESSFULLY PASTED !"}; // shows when a paste succeeded, and tells so

    Frame fraStep3{"STEP 3"};
    Label lblReview{
        "The final step shows your imported data and if satisfied, the data will be imported into "
        "the existing project. (Click on Finish)"};
    Label lblProfileData{"Profile data to be imported"};
    Grid msgFImport{2, 8, "Profile data to be imported"};
    Label lblAdvice; // what to change in the spreadsheet

    CommandButton sscPrevious{"&Previous", "Previous step"};
    CommandButton sscNext{"&Next", "Next step"};
    CommandButton sscCancel{"&Cancel", "Cancel the import profile data wizard"};
    CommandButton sscHelp{"&Help", "Help"};

    Timer tmrWizard{100};
    Timer tmrPaste{100};
};

inline ImportScreen frmImport;

} // namespace velorix

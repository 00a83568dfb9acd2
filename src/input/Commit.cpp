// The steps of a commit in their order, over the table of inputs.
#include "input/Commit.h"

#include "base/NumberText.h"
#include "base/Text.h"
#include "input/InputFields.h"
#include "input/Session.h"
#include "model/ProjectFile.h"
#include "model/WorkingSet.h"
#include "platform/Platform.h"
#include "screens/Lcc.h"
#include "screens/MainWindow.h"

#include <cctype>
#include <utility>

namespace velorix {
namespace {

// The button that opens the pane of a box; nullptr for a box that stands on its page.
CommandButton* ButtonTo(const TextBox& Box)
{
    for (auto* Column : {&frmLCC.txtH, &frmLCC.txtQ, &frmLCC.txtEfficiency})
        for (const TextBox& Each : *Column)
            if (&Each == &Box) return &frmLCC.sscPumpcurve;
    return nullptr;
}

// The page on top stays, whichever page holds the box: a box of another page or pane waits for
// GoToPointedOut.
void PointOut(TextBox& Box, const std::string& Problem)
{
    Warn(Problem, "Error !");
    frmLCC.Visible = true;
    System().SetFocus(Box);
    PointedOut = &Box;
    GoToPointedOut();
}

// Looks for an empty box; in between, grids are read.
bool InputIsComplete()
{
    for (const InputField* Each : RequestedFields()) {
        const Request& Asked = Each->Asked;
        if (!Each->When.IsTaken() || (Asked.Under && !Asked.Under->Value)) continue;
        if (Asked.Instead) {
            Asked.Instead();
        } else if (Trimmed(Each->Box->Text.Get()).empty()) {
            PointOut(*Each->Box, Asked.IfEmpty);
            return false;
        }
    }
    return true;
}

// A box is known to the user by its hint: "Enter the fixed demand" asks for the "Fixed demand".
std::string NameOf(const TextBox& Box)
{
    const std::string Request = "Enter the ";
    std::string Name = Box.ToolTip;
    if (Name.starts_with(Request)) Name.erase(0, Request.size());
    if (!Name.empty()) Name[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(Name[0])));
    return Name;
}

// Of the boxes out of use too.
bool NumbersAreReadable()
{
    for (const InputField* Each : RequestedFields()) {
        if (!Each->Number || !Each->When.IsTaken()) continue;
        try {
            ParseSingle(Each->Box->Text.Get());
        } catch (const Failure& Problem) { // an end of its own: the user is led to the box
            PointOut(*Each->Box, NameOf(*Each->Box) + ": " + Problem.what());
            return false;
        }
    }
    return true;
}

void TakeInputs()
{
    for (const InputField& Each : InputFields)
        if (Each.Take && Each.When.IsTaken()) Each.Take();
}

} // namespace

void CommitProject()
{
    Committing = 1;
    PointedOut = nullptr;
    TakeOptions();
    if (!InputIsComplete() || !NumbersAreReadable()) return;
    TakeInputs();
    CopyWorkingSetToRecord();
    MDIProject.proProgressBar.Value = 70;
    Committing = 0;
    if (SaveAs == 1) return;

    WriteProjectFile(FileName, ProjectRecord, ShortFile::Fails);
    LoadProject();
}

void GoToPointedOut()
{
    if (!PointedOut) return;
    CommandButton* const Button = ButtonTo(*PointedOut);
    if (System().IsInReach(*PointedOut))
        System().SetFocus(*std::exchange(PointedOut, nullptr));
    else if (Button && System().IsInReach(*Button))
        System().SetFocus(*Button);
}

} // namespace velorix

// Progress of a load or save.
#include "input/Progress.h"

#include "platform/Platform.h"
#include "screens/MainWindow.h"

namespace velorix {

void ShowProgress(int Percent)
{
    MDIProject.proProgressBar.Visible = true;
    MDIProject.proProgressBar.Value = Percent;
    System().Repaint();
}

void ShowDoing(const std::string& Doing)
{
    MDIProject.lblProgessBar.Caption = Doing;
    MDIProject.lblProgessBar.Visible = true;
    System().Repaint();
}

void HideProgress()
{
    MDIProject.lblProgessBar.Visible = false;
    MDIProject.lblProgessBar.Caption = "";
    MDIProject.proProgressBar.Visible = false;
}

} // namespace velorix

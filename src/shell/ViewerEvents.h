// The viewers that open from the input screen: the pipeline profile and the pump curve.
#pragma once

namespace velorix {

// Connects frmView, frmViewRoughness and frmPumpView, and the commands that open them.
void ConnectViewers();

// Saves the project, solves its flows and shows its profile. Where the save fails, or a year has no duty
// point, the input screen stays.
void ViewProfile();

// Brings the loaded profile view back, with the year and the gradeline that the plots show by now.
void ShowProfileAgain();

// Takes the pump curve from its boxes and shows it, once they are complete.
void ViewPumpCurve();

} // namespace velorix

// The step-by-step guide: looked for, opened and closed.
#pragma once

#include <filesystem>
#include <string>

namespace velorix {

// Connects frmPDFView and the help buttons of the results. The chapters that they open bear the captions of
// its pages.
void ConnectGuide();

// The guide's place in the program's folder.
std::filesystem::path GuideFile();

// Shows the guide from the chapter on, by its bookmark; from the beginning when it is empty.
void ShowGuideAt(const std::string& Chapter);

} // namespace velorix

// What can be printed, told once: the sections of a print run in their order, and what only a button prints.
#pragma once

#include "screens/Print.h"

#include <span>

namespace velorix {

// What must stand before a section can be printed.
enum class Needs { Project, PumpingProject, Analysis };

struct PrintSection {
    const char* Name;  // on the command line
    const char* Title; // bookmark of a PDF file
    CheckBox& Box;     // on frmPrint
    Needs Needed;
    void (*Print)();
    const char* Failure; // what the user is told when it can't be printed
};

constexpr int SectionCount = 12;
std::span<const PrintSection, SectionCount> PrintSections();

} // namespace velorix

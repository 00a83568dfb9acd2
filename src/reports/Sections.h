// What can be printed, told once: the sections of a print run in their order, and what only a button prints.
#pragma once

#include "screens/Print.h"

#include <cstdint>
#include <span>

namespace velorix {

// What must stand before a section can be printed.
enum class Needs { Project, PumpingProject, Analysis };
bool Stands(Needs Needed);

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

// What a button prints by itself, as it was last drawn.
struct DirectPrint {
    const char* Name;
    const char* Title;
    CommandButton& Button;
    std::int16_t PageNoBefore; // the heads count on from it
    void (*Print)();
    void (*Redraw)() = nullptr; // goes ahead where the picture is to follow what is chosen
};

constexpr int DirectPrintCount = 7;
std::span<const DirectPrint, DirectPrintCount> DirectPrints();

extern std::int16_t PrintGraphYear; // year that frmSelectYear1 has asked for, from 1

void ResetPrintGraphYear();

} // namespace velorix

// The plots that can be drawn without a screen: which there are, what each needs, how it is asked for.
#pragma once

#include "platform/DrawingSurface.h"
#include "platform/ScriptedPlatform.h"

#include <optional>
#include <span>
#include <string>

namespace velorix {

// What is asked of a plot; absent is what the desktop shows first.
struct PlotView {
    std::optional<int> Year; // index of the design year, from 1
    std::optional<double> Begin;
    std::optional<double> End;
};

// What must have been worked out ahead of a plot; each includes those before it.
enum class PlotBasis { Inputs, Flows, Results, ResultsWithTables };

// What begin and end of a plot are: chainages of the profile, or rates in percent.
enum class PlotRange { None, Chainage, Rate };

struct Plot {
    const char* Name;
    const char* Title;
    DrawingSurface& Surface;
    PlotBasis Basis;
    bool HasYear;
    PlotRange Range;
    bool (*Applies)();             // to the kind of system
    void (*Draw)(const PlotView&); // on the surface; throws Failure for a view that there isn't
};

// In the order in which the desktop has them.
std::span<const Plot> AllPlots();

// The year of a view. Throws Failure for one that the open project's design life doesn't have.
int YearOf(const PlotView& View);

// Works the basis out for the open project. False when it doesn't stand, which the user has been told.
bool WorkOut(PlotBasis Basis);

extern const char* const NothingToDraw; // why a plot that has told nothing is empty

// Draws the plot for the open project, whose basis has been worked out, before the window system in use.
// Throws Failure with the reason when there is no picture: the plot doesn't apply, has no such view, or has
// told the user why it can't be drawn.
const DisplayList& DrawPlot(const Plot& Wanted, const PlotView& View, const ScriptedPlatform& Windows);

} // namespace velorix

// What the pointer is at on a plot, in the labels beside it.
#pragma once

namespace velorix {

// Each sets the cross hair and writes the read-out for the point (x, y) of its surface (twips); "Out of
// range" in all labels for a point outside the data. The frame that is read is whatever its slot holds.
void ReadHydraulicPlot(double x, double y);
void ReadProfilePlot(double x, double y);
void ReadRoughnessProfilePlot(double x, double y);
void ReadPumpCurve(double x, double y);
void ReadIrrGraph(double x, double y);

} // namespace velorix

// The viewers: the pipeline profile from the input screen and beside the roughness tool, the pump curve, and
// the graph of the internal rate of return.
#pragma once

#include "platform/Controls.h"
#include "platform/DrawingSurface.h"
#include "platform/Screen.h"
#include "screens/Surfaces.h"

#include "base/Arrays.h"

namespace velorix {

// What both profile viewers hold.
struct ProfileViewer : Screen {
    using Screen::Screen;

    DrawingSurface picGraph{ProfileWidth, ProfileHeight, "Pipeline profile"};
    Label lblKs;
    Label lblPumping;
    Label lblX; // what the pointer is at
    Label lblY;
    ComboBox comBegin{{}, "Select the begin distance of the plot"};
    ComboBox comEnd{{}, "Select the end distance of the plot"};
    ScrollBar hscYears{1, 100, 5, "Select the year of the plot"};
    Label lblYear;
    CheckBox chkHydraulic{"Hydraulic gradeline", "Tick to show the hydraulic gradeline"};
    CommandButton sscView{"&View", "Click to redraw the plot for the chosen distances"};
    CommandButton sscChangeView{"&Change view", "Click to redraw the plot for the chosen year"};
    CommandButton sscPrintView{"Pri&nt", "Click to print the plot"};
    CommandButton sscHelp{"", "Help"};
    CommandButton sscOK{"&OK", "Click to return"};
};

struct ProfileViewScreen : ProfileViewer {
    ProfileViewScreen()
        : ProfileViewer("frmView", "  PIPELINE PROFILE")
    {
        chkHydraulic.Value = true;
        sscPrintView.Enabled = false; // until there is paper to print on
        DesignEnds();
    }

    Label lblFlowrate;
};

constexpr int ScenarioCount = 8;

struct RoughnessViewScreen : ProfileViewer {
    RoughnessViewScreen()
        : ProfileViewer("frmViewRoughness", "  PIPELINE PROFILE WITH MEASURED DATA")
    {
        constexpr Color Inks[ScenarioCount] = {
            Rgb(0xC0, 0x00, 0x00), Rgb(0xE6, 0x9F, 0x00), Rgb(0x7B, 0x3F, 0x00), Rgb(0x00, 0x9E, 0x73),
            Rgb(0x00, 0xA0, 0xC0), Rgb(0x80, 0x00, 0x80), Rgb(0xCC, 0x79, 0xA7), Rgb(0x60, 0x60, 0x60)};
        chkHydraulic.Value = true;
        sscPrintView.Enabled = false;
        for (int Index = 0; Index < ScenarioCount; ++Index) {
            chkScenario[Index].Caption = "Scenario " + std::to_string(Index + 1);
            chkScenario[Index].Value = true;
            linScenario[Index].BackColor = Inks[Index];
        }
        DesignEnds();
    }

    Label lblMaxFlow;
    Array0<CheckBox, ScenarioCount> chkScenario;
    Array0<Label, ScenarioCount> linScenario; // the legend's lines
};

struct PumpViewScreen : Screen {
    PumpViewScreen()
        : Screen("frmPumpView", "  PUMP CURVE")
    {
        lblGridColor.Visible = false;
        lblGridColor.BackColor = CurveGridColor;
        sscPrintView.Enabled = false;
        DesignEnds();
    }

    DrawingSurface picGraph{GraphWidth, GraphHeight, "Pump curve and efficiency"};
    Label lblQ; // what the pointer is at
    Label lblH;
    Label lblDEff;
    Label lblGridColor; // hidden: its colour is that of the grid
    CommandButton sscPrintView{"Pri&nt", "Click to print the pump curve"};
    CommandButton sscHelp{"", "Help"};
    CommandButton sscOK{"&OK", "Click to return"};
};

struct IrrViewScreen : Screen {
    IrrViewScreen()
        : Screen("frmIRRView", "  INTERNAL RATE OF RETURN")
    {
        sscPrintView.Enabled = false;
        DesignEnds();
    }

    DrawingSurface picIRR{IrrWidth, IrrHeight,
                          "Income less cost by rate. No curve: narrow the range of rates"};
    Label lblX; // what the pointer is at
    Label lblY;
    ScrollBar hsbBegin{0, 20000, 100,
                       "Select the first rate of the graph, then View. A higher one suits large amounts"};
    Label lblBeginIRR;
    ScrollBar hsbEnd{0, 20000, 100, "Select the last rate of the graph, then View"};
    Label lblEndIRR;
    CommandButton sscView{"&View", "Click to redraw the graph for the chosen rates"};
    CommandButton sscPrintView{"Pri&nt", "Click to print the graph"};
    CommandButton sscHelp{"", "Help"};
    CommandButton sscOK{"&OK", "Click to return to the results"};
};

inline ProfileViewScreen frmView;
inline RoughnessViewScreen frmViewRoughness;
inline PumpViewScreen frmPumpView;
inline IrrViewScreen frmIRRView;

} // namespace velorix

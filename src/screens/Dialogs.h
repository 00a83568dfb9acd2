// The small dialogs: opening, kind of system, preferences, row deletion, notices.
#pragma once

#include "base/Arrays.h"
#include "platform/Controls.h"
#include "platform/Screen.h"

namespace velorix {

// The agreement, ahead of everything else.
struct AgreeScreen : Screen {
    AgreeScreen()
        : Screen("frmAgree", "  AGREEMENT")
    {
        DesignEnds();
    }

    Label Text1{"", "The agreement"};
    CommandButton sscAccept{"&Accept", "Accept the agreement and start the program"};
    CommandButton sscCancel{"&Cancel", "Leave the program"};
};

// The picture that shows while the program comes up.
struct IntroScreen : Screen {
    IntroScreen()
        : Screen("frmIntro", "")
    {
        DesignEnds();
    }

    Label lblVersion;
    Label lblCounter; // dots that count from 1 to 10 and round
    Timer tmrIntro{4000};
    Timer tmrWelcome{150};
};

// Gravity or pumping, for a new project.
struct LccTypeScreen : Screen {
    LccTypeScreen();

    OptionButton optGravity{"&Gravity system", "Click for a gravity system"};
    OptionButton optPumping{"&Pumping system", "Click for a pumping system"};
    CommandButton sscContinue{"&Continue", "Click to start the new project"};
    CommandButton sscCancel{"C&ancel", "Click to return to the present project"};
    CommandButton sscHelp{"&Help", "Help"};
};

struct PrefScreen : Screen {
    PrefScreen();

    OptionButton optMetric{"&Metric units", "Click for metric units"};
    OptionButton optUS{"&US units", "Click for US units"};
    OptionButton optRand{"&Rand (R)", "Click for amounts in Rand"};
    OptionButton optDollars{"&Dollar ($)", "Click for amounts in Dollar"};
    ScrollBar hsbPG{0, 5000, 100, "Select the preliminary and general allowance"};
    Label lblPG;
    ScrollBar hsbContingencies{0, 5000, 100, "Select the allowance for contingencies"};
    Label lblContingencies;
    CommandButton sscOK{"&OK", "Click to keep the preferences"};
    CommandButton sscCancel{"&Cancel", "Click to leave the preferences as they were"};
    CommandButton sscHelp{"&Help", "Help"};
};

// Shows the row that is about to be deleted.
struct DeleteRowScreen : Screen {
    DeleteRowScreen()
        : Screen("frmDeleteRow", "  DELETE ROW")
    {
        DesignEnds();
    }

    Label lblNode;              // its number
    Array0<Label, 7> lblDelete; // elevation to description
    CommandButton sscYes{"&Yes", "Delete the row"};
    CommandButton sscNo{"&No", "Keep the row"};
    CommandButton sscHelp{"&Help", "Help"};
};

struct DisclaimerScreen : Screen {
    DisclaimerScreen()
        : Screen("frmDisclaimer", "  DISCLAIMER")
    {
        DesignEnds();
    }

    Array1<Label, 7> Lines;
    CommandButton sscOK{"&OK", "Return to the program"};
};

struct AboutScreen : Screen {
    AboutScreen()
        : Screen("frmAbout", "  ABOUT VELORIX")
    {
        DesignEnds();
    }

    Label lblVersion;
    Label lblBuildDate;
    Label lblNotice;
    CommandButton sscSystemInfo{"&System Info...", "View the information on this system"};
    CommandButton sscOK{"&OK", "Return to the program"};
};

inline AgreeScreen frmAgree;
inline IntroScreen frmIntro;
inline LccTypeScreen frmLCCType;
inline PrefScreen frmPref;
inline DeleteRowScreen frmDeleteRow;
inline DisclaimerScreen frmDisclaimer;
inline AboutScreen frmAbout;

} // namespace velorix

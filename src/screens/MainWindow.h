// The main window: the frame that holds all screens, with its menus, tool buttons and status bar.
#pragma once

#include "platform/Controls.h"
#include "platform/Screen.h"

namespace velorix {

// The window's title while no project name is known.
inline const std::string ProgramTitle = "  Velorix";

struct MainWindowScreen : Screen {
    MainWindowScreen();

    MenuItem mnuFile{"&File"};
    MenuItem mnuNew{"&New Project", "Start a new project"};
    MenuItem mnuOpen{"&Open Project", "Open an existing project"};
    MenuItem mnuSave{"&Save Project", "Save the project"};
    MenuItem mnuSaveAs{"Save Project &As...", "Save the project under another name"};
    MenuItem mnuDelete{"&Delete Project", "Delete the project's file"};
    MenuItem munImportExport{"&Import && Export"};
    MenuItem mnuImport{"&Import Profile", "Import a pipeline profile from a spreadsheet"};
    MenuItem mnuExport{"&Export results"};
    MenuItem mnuView{"Vie&w"};
    MenuItem mnuGeneral{"&Input Data", "View the input data"};
    MenuItem mnuResults{"&Results", "View the results"};
    MenuItem mnuPrint{"&Print Project", "Print the project"};
    MenuItem mnuExit{"E&xit", "Exit the program"};
    MenuItem mnuExit1{"E&xit", "Exit the program"};
    MenuItem mnuAnalyse{"&Analyse", "Analyse the project"};
    MenuItem mnuRoughness{"&Roughness calibration", "Calculate the roughness from measured pressures"};
    MenuItem mnuPreferences{"&Preferences", "Select units, currency and allowances"};
    MenuItem mnuHelp{"&Help"};
    MenuItem mnuContents{"&Contents", "Help"};
    MenuItem mnuHelpOn{"&Search For Help On...", "Help"};
    MenuItem mnuStep{"Step-&by-Step LCCA guide", "View the guide to life cycle costing"};
    MenuItem mnuConvert{"&Unit converter", "Convert units"};
    MenuItem mnuMethod{"&Methodology", "Help on the methods of calculation"};
    MenuItem mnuDisclaimer{"&Disclaimer", "View the disclaimer"};
    MenuItem mnuAbout{"&About", "About the program"};

    // The menu of the profile table's rows, opened over the table.
    MenuItem mnuFGridRows{"Rows"};
    MenuItem mnuFGridAddRow{"Add a row at the end of the profile"};
    MenuItem mnuFGridInsRow{"Insert a row before the current row"};
    MenuItem mnuFGridDelRow{"Delete the last row of the profile"};
    MenuItem mnuFGridExtrRow{"Delete the current row"};

    CommandButton sscNew{"", "Start a new project"};
    CommandButton sscOpen{"", "Open an existing project"};
    CommandButton sscSave{"", "Save the project"};
    CommandButton sscPrint{"", "Print the project"};
    CommandButton sscHelp{"", "Help"};

    Frame sspProject;
    Label lblWayOn; // in the empty workspace: how to go on
    Label lblWelcome{"Welcome to the Velorix Program"};
    Label lblSystem;     // the kind of system of the open project
    Label lblProgessBar; // what a load or save is doing
    ProgressBar proProgressBar;
    Label StatusText; // the text panel of the status bar
    Timer tmrWelcome{100};
    Timer tmrCurrency{5};
};

inline MainWindowScreen MDIProject;

} // namespace velorix

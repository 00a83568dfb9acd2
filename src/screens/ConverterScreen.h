// The unit converter.
#pragma once

#include "base/Arrays.h"
#include "platform/Controls.h"
#include "platform/Screen.h"

namespace velorix {

struct ConverterScreen : Screen {
    ConverterScreen()
        : Screen("frmConverter", "  Unit converter")
    {
        comUnit[0].ToolTip = "Select the unit to convert from";
        comUnit[1].ToolTip = "Select the unit to convert to";
        DesignEnds();
    }

    ComboBox lstUnit{{}, "Select the unit group"};
    TextBox txtConvert{"Enter the number to convert"};
    Array0<ComboBox, 2> comUnit; // source and target
    Label lblConvert{"="};
    CommandButton sscConvert{"&Convert", "Convert"};
    CommandButton sscExit{"E&xit", "Exit the unit converter program"};
    CommandButton sscHelp{"", "Help"};
};

inline ConverterScreen frmConverter;

} // namespace velorix

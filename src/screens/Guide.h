// The viewer of the step-by-step guide.
#pragma once

#include "platform/Controls.h"
#include "platform/Screen.h"

namespace velorix {

struct PDFViewScreen : Screen {
    PDFViewScreen()
        : Screen("frmPDFView", "  STEP-BY-STEP LCCA GUIDE")
    {
        DesignEnds();
    }

    PdfViewer pdfReport{"Step-by-step guide"};
    CommandButton sscOK{"&OK", "Click to return"};
};

inline PDFViewScreen frmPDFView;

} // namespace velorix

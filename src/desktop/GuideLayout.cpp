// The window of the guide, as large as the display.
#include "desktop/DialogLayouts.h"
#include "desktop/FormRows.h"
#include "desktop/PdfView.h"
#include "desktop/Views.h"
#include "screens/Guide.h"

#include <QDialog>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

namespace velorix {

QDialog* GuideDialog(QWidget* Owner)
{
    constexpr int TwipsPerPixel = 15;
    constexpr int TopOfButton = 350 / TwipsPerPixel;
    constexpr int BesideButton = 100 / TwipsPerPixel;

    auto* const Dialog = new QDialog(Owner, Qt::Window);
    auto* const Pages = View(frmPDFView.pdfReport);
    QPushButton* const Ok = View(frmPDFView.sscOK);
    Ok->setDefault(true);
    QWidget* const Head = InRow({Pages->Tools(), nullptr, Ok});
    Head->layout()->setContentsMargins(BesideButton, TopOfButton, BesideButton, TopOfButton / 2);

    auto* const Layout = new QVBoxLayout(Dialog);
    Layout->setContentsMargins(0, 0, 0, 0);
    Layout->setSpacing(0);
    Layout->addWidget(Head);
    Layout->addWidget(Pages, 1);
    Dialog->setGeometry(Dialog->screen()->availableGeometry());
    Dialog->setWindowState(Qt::WindowMaximized);
    Pages->setFocus();
    return Dialog;
}

} // namespace velorix

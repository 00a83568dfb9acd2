// The preview of a print run: its pages under each other, at any size.
#pragma once

#include "platform/PrintedPage.h"

#include <functional>
#include <vector>

class QWidget;

namespace velorix {

// Shows the pages and returns once the user has closed the window. Save answers its button.
void ShowPreview(QWidget* Owner, const std::vector<PrintedPage>& Pages, std::function<void()> Save);

} // namespace velorix

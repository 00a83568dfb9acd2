// The dialogs around the main window.
#pragma once

#include <vector>

class QDialog;
class QWidget;

namespace velorix {

class QtPlatform;
struct Screen;

struct DialogLayout {
    Screen* Shown;
    QDialog* (*Make)(QWidget* Owner);
};

// Every dialog, and what makes its window.
const std::vector<DialogLayout>& AllDialogs();

QDialog* AnalyseDialog(QWidget* Owner);
QDialog* ImportDialog(QWidget* Owner);

// Tells the platform which factory makes which screen's window.
void RegisterDialogs(QtPlatform& Windows);

} // namespace velorix

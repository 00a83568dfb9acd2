// The dialogs around the main window.
#pragma once

#include <vector>

class QDialog;
class QPushButton;
class QWidget;

namespace velorix {

class QtPlatform;
struct CommandButton;
struct Screen;

struct DialogLayout {
    Screen* Shown;
    QDialog* (*Make)(QWidget* Owner);
};

// Every dialog, and what makes its window.
const std::vector<DialogLayout>& AllDialogs();

QDialog* AnalyseDialog(QWidget* Owner);
QDialog* GuideDialog(QWidget* Owner);
QDialog* ImportDialog(QWidget* Owner);
QDialog* PrintDialogWindow(QWidget* Owner);
QDialog* YearDialog(QWidget* Owner);
QDialog* GraphYearDialog(QWidget* Owner);

// A window of one size with its parts under each other, and the button that Enter presses.
QDialog* FixedWindow(const Screen& Record, QWidget* Owner, const std::vector<QWidget*>& Parts);
QPushButton* DefaultButton(CommandButton& Record);

// Tells the platform which factory makes which screen's window.
void RegisterDialogs(QtPlatform& Windows);

} // namespace velorix

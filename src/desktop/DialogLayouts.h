// The dialogs around the main window. Each factory makes the window of one screen.
#pragma once

class QDialog;
class QWidget;

namespace velorix {

class QtPlatform;

QDialog* AgreeDialog(QWidget* Owner);
QDialog* IntroDialog(QWidget* Owner);
QDialog* LccTypeDialog(QWidget* Owner);
QDialog* PreferencesDialog(QWidget* Owner);
QDialog* DeleteRowDialog(QWidget* Owner);
QDialog* DisclaimerDialog(QWidget* Owner);
QDialog* AboutDialog(QWidget* Owner);
QDialog* AnalyseDialog(QWidget* Owner);

// Tells the platform which factory makes which screen's window.
void RegisterDialogs(QtPlatform& Windows);

} // namespace velorix

// The main window: menus, tool buttons, the screens in its middle, and the status bar.
#pragma once

#include <QMainWindow>

#include <filesystem>
#include <functional>

class QLabel;
class QStackedWidget;

namespace velorix {

class MainWindow : public QMainWindow {
public:
    MainWindow();

    // What to do with a file that the user drops on the window.
    std::function<void(const std::filesystem::path&)> FileDropped;

protected:
    bool event(QEvent* Event) override;
    void closeEvent(QCloseEvent* Event) override;
    void dragEnterEvent(QDragEnterEvent* Event) override;
    void dropEvent(QDropEvent* Event) override;

private:
    void TakeFirstSize();
    void ShowScreen();

    QStackedWidget* const Screens;
    QLabel* const WayOn; // on the picture
    QWidget* const Picture;
    QWidget* const InputScreen;
    QWidget* const ResultsScreen;
};

} // namespace velorix

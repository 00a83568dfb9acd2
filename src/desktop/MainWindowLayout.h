// The main window: menus, tool buttons, the screens in its middle, and the status bar.
#pragma once

#include <QMainWindow>

#include <filesystem>
#include <functional>
#include <vector>

class QLabel;
class QStackedWidget;

namespace velorix {

struct Screen;

class MainWindow : public QMainWindow {
public:
    MainWindow();

    // What to do with a file that the user drops on the window.
    std::function<void(const std::filesystem::path&)> FileDropped;

protected:
    bool event(QEvent* Event) override;
    void keyPressEvent(QKeyEvent* Key) override;
    void closeEvent(QCloseEvent* Event) override;
    void dragEnterEvent(QDragEnterEvent* Event) override;
    void dropEvent(QDropEvent* Event) override;

private:
    void TakeFirstSize();
    void ShowScreen();

    // A screen that stands in the middle of the window while it is visible.
    struct Place {
        Screen* Record;
        QWidget* Layout;
    };

    QStackedWidget* const Screens;
    QLabel* const WayOn; // on the picture
    QWidget* const Picture;
    const std::vector<Place> Places; // the first visible one is on top
};

} // namespace velorix

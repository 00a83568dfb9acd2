// A window to put views into, the window system behind it with message boxes that are only noted, and a user
// of its dialogs.
#pragma once

#include "desktop/Binding.h"
#include "desktop/QtPlatform.h"

#include <QTest>
#include <QtWidgets>

#include <gmock/gmock.h>

#include <memory>
#include <vector>

namespace velorix {

class NotingPlatform : public QtPlatform {
public:
    std::vector<Message> Messages;

    Answer Show(const Message& Box) override
    {
        Messages.push_back(Box);
        return Answer::Ok;
    }
};

// Does something to the next window that stands above all others.
template <typename Widget = QDialog, typename Action>
void WithTopWindow(Action Do)
{
    QTimer::singleShot(0, qApp, [Do] {
        auto* const Top = qobject_cast<Widget*>(QApplication::activeModalWidget());
        ASSERT_TRUE(Top);
        Do(*Top);
    });
}

// The answer to a dialog that asks for a file.
inline void EnterFile(QDialog& Dialog, const QString& Name)
{
    auto* const Line = Dialog.findChild<QLineEdit*>();
    Line->setText(Name);
    QTest::keyClick(Line, Qt::Key_Return);
}

// The fixture's members are the records; the views go before they do.
class DesktopTest : public testing::Test {
protected:
    DesktopTest()
    {
        InstallPlatform(&Windows);
        new QVBoxLayout(Host.get());
        Host->resize(800, 600);
    }
    ~DesktopTest() override { InstallPlatform(nullptr); }

    void TearDown() override { Host.reset(); }

    template <typename Widget>
    Widget* Put(Widget* View)
    {
        Host->layout()->addWidget(View);
        return View;
    }

    void ShowHost()
    {
        Host->show();
        Host->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(Host.get()));
        QCoreApplication::processEvents();
    }

    NotingPlatform Windows;
    std::unique_ptr<QWidget> Host = std::make_unique<QWidget>();
};

} // namespace velorix

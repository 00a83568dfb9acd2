// A window to put views into, and the window system behind it with message boxes that are only noted.
#pragma once

#include "desktop/QtPlatform.h"

#include <QTest>
#include <QVBoxLayout>
#include <QWidget>

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

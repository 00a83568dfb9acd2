// Colours and drawings, on light and on dark desktops.
#include "desktop/Style.h"

#include "desktop/DesktopTest.h"

#include <QSvgRenderer>

#include <algorithm>
#include <cmath>

namespace velorix {
namespace {

// Contrast of two colours, 1 to 21, as the Web Content Accessibility Guidelines define it.
double Contrast(const QColor& One, const QColor& Other)
{
    const auto Linear = [](double Part) {
        return Part <= 0.04045 ? Part / 12.92 : std::pow((Part + 0.055) / 1.055, 2.4);
    };
    const auto Luminance = [&](const QColor& Value) {
        return 0.2126 * Linear(Value.redF()) + 0.7152 * Linear(Value.greenF()) +
               0.0722 * Linear(Value.blueF());
    };
    const auto [Low, High] = std::minmax({Luminance(One), Luminance(Other)});
    return (High + 0.05) / (Low + 0.05);
}

// Puts the palette back that the program began with.
class StyleTest : public testing::Test {
protected:
    ~StyleTest() override { QApplication::setPalette(Before); }

    static void StyleAsOn(bool Dark)
    {
        QApplication::setPalette(QPalette(QColor(Dark ? "#202020" : "#efefef")));
        ApplyStyle(*static_cast<QApplication*>(QApplication::instance()));
        ASSERT_EQ(Colors().Dark, Dark);
    }

private:
    const QPalette Before = QApplication::palette();
};

TEST_F(StyleTest, EveryDrawingCanBeDrawn)
{
    const QStringList Names = QDir(":/icons").entryList();
    EXPECT_FALSE(Names.isEmpty());
    for (const QString& Each : Names)
        EXPECT_TRUE(QSvgRenderer(":/icons/" + Each).isValid()) << Each.toStdString();
}

// 4.5 is what the guidelines ask of text of ordinary size, 3 of what marks a control. They ask nothing of
// what can't be used.
TEST_F(StyleTest, TextIsLegibleOnLightAndOnDarkDesktops)
{
    for (const bool Dark : {false, true}) {
        StyleAsOn(Dark);
        for (const QColor& Letters : {Colors().Ink, Colors().Muted, Colors().Accent})
            for (const QColor& Surface : {Colors().Window, Colors().Card, Colors().Field})
                EXPECT_GE(Contrast(Letters, Surface), 4.5);
        EXPECT_GE(Contrast(Colors().Ink, Colors().Button), 4.5);
        EXPECT_GE(Contrast(Colors().Disabled, Colors().Button), Dark ? 3.0 : 1.0);
    }
}

TEST_F(StyleTest, TheFocusShowsOnBoxesAndLeavesTheTextOfATabAlone)
{
    for (const bool Dark : {true, false}) {
        StyleAsOn(Dark);
        QWidget Window;
        auto* const Layout = new QVBoxLayout(&Window);
        auto* const Box = new QLineEdit;
        auto* const Tabs = new QTabWidget;
        Tabs->addTab(new QWidget, QString(12, ' '));
        Layout->addWidget(Box);
        Layout->addWidget(Tabs);
        Window.show();
        Window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&Window));
        const auto Outline = [Box] { return Box->grab().toImage().pixelColor(Box->width() / 2, 0); };
        Box->setFocus();
        const QColor Focused = Outline();
        Tabs->tabBar()->setFocus();
        EXPECT_GE(Contrast(Focused, Colors().Card), 3.0);
        EXPECT_GE(Contrast(Focused, Colors().Card), 1.5 * Contrast(Outline(), Colors().Card));

        const QImage Tab = Tabs->tabBar()->grab().toImage();
        for (int Y = 2; Y < Tab.height() - 4; ++Y)
            EXPECT_EQ(Tab.pixelColor(Tabs->tabBar()->tabRect(0).center().x(), Y), Colors().Tint) << Y;
    }
}

} // namespace
} // namespace velorix

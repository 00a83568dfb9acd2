// Loading, unloading and the registration of controls.
#include "platform/Screen.h"

#include "platform/Controls.h"

namespace velorix {
namespace {

// The screen whose members are being built. Screens are built one after the other, each in one go.
Screen* UnderConstruction = nullptr;

} // namespace

Screen::Screen(std::string ScreenName, std::string ScreenCaption)
    : Name(std::move(ScreenName))
    , Caption(std::move(ScreenCaption))
{
    UnderConstruction = this;
    Visible.Changed = [this] {
        if (Visible)
            Shown();
        else
            Hidden();
    };
}

void Screen::DesignEnds()
{
    UnderConstruction = nullptr;
    DesignCaption = Caption;
    for (Control* Each : Controls) Each->NoteDesign();
}

void Screen::LoadHidden()
{
    if (Loaded) return;
    Loaded = true;
    Load();
}

void Screen::CloseByFrame()
{
    if (Close)
        Close();
    else
        Unload();
}

void Screen::Unload()
{
    Loaded = false;
    Visible = false;
    Enabled.Restore(true);
    Caption.Restore(DesignCaption);
    for (Control* Each : Controls) Each->BackToDesign();
}

Control::Control(std::string Hint)
    : ToolTip(std::move(Hint))
{
    if (UnderConstruction) UnderConstruction->Controls.push_back(this);
}

} // namespace velorix

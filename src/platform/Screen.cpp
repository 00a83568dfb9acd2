// Loading, unloading and the registration of controls and screens.
#include "platform/Screen.h"

#include "platform/Controls.h"

namespace velorix {
namespace {

// The screen whose members are being built. Screens are built one after the other, each in one go.
Screen* UnderConstruction = nullptr;

// Inside a routine, because screens are globals: the first of them to be built may come before any global of
// this file. It outlives them all, being complete before the first of them is.
std::vector<Screen*>& Registered()
{
    static std::vector<Screen*> Screens;
    return Screens;
}

} // namespace

Screen::Screen(std::string ScreenName, std::string ScreenCaption)
    : Name(std::move(ScreenName))
    , Caption(*this, std::move(ScreenCaption))
{
    Registered().push_back(this);
    UnderConstruction = this;
    Visible.Changed = [this] {
        if (Visible)
            Shown();
        else
            Hidden();
    };
}

Screen::~Screen()
{
    std::erase(Registered(), this);
}

void Screen::DesignEnds()
{
    UnderConstruction = nullptr;
    NoteDesign();
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
    BackToDesign();
    for (Control* Each : Controls) Each->BackToDesign();
}

const std::vector<Screen*>& AllScreens()
{
    return Registered();
}

void UnloadScreens()
{
    for (Screen* Each : AllScreens()) Each->Unload();
}

Control::Control(std::string Hint)
    : ToolTip(std::move(Hint))
{
    Keep(ToolTip, Tag);
    if (UnderConstruction) UnderConstruction->Controls.push_back(this);
}

} // namespace velorix

// A screen: a set of named controls that is shown, hidden, loaded and unloaded as a whole.
#pragma once

#include "platform/Property.h"

#include <string>
#include <vector>

namespace velorix {

struct Control;

// The controls that a screen declares as its members register themselves in their order, which is also the
// tab order. A screen's constructor ends with DesignEnds(), which notes what every control holds then.
struct Screen : PropertyOwner {
    Screen(std::string ScreenName, std::string ScreenCaption);
    ~Screen();

    const std::string Name;
    Property<std::string> Caption;
    Property<bool> Visible{*this, false};
    Property<bool> Enabled{*this, true};
    std::vector<Control*> Controls;

    Event<> Load;   // raised when an unloaded screen is loaded
    Event<> Shown;  // raised when the screen has come up
    Event<> Hidden; // and when it has gone
    Event<> Close;  // answers the user who closes the screen by its frame; unset, the screen is unloaded

    bool IsLoaded() const { return Loaded; }

    // Loads the screen, hidden. Nothing happens when it is loaded already.
    void LoadHidden();

    // The user closes the screen by its frame.
    void CloseByFrame();

    // Hides the screen and puts every control back to its state at design. No control raises an event.
    void Unload();

protected:
    void DesignEnds();

private:
    bool Loaded = false;
};

// Every screen of the program, in an order that means nothing: a screen joins as it is built and leaves as it
// goes.
const std::vector<Screen*>& AllScreens();

// Unloads them all.
void UnloadScreens();

} // namespace velorix

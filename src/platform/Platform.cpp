// Access to the window system in use.
#include "platform/Platform.h"

#include <stdexcept>

namespace velorix {
namespace {

Platform* Installed = nullptr;

} // namespace

Platform& System()
{
    if (!Installed) throw std::logic_error("no window system is installed");
    return *Installed;
}

void InstallPlatform(Platform* InUse)
{
    Installed = InUse;
}

void Warn(const std::string& Text, const std::string& Title, const std::string& Detail)
{
    System().Show({.Text = Text, .Title = Title, .Detail = Detail});
}

void Inform(const std::string& Text, const std::string& Title)
{
    System().Show({.Text = Text, .Title = Title, .Icon = MessageIcon::Information});
}

bool Confirm(const std::string& Text, const std::string& Title, const std::string& Detail)
{
    return System().Show({.Text = Text,
                          .Title = Title,
                          .Detail = Detail,
                          .Icon = MessageIcon::Question,
                          .Buttons = MessageButtons::YesNo}) == Answer::Yes;
}

} // namespace velorix

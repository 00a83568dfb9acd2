// The window system of a command that draws: without windows, but with the letters that are painted.
#pragma once

#include "base/Arithmetic.h"
#include "paint/PaintModule.h"
#include "platform/ScriptedPlatform.h"

namespace velorix {

// Without a painter texts are measured by the fixed table, alike on every machine.
class DrawingPlatform : public ScriptedPlatform {
public:
    explicit DrawingPlatform(const PaintServices* Services)
        : Painter(Services)
    {
    }

    double TextWidth(const std::string& Text, const Font& Face) override
    {
        const KeepArithmeticFlags Keep;
        return Painter ? Painter->TextWidth(Text, Face) : ScriptedPlatform::TextWidth(Text, Face);
    }
    double TextHeight(const Font& Face) override
    {
        const KeepArithmeticFlags Keep;
        return Painter ? Painter->TextHeight(Face) : ScriptedPlatform::TextHeight(Face);
    }

private:
    const PaintServices* const Painter;
};

} // namespace velorix

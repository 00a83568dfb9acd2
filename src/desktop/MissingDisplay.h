// The start of the program where there is no display.
#pragma once

#include <QtGlobal>

namespace velorix {

// Stands around the making of the application. A toolkit that finds no display ends the program with its
// abort; here the user is told in a sentence, and the exit status is 1.
class MissingDisplay {
public:
    MissingDisplay();
    ~MissingDisplay();
    MissingDisplay(const MissingDisplay&) = delete;
    MissingDisplay& operator=(const MissingDisplay&) = delete;
};

} // namespace velorix

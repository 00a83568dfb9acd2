// Texts in the characters that a project file can hold.
#pragma once

#include <QString>

namespace velorix {

// The text as the file would hold it, so that nothing changes unseen when it is saved: of a letter with a
// foreign accent the letter stays, signs such as ligatures fall into their parts, any other foreign character
// becomes "?".
QString Storable(const QString& Text);

// What makes one text out of another: Length units from Start on give way to With.
struct Replacement {
    int Start = 0;
    int Length = 0;
    QString With;
};
Replacement Between(const QString& Old, const QString& New);

} // namespace velorix

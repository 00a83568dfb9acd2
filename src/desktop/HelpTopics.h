// The topics of the help file.
#pragma once

#include <QRegularExpression>
#include <QString>

#include <vector>

namespace velorix {

struct HelpTopic {
    int Number = 0;
    QString Title;
    QString Text; // Markdown, the title included
};

// The topics of a help text in their order. Each begins with a line "# Title {#Number}"; what stands ahead of
// the first is left out.
std::vector<HelpTopic> HelpTopicsIn(const QString& Text);

// True when the topic holds every one of the words, in any case; without a word always.
bool Holds(const HelpTopic& Topic, const QString& Words);

// Finds where a word of the text begins with the given one, in any case.
QRegularExpression BeginningWith(const QString& Word);

// How often words of the topic begin with one of the words: that which is found least counts. 0 without a
// word.
qsizetype BeginningsIn(const HelpTopic& Topic, const QString& Words);

} // namespace velorix

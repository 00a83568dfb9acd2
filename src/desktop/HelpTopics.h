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

// Finds where a word of a text begins with the given one, in any case.
QRegularExpression BeginningWith(const QString& Word);

// How often words of the topic begin with the given ones, that which is found least, and in its title above
// all. 0 when one stands only inside of others, -1 when the topic doesn't hold it; 0 without a word.
qsizetype Relevance(const HelpTopic& Topic, const QString& Words);

} // namespace velorix

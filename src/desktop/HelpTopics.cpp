// Reading and searching of the help text.
#include "desktop/HelpTopics.h"

#include <QStringList>

#include <algorithm>
#include <limits>

namespace velorix {

std::vector<HelpTopic> HelpTopicsIn(const QString& Text)
{
    static const QRegularExpression Heading("^# (.+?)\\s*\\{#(\\d+)\\}\\s*$");
    std::vector<HelpTopic> Topics;
    for (const QString& Line : Text.split('\n')) {
        const QRegularExpressionMatch Found = Heading.match(Line);
        if (Found.hasMatch())
            Topics.push_back({Found.captured(2).toInt(), Found.captured(1), "# " + Found.captured(1) + '\n'});
        else if (!Topics.empty())
            Topics.back().Text += Line + '\n';
    }
    return Topics;
}

QRegularExpression BeginningWith(const QString& Word)
{
    return QRegularExpression("(?<!\\w)" + QRegularExpression::escape(Word),
                              QRegularExpression::CaseInsensitiveOption |
                                  QRegularExpression::UseUnicodePropertiesOption);
}

qsizetype Relevance(const HelpTopic& Topic, const QString& Words)
{
    constexpr qsizetype InTitle = 1000; // before any topic that only mentions it
    const QStringList All = Words.split(' ', Qt::SkipEmptyParts);
    qsizetype Least = All.isEmpty() ? 0 : std::numeric_limits<qsizetype>::max();
    for (const QString& Word : All) {
        if (!Topic.Text.contains(Word, Qt::CaseInsensitive)) return -1;
        const QRegularExpression Beginning = BeginningWith(Word);
        Least = std::min(Least, Topic.Text.count(Beginning) + InTitle * Topic.Title.count(Beginning));
    }
    return Least;
}

} // namespace velorix

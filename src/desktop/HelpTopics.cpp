// Reading and searching of the help text.
#include "desktop/HelpTopics.h"

#include <QStringList>

#include <algorithm>

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

bool Holds(const HelpTopic& Topic, const QString& Words)
{
    const QStringList All = Words.split(' ', Qt::SkipEmptyParts);
    return std::all_of(All.begin(), All.end(), [&Topic](const QString& Word) {
        return Topic.Text.contains(Word, Qt::CaseInsensitive);
    });
}

QRegularExpression BeginningWith(const QString& Word)
{
    return QRegularExpression("(?<!\\w)" + QRegularExpression::escape(Word),
                              QRegularExpression::CaseInsensitiveOption |
                                  QRegularExpression::UseUnicodePropertiesOption);
}

qsizetype BeginningsIn(const HelpTopic& Topic, const QString& Words)
{
    qsizetype Least = -1;
    for (const QString& Word : Words.split(' ', Qt::SkipEmptyParts)) {
        const qsizetype Count = Topic.Text.count(BeginningWith(Word));
        Least = Least < 0 ? Count : std::min(Least, Count);
    }
    return std::max<qsizetype>(Least, 0);
}

} // namespace velorix

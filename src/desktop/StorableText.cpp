// From the toolkit's characters to those of the project file.
#include "desktop/StorableText.h"

#include "base/CodePage.h"

#include <QList>

#include <algorithm>

namespace velorix {
namespace {

QString PartsOf(char32_t Code)
{
    QString Parts;
    bool Fits = false;
    for (const uint Each : QString::fromUcs4(&Code, 1).normalized(QString::NormalizationForm_KD).toUcs4()) {
        const auto Part = static_cast<char32_t>(Each);
        Fits = Fits || InCodePage(Part);
        if (InCodePage(Part))
            Parts += QString::fromUcs4(&Part, 1);
        else if (!QChar::isMark(Part))
            Parts += '?';
    }
    return Fits || Parts.isEmpty() ? Parts : QString("?");
}

} // namespace

QString Storable(const QString& Text)
{
    QString Held;
    for (const uint Each : Text.normalized(QString::NormalizationForm_C).toUcs4()) {
        const auto Code = static_cast<char32_t>(Each);
        Held += InCodePage(Code) ? QString::fromUcs4(&Code, 1) : PartsOf(Code);
    }
    return Held;
}

Replacement Between(const QString& Old, const QString& New)
{
    const auto [OldStart, NewStart] = std::mismatch(Old.begin(), Old.end(), New.begin(), New.end());
    const auto Start = static_cast<int>(OldStart - Old.begin());
    const auto Room = std::min(Old.size(), New.size()) - Start;
    qsizetype Tail = 0;
    while (Tail < Room && Old[Old.size() - 1 - Tail] == New[New.size() - 1 - Tail]) ++Tail;
    return {Start, static_cast<int>(Old.size() - Tail) - Start, New.mid(Start, New.size() - Tail - Start)};
}

} // namespace velorix

// What the program says on standard error.
#pragma once

#include <string>
#include <string_view>

namespace velorix {

// The text as a terminal may show it: a byte that is no UTF-8, and a control character other than the line
// break, becomes the replacement character.
std::string Readable(std::string_view Text);

// One message, under the program's name.
void Tell(const std::string& Message);

// The bar of progress on a terminal, one line that is rewritten. It leaves the line to a message.
class ProgressLine {
public:
    ProgressLine(int Count, bool Shown);
    ~ProgressLine();
    ProgressLine(const ProgressLine&) = delete;
    ProgressLine& operator=(const ProgressLine&) = delete;

    void Show(int Done) const;
    void Hide() const;

private:
    int Count;
    bool Shown;
};

} // namespace velorix

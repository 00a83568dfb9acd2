// What a PDF file tells of itself in its properties.
#pragma once

#include <string>

namespace velorix {

struct DocumentFacts {
    std::string Title;
    std::string Subject;
    std::string Author;
};

} // namespace velorix

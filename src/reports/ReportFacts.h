// What the file of a project's reports tells of itself.
#pragma once

#include "platform/DocumentFacts.h"

namespace velorix {

// Title, description and designer of the open project. One without a title goes by its file's name.
DocumentFacts FactsOfProject();

} // namespace velorix

// A record put into the session without a file.
#pragma once

#include "input/Session.h"
#include "model/ProjectRecord.h"

namespace velorix {

// As that of an opened file is loaded.
inline void Open(const ProjectFields& Record)
{
    ProjectRecord = Record;
    NewProject = 1;
    LoadProject();
}

} // namespace velorix

// A project record as readable JSON, by field name, and back.
#pragma once

#include "model/ProjectRecord.h"

#include <string>

namespace velorix {

// One object with every field of the record. A choice, such as a unit, comes as the text that a user sees, or
// as its number where it has none. Texts come without the blanks around them, the profile without its unused
// rows, the demand without the zeros past its last value; a pump curve is six lists of head, flow rate and
// efficiency. A foreign file's values come as they are, also those that ProjectFromJson refuses.
std::string ProjectToJson(const ProjectFields& Record);

// The record that the JSON describes, choices by their text or their number. A field that is absent has its
// value of a new project of the given SystemType, Units and Currency; so have the entries past the end of a
// list. Throws Failure, naming the key and the reason, for JSON that can't be read, a key that is no field or
// stands there twice, a value of the wrong kind or out of the field's range, a text that doesn't fit, and
// profile lists of different lengths or of fewer than two rows. The open project of the process is replaced
// on the way.
ProjectFields ProjectFromJson(const std::string& Text);

} // namespace velorix

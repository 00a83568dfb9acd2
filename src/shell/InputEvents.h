// The events of the input screen, its grids excepted.
#pragma once

namespace velorix {

// Connects the controls of frmLCC and the row menu of the profile table: edits that mark the project as
// changed, hints, key filters, bars, options, hours, pages and help.
void ConnectInputScreen();

} // namespace velorix

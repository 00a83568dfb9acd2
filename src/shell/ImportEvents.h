// The steps of the import wizard.
#pragma once

namespace velorix {

// Connects frmImport, and the command that opens it.
void ConnectImportWizard();

} // namespace velorix

// The steps of the import wizard.
#pragma once

namespace velorix {

// Connects frmImport.
void ConnectImportWizard();

} // namespace velorix

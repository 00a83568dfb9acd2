// The preferences: unit system, currency and the two allowances of the session.
#pragma once

namespace velorix {

void ConnectPreferences();

void PreferencesLoad();     // shows the working set in the dialog
void PreferencesAccepted(); // takes the dialog into the working set; no number is converted
void PreferencesCancelled();

} // namespace velorix

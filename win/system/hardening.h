// What the process does for its own safety before anything else.
#pragma once

namespace varnel {

// Libraries come from the system folder only, a damaged heap ends the process, no error box of the
// system holds it up. What the system does not know is left out.
void HardenProcess();

// Ends the process with exit code 70 on an unhandled fault, without a dialog that would keep it.
void EndOnUnhandledFault();

// Per-monitor awareness of resolution; harmless where the manifest has settled it already.
void BecomeDpiAware();

}  // namespace varnel

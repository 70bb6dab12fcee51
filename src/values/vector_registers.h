// The arithmetic of this program is scalar SSE. Code it calls into (window
// painting, above all) may use 256-bit vector instructions and return with
// the upper halves of the vector registers still in use; until something
// clears them, many x86 processors make every scalar instruction wait on
// them.
// A data creation that let the window paint ran about a third slower per
// sample for that alone.
#pragma once

namespace lapdesk {

// Marks the upper halves unused (VZEROUPPER) where the processor has them;
// does nothing elsewhere. Cheap: call it whenever other code has run.
void ClearUpperVectorRegisters();

}  // namespace lapdesk

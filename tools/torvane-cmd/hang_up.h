#pragma once
// Hanging up the terminal ends the script and the program it runs, which shares the
// script's process group. The script ends only after its program has ended and has been
// reaped, so that once the script is gone its program is gone too, with nothing left for
// another process to reap.

namespace jobscript {

// Installs the script's hang-up handler. Called once, at the start.
void WatchForHangUp();

// Around the start of a program: SIGHUP is held back from fork to the point where the
// child has its usual handling back (UnblockHangUp in the child) or the parent knows its
// child (in the parent).
void BlockHangUp();
void UnblockHangUp();

// In the child before exec: a hang-up ends the program as it would any program.
void RestoreHangUpInChild();

// Brackets the wait for a program. A hang-up that came while it ran ends the script at
// EndChildWait, right after the program has been reaped.
void BeginChildWait();
void EndChildWait();

}  // namespace jobscript

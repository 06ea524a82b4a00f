#pragma once
// The new cue sheet of a build, rewritten without its subindices in place.

#include <QString>

namespace torvane {

// Reads the sheet whole, deletes it, and writes it back through RemoveSubindices as raw
// bytes. A sheet that cannot be read is left alone; from the deletion on, failures are
// passed over.
void RewriteCueWithoutSubindices(const QString& cuePath);

}  // namespace torvane

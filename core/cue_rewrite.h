#pragma once
// The new cue sheet of a build, rewritten without its subindices in place.

#include <QString>

namespace torvane {

// Reads the sheet whole and puts it back through RemoveSubindices, replacing the old sheet
// only once the new one is whole on disk. A sheet that cannot be read is left alone.
// Returns the reason the new sheet could not be written, or an empty text.
QString RewriteCueWithoutSubindices(const QString& cuePath);

}  // namespace torvane

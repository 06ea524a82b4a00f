#pragma once
// Turns a "Desc|pat;pat|..." filter into the name filters of a Qt file dialog.

#include <QString>
#include <QStringList>

namespace torvane {

// "All Files (*.*)|*.*|XML Files (*.xml)|*.xml" gives
// {"All Files (*)", "XML Files (*.xml)"}: the description keeps its words, its own
// parenthesised pattern list is replaced by the real patterns, and "*.*" becomes "*"
// (on POSIX "*.*" would hide names without a dot).
QStringList QtNameFilters(const QString& filter);

}  // namespace torvane

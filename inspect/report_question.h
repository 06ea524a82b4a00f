#pragma once
// What the two report dialogs, VCDXMINFO and VCDDEBUG, share: the checks at Go (which
// CDXA2MPEG makes too), and the question at the end of the job whether to open the report
// just written.

#include <QString>

namespace torvane {

struct Services;

// The first failing check's message, or empty when Go may go on: the output first.
QString OutputThenInputValidation(const QString& input, const QString& output);

// Asks whether to open the `fileKind` ("XML", "TXT") report at `output` now, and opens it
// in the desktop's viewer on Yes.
void AskToOpenReport(Services& services, const QString& fileKind, const QString& output);

}  // namespace torvane

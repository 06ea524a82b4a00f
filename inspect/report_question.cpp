#include "inspect/report_question.h"

#include "core/services.h"
#include "forms/form_support.h"

namespace torvane {

QString OutputThenInputValidation(const QString& input, const QString& output) {
    if (output.isEmpty())
        return QStringLiteral("You have not set an output file!");
    if (input.isEmpty())
        return QStringLiteral("You have not loaded an input XML file!");
    return {};
}

void AskToOpenReport(Services& services, const QString& fileKind, const QString& output) {
    const QString question =
        QStringLiteral("Finished!\r\rDo you want to open the %1 file now?\r\n\r\n").arg(fileKind);
    if (QuestionBox(services.boxes, QStringLiteral("Question"), question + output) == vbYes)
        OpenInViewer(services, output);
}

}  // namespace torvane

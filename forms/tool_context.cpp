#include "forms/tool_context.h"

#include "job/job_frame.h"

#include <QCloseEvent>

namespace torvane {

void UnloadToolDialog(QCloseEvent& event, JobFrame& frame, const ToolContext& context) {
    if (!frame.Form_Unload()) {
        event.ignore();
        return;
    }
    context.returnToMenu();
    event.accept();
}

}  // namespace torvane

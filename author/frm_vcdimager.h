#pragma once
// The VCDIMAGER dialog: MPEG files and disc settings become a CUE/BIN image in one go,
// with the image size in the report.

#include "author/disc_tool_form.h"
#include "forms/tool_context.h"

namespace torvane {

class frm_vcdimager : public DiscToolForm {
    Q_OBJECT
public:
    frm_vcdimager(const ToolContext& context);

    QCheckBox* chk_s2336;
};

}  // namespace torvane

#pragma once
// The VCDXGEN dialog: MPEG files and disc settings become a simple XML descriptor, which
// the user edits or hands to VCDXBUILD.

#include "author/disc_tool_form.h"
#include "forms/tool_context.h"

namespace torvane {

class frm_vcdxgen : public DiscToolForm {
    Q_OBJECT
public:
    frm_vcdxgen(const ToolContext& context);

    QCheckBox* chk_nopbc;
};

}  // namespace torvane

#pragma once
// The lkVCDxBUILD dialog: VCDXBUILD's job done by the fork's lkvcdxbuild.exe, which can
// also write a Nero image.

#include "author/build_tool_form.h"
#include "forms/tool_context.h"

namespace torvane {

class frm_lkvcdxbuild : public BuildToolForm {
    Q_OBJECT
public:
    frm_lkvcdxbuild(const ToolContext& context);
};

}  // namespace torvane

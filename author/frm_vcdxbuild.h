#pragma once
// The VCDXBUILD dialog: an XML descriptor made into a CUE/BIN or CDRDAO/TOC image by
// vcdxbuild.exe.

#include "author/build_tool_form.h"
#include "forms/tool_context.h"

namespace torvane {

class frm_vcdxbuild : public BuildToolForm {
    Q_OBJECT
public:
    frm_vcdxbuild(const ToolContext& context);
};

}  // namespace torvane

#pragma once
// The VCDXBUILD dialog: an XML descriptor made into a CUE/BIN or CDRDAO/TOC image by
// vcdxbuild.exe.

#include "author/build_tool_form.h"

namespace torvane {

class frm_vcdxbuild : public BuildToolForm {
    Q_OBJECT
public:
    frm_vcdxbuild(frm_mainmenu& menu, Services& services);
};

}  // namespace torvane

#pragma once
// The lkVCDxBUILD dialog: VCDXBUILD's job done by the fork's lkvcdxbuild.exe, which can
// also write a Nero image.

#include "author/build_tool_form.h"

namespace torvane {

class frm_lkvcdxbuild : public BuildToolForm {
    Q_OBJECT
public:
    frm_lkvcdxbuild(frm_mainmenu& menu, Services& services);
};

}  // namespace torvane

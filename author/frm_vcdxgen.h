#pragma once
// The VCDXGEN dialog: MPEG files and disc settings become a simple XML descriptor, which
// the user edits or hands to VCDXBUILD.

#include "author/disc_tool_form.h"

namespace torvane {

class frm_vcdxgen : public DiscToolForm {
    Q_OBJECT
public:
    frm_vcdxgen(frm_mainmenu& menu, Services& services);

    QCheckBox* chk_nopbc;
};

}  // namespace torvane

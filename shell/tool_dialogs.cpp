#include "shell/tool_dialogs.h"

#include "additional/frm_regen.h"
#include "additional/frm_subindex.h"
#include "author/frm_lkvcdxbuild.h"
#include "author/frm_vcdimager.h"
#include "author/frm_vcdxbuild.h"
#include "author/frm_vcdxgen.h"
#include "inspect/frm_cdxa2mpeg.h"
#include "inspect/frm_vcddebug.h"
#include "inspect/frm_vcdxminfo.h"
#include "rip/frm_lkvcdxrip.h"
#include "rip/frm_vcdxrip.h"
#include "shell/mod_mainmenu.h"

#include <QCloseEvent>

namespace torvane {

namespace {

template <typename Form>
ToolDialogFactory Factory() {
    return
        [](frm_mainmenu& menu, Services& services) -> QWidget* { return new Form(menu, services); };
}

}  // namespace

const std::map<QString, ToolDialogFactory>& ToolDialogFactories() {
    static const std::map<QString, ToolDialogFactory> factories = {
        {QStringLiteral("vcdxminfo"), Factory<frm_vcdxminfo>()},
        {QStringLiteral("vcddebug"), Factory<frm_vcddebug>()},
        {QStringLiteral("cdxa2mpeg"), Factory<frm_cdxa2mpeg>()},
        {QStringLiteral("vcdxbuild"), Factory<frm_vcdxbuild>()},
        {QStringLiteral("vcdxgen"), Factory<frm_vcdxgen>()},
        {QStringLiteral("lkvcdxbuild"), Factory<frm_lkvcdxbuild>()},
        {QStringLiteral("vcdimager"), Factory<frm_vcdimager>()},
        {QStringLiteral("vcdxrip"), Factory<frm_vcdxrip>()},
        {QStringLiteral("lkvcdxrip"), Factory<frm_lkvcdxrip>()},
        {QStringLiteral("subindex"), Factory<frm_subindex>()},
        {QStringLiteral("regen"), Factory<frm_regen>()},
    };
    return factories;
}

}  // namespace torvane

namespace torvane {

void UnloadToolDialog(QCloseEvent& event, JobFrame& frame, frm_mainmenu& menu) {
    if (!frame.Form_Unload()) {
        event.ignore();
        return;
    }
    ReturnToMainMenu(menu);
    event.accept();
}

}  // namespace torvane

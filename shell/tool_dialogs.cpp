#include "shell/tool_dialogs.h"

#include "inspect/frm_vcdxminfo.h"

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
    };
    return factories;
}

}  // namespace torvane

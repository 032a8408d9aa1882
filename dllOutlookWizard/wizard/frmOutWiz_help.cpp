#include <utility>

#include "Platform.h"
#include "StandardHandler.h"
#include "frmOutWiz.h"
#include "frmPopHelp.h"
#include "m_OutlookWizard.h"

namespace tarnel {

bool frmOutWiz::openHelpPop(std::int32_t HelpNum) {
  return standardHandler<bool>(modules::frmOutWiz, "openHelpPop", [&](bool& opened) {
    // This copy outlasts helpPop_: the popup goes from within its own procedures.
    const auto popup = std::make_shared<frmPopHelp>();
    helpPop_ = popup;
    const Connection onClose = popup->closePop.connect([this] { helpPop_closePop(); });
    popup->load();
    popup->Setup(HelpNum);
    popup->setHelpPrinterSettings(session().theTaskPrintSetting);
    runModal(*popup);
    helpPop_closePop();
    opened = true;
  });
}

void frmOutWiz::helpPop_closePop() {
  standardHandler(modules::frmOutWiz, "helpPop_closePop", [this] {
    if (const auto popup = std::exchange(helpPop_, nullptr)) popup->unload();
  });
}

}  // namespace tarnel

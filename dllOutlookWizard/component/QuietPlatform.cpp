#include "QuietPlatform.h"

namespace tarnel {

MessageAnswer QuietPlatform::QuietDesktop::message(const Message& message) {
  const bool onlyTells = message.icon == MessageIcon::information && message.buttons == MessageButtons::ok;
  return onlyTells ? MessageAnswer::ok : real_.message(message);
}

QuietPlatform::QuietPlatform() : before_(platform()), desktop_(before_.desktop) {
  installPlatform({.desktop = desktop_,
                   .clock = before_.clock,
                   .locale = before_.locale,
                   .registry = before_.registry,
                   .database = before_.database,
                   .outlook = before_.outlook,
                   .errorReport = before_.errorReport,
                   .utilities = before_.utilities,
                   .applicationFolder = before_.applicationFolder,
                   .mailbox = before_.mailbox});
}

QuietPlatform::~QuietPlatform() { installPlatform(before_); }

}  // namespace tarnel

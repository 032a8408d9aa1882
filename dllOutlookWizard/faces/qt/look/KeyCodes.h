#pragma once

class QKeyEvent;

namespace tarnel::qt {

// The virtual key code under which a form knows a key: 13 Enter, 27 Escape, 112 F1, letters and digits by their
// capitals' codes. 0 for a key that forms don't ask for.
int keyCodeOf(const QKeyEvent& event);

}  // namespace tarnel::qt

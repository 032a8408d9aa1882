#include "KeyCodes.h"

#include <QKeyEvent>
#include <array>
#include <utility>

namespace tarnel::qt {

int keyCodeOf(const QKeyEvent& event) {
  static constexpr std::array<std::pair<Qt::Key, int>, 14> named{{{Qt::Key_Return, 13},
                                                                  {Qt::Key_Enter, 13},
                                                                  {Qt::Key_Escape, 27},
                                                                  {Qt::Key_Backspace, 8},
                                                                  {Qt::Key_Space, 32},
                                                                  {Qt::Key_PageUp, 33},
                                                                  {Qt::Key_PageDown, 34},
                                                                  {Qt::Key_End, 35},
                                                                  {Qt::Key_Home, 36},
                                                                  {Qt::Key_Left, 37},
                                                                  {Qt::Key_Up, 38},
                                                                  {Qt::Key_Right, 39},
                                                                  {Qt::Key_Down, 40},
                                                                  {Qt::Key_Delete, 46}}};
  const int key = event.key();
  for (const auto& [name, code] : named)
    if (key == name) return code;
  if ((key >= Qt::Key_A && key <= Qt::Key_Z) || (key >= Qt::Key_0 && key <= Qt::Key_9)) return key;
  if (key >= Qt::Key_F1 && key <= Qt::Key_F24) return key - Qt::Key_F1 + 112;
  return 0;
}

}  // namespace tarnel::qt

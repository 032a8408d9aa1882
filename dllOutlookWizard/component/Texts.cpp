#include "Texts.h"

#include <new>

#include "Contained.h"

namespace tarnel {

std::string received(const TarnelText* text) {
  if (!text || (!text->bytes && text->length > 0)) throw Refusal{TARNEL_NULL_POINTER};
  if (text->length == 0) return {};
  std::string result(text->bytes, text->length);
  if (result.find('\0') != std::string::npos) throw Refusal{TARNEL_INVALID_ARGUMENT};
  return result;
}

TarnelText handedBack(const std::string& text) {
  TarnelText result{};
  if (tarnelReplaceText(&result, text.c_str()) != TARNEL_OK) throw std::bad_alloc();
  return result;
}

}  // namespace tarnel

#include "IcsLines.h"

#include <algorithm>
#include <optional>

#include "Conversions.h"

namespace tarnel::mailbox {
namespace {

// None for a line that is no property.
std::optional<IcsProperty> parseProperty(const IcsLine& line) {
  const std::string_view text = line.text;
  IcsProperty property;
  property.line = line;
  std::size_t at = std::min(text.find_first_of(";:"), text.size());
  property.name = toUpper(text.substr(0, at));
  if (property.name.empty() || property.name.find_first_of(" \t\"") != std::string::npos) return {};
  while (at < text.size() && text[at] == ';') {
    const std::size_t sign = text.find('=', at);
    if (sign == std::string_view::npos) return {};
    std::size_t end = sign + 1;
    for (bool quoted = false; end < text.size() && (quoted || (text[end] != ';' && text[end] != ':')); ++end)
      quoted = quoted != (text[end] == '"');
    std::string value(text.substr(sign + 1, end - sign - 1));
    std::erase(value, '"');
    property.parameters.emplace(toUpper(text.substr(at + 1, sign - at - 1)), std::move(value));
    at = end;
  }
  if (at >= text.size()) return {};
  property.value = text.substr(at + 1);
  return property;
}

bool isTopLevel(std::string_view kind) {
  return kind == "VEVENT" || kind == "VTODO" || kind == "VJOURNAL" || kind == "VFREEBUSY" || kind == "VTIMEZONE";
}

class Reader {
 public:
  void take(const IcsLine& line) {
    const std::string upper = toUpper(line.text);
    const bool begins = upper.starts_with("BEGIN:"), ends = upper.starts_with("END:");
    const std::string kind = begins ? upper.substr(6) : ends ? upper.substr(4) : "";
    if (kind == "VCALENDAR") {
      abandon();
      inside_ = begins;
      calendar_.found = calendar_.found || begins;
    } else if (begins && (!component_ || isTopLevel(kind))) {
      start(kind, line);
    } else if (component_) {
      takeInside(line, begins, ends, kind);
    }
  }

  IcsCalendar result() {
    abandon();
    return std::move(calendar_);
  }

 private:
  void start(const std::string& kind, const IcsLine& line) {
    abandon();
    if (!inside_) return;
    component_ = IcsComponent{kind, line.number, {}, {line}, {}};
    depth_ = 0;
    broken_ = false;
  }

  void takeInside(const IcsLine& line, bool begins, bool ends, const std::string& kind) {
    component_->lines.push_back(line);
    if (ends && depth_ == 0) return finish(kind);
    if (begins) ++depth_;
    if (depth_ > 0) component_->nested.push_back(line);
    if (ends) --depth_;
    if (begins || ends || depth_ > 0) return;
    if (auto property = parseProperty(line))
      component_->properties.push_back(std::move(*property));
    else
      fail(line.number, "the line is no property");
  }

  void finish(const std::string& kind) {
    if (kind != component_->kind) fail(component_->lines.back().number, "END:" + kind + " ends nothing");
    if (!broken_) calendar_.components.push_back(std::move(*component_));
    component_.reset();
  }

  void abandon() {
    if (component_) fail(component_->line, "the " + component_->kind + " isn't ended");
    component_.reset();
  }

  // One problem a component is enough.
  void fail(int line, const std::string& text) {
    if (!broken_) calendar_.problems.push_back({line, text});
    broken_ = true;
  }

  IcsCalendar calendar_;
  std::optional<IcsComponent> component_;
  bool inside_ = false;
  bool broken_ = false;
  int depth_ = 0;
};

}  // namespace

std::string IcsProperty::parameter(const std::string& key) const {
  const auto found = parameters.find(key);
  return found == parameters.end() ? "" : found->second;
}

const IcsProperty* IcsComponent::find(std::string_view name) const {
  const auto found = std::find_if(properties.begin(), properties.end(),
                                  [&](const IcsProperty& property) { return property.name == name; });
  return found == properties.end() ? nullptr : &*found;
}

std::vector<IcsLine> unfolded(std::string_view text) {
  constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
  if (text.starts_with(byteOrderMark)) text.remove_prefix(byteOrderMark.size());
  std::vector<IcsLine> lines;
  for (int number = 1; !text.empty(); ++number) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    std::string_view line = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    if (line.ends_with('\r')) line.remove_suffix(1);
    if (!lines.empty() && !line.empty() && (line.front() == ' ' || line.front() == '\t'))
      lines.back().text += line.substr(1);
    else if (!line.empty())
      lines.push_back({std::string(line), number});
  }
  return lines;
}

IcsCalendar readIcsLines(std::string_view text) {
  Reader reader;
  for (const IcsLine& line : unfolded(text)) reader.take(line);
  return reader.result();
}

std::string unescaped(std::string_view value) {
  std::string text;
  for (std::size_t i = 0; i < value.size(); ++i) {
    if (value[i] != '\\' || i + 1 == value.size()) {
      text.push_back(value[i]);
      continue;
    }
    const char next = value[++i];
    if (next == 'n' || next == 'N')
      text += "\r\n";
    else
      text.push_back(next);
  }
  return text;
}

std::string escaped(std::string_view text) {
  std::string value;
  for (const char c : text) {
    if (c == '\r') continue;
    if (c == '\n')
      value += "\\n";
    else if (c == '\\' || c == ';' || c == ',')
      (value += '\\') += c;
    else if (static_cast<unsigned char>(c) >= 0x20 || c == '\t')
      value += c;  // other control characters have no place in a calendar
  }
  return value;
}

bool isUtf8(std::string_view text) {
  for (std::size_t i = 0; i < text.size();) {
    const auto lead = static_cast<unsigned char>(text[i]);
    const std::size_t length = lead < 0x80                   ? 1
                               : lead >= 0xC2 && lead < 0xE0 ? 2
                               : lead >= 0xE0 && lead < 0xF0 ? 3
                               : lead >= 0xF0 && lead < 0xF5 ? 4
                                                             : 0;
    if (length == 0 || i + length > text.size()) return false;
    for (std::size_t k = 1; k < length; ++k)
      if ((text[i + k] & 0xC0) != 0x80) return false;
    i += length;
  }
  return true;
}

}  // namespace tarnel::mailbox

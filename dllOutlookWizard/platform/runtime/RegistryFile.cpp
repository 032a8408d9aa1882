#include "RegistryFile.h"

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <fstream>
#include <optional>
#include <system_error>

#include "Conversions.h"
#include "Failure.h"
#include "ReplaceFile.h"

namespace tarnel {
namespace {

constexpr std::string_view firstLine = "tarnel registry 1";
constexpr std::string_view escapedCharacters = "\\\t\n\r";
constexpr std::string_view escapeLetters = "\\tnr";

std::string escaped(std::string_view text) {
  std::string field;
  for (const char c : text) {
    const std::size_t special = escapedCharacters.find(c);
    if (special == std::string_view::npos) {
      field += c;
    } else {
      field += '\\';
      field += escapeLetters[special];
    }
  }
  return field;
}

std::optional<std::string> unescaped(std::string_view field) {
  std::string text;
  for (std::size_t i = 0; i < field.size(); ++i) {
    if (field[i] != '\\') {
      text += field[i];
      continue;
    }
    const std::size_t special = ++i < field.size() ? escapeLetters.find(field[i]) : std::string_view::npos;
    if (special == std::string_view::npos) return {};
    text += escapedCharacters[special];
  }
  return text;
}

std::optional<std::int32_t> numberOf(std::string_view text) {
  std::int32_t number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc{} || end != text.data() + text.size()) return {};
  return number;
}

// Kind and text of a value's line.
std::pair<std::string_view, std::string> written(const Variant& value) {
  if (const auto* number = value.get<std::int32_t>()) return {"number", std::to_string(*number)};
  if (const auto* bytes = value.get<Bytes>()) return {"bytes", hexText(*bytes)};
  return {"text", escaped(toText(value))};
}

std::optional<Variant> valueOf(std::string_view kind, std::string_view field) {
  if (kind == "text") {
    if (auto text = unescaped(field)) return Variant(std::move(*text));
  } else if (kind == "number") {
    if (const auto number = numberOf(field)) return Variant(*number);
  } else if (kind == "bytes") {
    if (auto bytes = bytesOfHex(field)) return Variant(std::move(*bytes));
  }
  return {};
}

std::vector<std::string_view> fieldsOf(std::string_view line) {
  std::vector<std::string_view> fields;
  while (true) {
    const std::size_t end = line.find('\t');
    fields.push_back(line.substr(0, end));
    if (end == std::string_view::npos) return fields;
    line.remove_prefix(end + 1);
  }
}

bool takeLine(RegistryFile& into, std::string_view line) {
  const std::vector<std::string_view> fields = fieldsOf(line);
  if (fields.size() == 2 && fields[0] == "key") {
    const auto path = unescaped(fields[1]);
    if (path) into.keys.push_back({*path, {}});
    return path.has_value();
  }
  if (fields.size() != 3 || into.keys.empty()) return false;
  auto name = unescaped(fields[1]);
  auto value = valueOf(fields[0], fields[2]);
  if (!name || !value) return false;
  into.keys.back().values.push_back({std::move(*name), std::move(*value)});
  return true;
}

}  // namespace

RegistryFile::Value* RegistryFile::Key::find(std::string_view name) {
  const auto found =
      std::find_if(values.begin(), values.end(), [name](const Value& v) { return equalsIgnoringCase(v.name, name); });
  return found == values.end() ? nullptr : &*found;
}

RegistryFile RegistryFile::read(const std::filesystem::path& file) {
  RegistryFile contents;
  std::error_code error;
  if (!std::filesystem::exists(file, error) && !error) return contents;
  errno = 0;
  std::ifstream in(file, std::ios::binary);
  std::string line;
  std::getline(in, line);
  bool good = in && line == firstLine;
  int number = 1;
  while (good && std::getline(in, line)) {
    ++number;
    good = takeLine(contents, line);
  }
  if (!in.is_open() || in.bad())
    throw Failure(failure::pathAccess, "The settings file " + file.string() + " can't be read (" +
                                           std::generic_category().message(errno) +
                                           "). Allow this user to read it, or move it away.");
  if (!good)
    throw Failure(failure::pathAccess, "The settings file " + file.string() + " can't be read at line " +
                                           std::to_string(number) + ". Correct this line or move the file away.");
  return contents;
}

bool RegistryFile::write(const std::filesystem::path& file) const {
  std::error_code error;
  std::filesystem::create_directories(file.parent_path(), error);
  std::string text(firstLine);
  text += '\n';
  for (const Key& key : keys) {
    text += "key\t" + escaped(key.path) + "\n";
    for (const Value& each : key.values) {
      const auto [kind, field] = written(each.value);
      text.append(kind).append("\t" + escaped(each.name) + "\t" + field + "\n");
    }
  }
  return !replaceFile(file, text);
}

RegistryFile::Key* RegistryFile::find(std::string_view path) {
  const auto found =
      std::find_if(keys.begin(), keys.end(), [path](const Key& key) { return equalsIgnoringCase(key.path, path); });
  return found == keys.end() ? nullptr : &*found;
}

RegistryFile::Key& RegistryFile::make(std::string_view path) {
  if (Key* there = find(path)) return *there;
  if (const std::size_t parent = path.rfind('\\'); parent != std::string_view::npos) make(path.substr(0, parent));
  return keys.emplace_back(Key{std::string(path), {}});
}

}  // namespace tarnel

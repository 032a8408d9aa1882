#include "PackedRows.h"

#include <algorithm>

namespace tarnel::ado {
namespace {

constexpr std::size_t blockLength = 65536;

std::string_view charactersOf(const Bytes& bytes) {
  return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

}  // namespace

void PackedRows::add(const Variant& value) {
  if (const auto* text = value.get<std::string>()) return addText(*text);
  if (const auto* date = value.get<Date>()) return addNumber(Kind::date, date->days);
  if (const auto* number = value.get<double>()) return addNumber(Kind::real, *number);
  if (const auto* number = value.get<float>()) return addNumber(Kind::real, static_cast<double>(*number));
  if (const auto* bytes = value.get<Bytes>()) return addCharacters(Kind::bytes, charactersOf(*bytes));
  Cell& cell = append();
  if (const auto* integer = value.get<std::int32_t>()) {
    cell.kind = Kind::integer;
    cell.integer = *integer;
  } else if (const auto* truth = value.get<bool>()) {
    cell.kind = Kind::boolean;
    cell.integer = *truth ? 1 : 0;
  }
}

PackedRows::Cell& PackedRows::append() {
  const std::size_t place = cellCount_++ % cellsInBlock;
  if (place == 0) cells_.push_back(std::make_unique<Cell[]>(cellsInBlock));
  return cells_.back()[place];
}

void PackedRows::addText(std::string_view text) { addCharacters(Kind::text, text); }

void PackedRows::addNumber(Kind kind, double number) {
  Cell& cell = append();
  cell.kind = kind;
  cell.number = number;
}

void PackedRows::addCharacters(Kind kind, std::string_view characters) {
  Cell& cell = append();
  cell.kind = kind;
  cell.length = static_cast<std::uint32_t>(characters.size());
  cell.characters = kept(characters);
}

const char* PackedRows::kept(std::string_view characters) {
  if (characters.size() > freeLength_) {
    freeLength_ = std::max(blockLength, characters.size());
    free_ = blocks_.emplace_back(new char[freeLength_]).get();
  }
  char* place = free_;
  std::copy(characters.begin(), characters.end(), place);
  free_ += characters.size();
  freeLength_ -= characters.size();
  return place;
}

Variant PackedRows::value(std::size_t row, std::size_t column) const {
  const std::size_t at = row * width_ + column;
  const Cell& cell = cells_[at / cellsInBlock][at % cellsInBlock];
  switch (cell.kind) {
    case Kind::boolean:
      return cell.integer != 0;
    case Kind::integer:
      return cell.integer;
    case Kind::real:
      return cell.number;
    case Kind::date:
      return Date{cell.number};
    case Kind::text:
      return std::string_view(cell.characters, cell.length);
    case Kind::bytes:
      return Bytes(cell.characters, cell.characters + cell.length);
    case Kind::null:
      break;
  }
  return Null{};
}

Row PackedRows::operator[](std::size_t row) const {
  Row values;
  values.reserve(width_);
  for (std::size_t column = 0; column < width_; ++column) values.push_back(value(row, column));
  return values;
}

std::vector<Row> PackedRows::unpacked() const {
  std::vector<Row> rows;
  for (std::size_t row = 0; row < size(); ++row) rows.push_back((*this)[row]);
  return rows;
}

}  // namespace tarnel::ado

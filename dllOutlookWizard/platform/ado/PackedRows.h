#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

#include "Variant.h"

namespace tarnel::ado {

using Row = std::vector<Variant>;

// Many rows of one width in little memory: 16 bytes a value, all texts in a few blocks. A Variant for each value would
// take three times that, and most of a reading's cost is memory. Values are added and never changed.
class PackedRows {
 public:
  explicit PackedRows(std::size_t width = 0) : width_(width) {}

  // The next value, row by row. An empty value counts as Null, a single-precision number as a double.
  void add(const Variant& value);
  void addText(std::string_view text);
  void addNull() { append(); }

  std::size_t size() const { return width_ == 0 ? 0 : cellCount_ / width_; }
  bool empty() const { return cellCount_ == 0; }
  Variant value(std::size_t row, std::size_t column) const;
  Row operator[](std::size_t row) const;
  std::vector<Row> unpacked() const;

  // Gives rows by value.
  class Iterator {
   public:
    Iterator(const PackedRows& rows, std::size_t row) : rows_(&rows), row_(row) {}
    Row operator*() const { return (*rows_)[row_]; }
    Iterator& operator++() {
      ++row_;
      return *this;
    }
    friend bool operator==(const Iterator&, const Iterator&) = default;

   private:
    const PackedRows* rows_;
    std::size_t row_;
  };
  Iterator begin() const { return {*this, 0}; }
  Iterator end() const { return {*this, size()}; }

 private:
  enum class Kind : std::uint8_t { null, boolean, integer, real, date, text, bytes };
  struct Cell {  // NOLINT(cppcoreguidelines-pro-type-member-init): only one of the union has a value
    Kind kind = Kind::null;
    std::uint32_t length = 0;
    union {
      double number = 0;
      std::int32_t integer;
      const char* characters;
    };
  };

  Cell& append();
  void addNumber(Kind kind, double number);
  void addCharacters(Kind kind, std::string_view characters);
  const char* kept(std::string_view characters);

  std::size_t width_;
  // In blocks, so that growing copies nothing.
  static constexpr std::size_t cellsInBlock = 1024;
  std::vector<std::unique_ptr<Cell[]>> cells_;
  std::size_t cellCount_ = 0;
  std::vector<std::unique_ptr<char[]>> blocks_;
  char* free_ = nullptr;  // within the last block
  std::size_t freeLength_ = 0;
};

}  // namespace tarnel::ado

#pragma once

#include <cstdint>

namespace tarnel::ado {

// ADO's own numbers.

enum class CursorLocation : std::int32_t { client = 3 };

enum class CursorType : std::int32_t { unspecified = -1, forwardOnly = 0, keyset = 1, dynamic = 2, fixed = 3 };

enum class LockType : std::int32_t {
  unspecified = -1,
  readOnly = 1,
  pessimistic = 2,
  optimistic = 3,
  batchOptimistic = 4
};

enum class CommandType : std::int32_t { text = 1 };

enum class State : std::int32_t { closed = 0, open = 1 };

// Which rows UpdateBatch and Resync concern. A client-side cursor without chapters has the same rows under both.
enum class Affect : std::int32_t { all = 3, allChapters = 4 };

enum class ResyncValues : std::int32_t { underlying = 1, all = 2 };

}  // namespace tarnel::ado

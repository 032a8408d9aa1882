#pragma once

#include <cstdint>
#include <filesystem>

#include "Engine.h"

namespace tarnel::bench {

// The baseline of a transfer: a program that knows nothing but the engine and makes the same commits to the same two
// files, the task database synchronous FULL, the mailbox NORMAL.
class RawTransfer {
 public:
  RawTransfer(const std::filesystem::path& tasks, const std::filesystem::path& mailbox);

  // For each task: its link mark in one transaction, then its item with the link property in another.
  void copyAll();
  // For each task: the search for its item, the item's reading, and a transaction that changes it.
  void updateAll();

 private:
  Engine tasks_;
  Engine mailbox_;
  std::int64_t linkName_ = 0;
};

}  // namespace tarnel::bench

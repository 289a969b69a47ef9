#pragma once

#include <exception>
#include <functional>
#include <string>
#include <string_view>

#include "batch_rows.h"

/// Where chunks come from, what is done to each, and where the answers go.
struct BatchWork {
  std::function<bool(std::string& chunk)> next;  ///< false behind the last
  /// Made once in each thread, and then called there for chunk after chunk.
  std::function<std::function<void(std::string_view chunk, ChunkAnswer& answer)>()> makeWorker;
  std::function<void(const ChunkAnswer& answer)> write;  ///< in the order of the chunks, one at a time
};

/// Does the work in several threads. Each takes a chunk, answers it, and waits for its turn to write, so that
/// there are never more chunks in memory than threads. If `next` fails, what it gave before is written first;
/// if anything else fails, nothing more is written. Rethrows the first failure.
void runInOrder(const BatchWork& work, unsigned threads);

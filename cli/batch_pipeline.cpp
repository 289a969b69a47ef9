#include "batch_pipeline.h"

#include <condition_variable>
#include <cstdint>
#include <mutex>
#include <optional>
#include <system_error>
#include <thread>
#include <vector>

namespace {

class OrderedRun {
 public:
  explicit OrderedRun(const BatchWork& work) : m_work(work) {}

  void takePart() {
    try {
      const auto answerChunk = m_work.makeWorker();
      std::string chunk;
      ChunkAnswer answer;
      while (const auto number = take(chunk)) {
        answerChunk(chunk, answer);
        if (!write(*number, answer)) return;
      }
    } catch (...) {
      stop();
    }
  }

  void rethrowFailure() const {
    if (m_failure) std::rethrow_exception(m_failure);
  }

 private:
  /// The next chunk and its number, counted from 0.
  std::optional<std::uint64_t> take(std::string& chunk) {
    const std::lock_guard lock(m_inputMutex);
    if (m_isAtEnd) return std::nullopt;
    try {
      m_isAtEnd = !m_work.next(chunk);
    } catch (...) {
      m_isAtEnd = true;
      m_inputFailure = std::current_exception();
    }
    if (!m_isAtEnd) return m_taken++;
    endInput();
    return std::nullopt;
  }

  void endInput() {
    const std::lock_guard lock(m_outputMutex);
    if (!m_failure) m_failure = m_inputFailure;
  }

  /// False if the run has been stopped.
  bool write(std::uint64_t number, const ChunkAnswer& answer) {
    {
      std::unique_lock lock(m_outputMutex);
      m_turnChanged.wait(lock, [&] { return m_isStopped || m_turn == number; });
      if (m_isStopped) return false;
    }
    // Whose turn it is writes alone, and the others can go on waiting.
    m_work.write(answer);
    {
      const std::lock_guard lock(m_outputMutex);
      ++m_turn;
    }
    m_turnChanged.notify_all();
    return true;
  }

  void stop() {
    {
      const std::lock_guard lock(m_outputMutex);
      if (!m_failure) m_failure = std::current_exception();
      m_isStopped = true;
    }
    m_turnChanged.notify_all();
    const std::lock_guard lock(m_inputMutex);
    m_isAtEnd = true;
  }

  const BatchWork& m_work;
  std::mutex m_inputMutex;
  bool m_isAtEnd = false;
  std::uint64_t m_taken = 0;
  std::exception_ptr m_inputFailure;
  std::mutex m_outputMutex;
  std::condition_variable m_turnChanged;
  std::uint64_t m_turn = 0;
  bool m_isStopped = false;
  std::exception_ptr m_failure;
};

}  // namespace

void runInOrder(const BatchWork& work, unsigned threads) {
  OrderedRun run(work);
  {
    std::vector<std::jthread> others;
    try {
      for (unsigned at = 1; at < threads; ++at) others.emplace_back([&run] { run.takePart(); });
    } catch (const std::system_error&) {
      // The system has no more threads for us: it takes longer with those that there are.
    }
    run.takePart();
  }
  run.rethrowFailure();
}

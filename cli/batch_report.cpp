#include "batch_report.h"

#include <algorithm>
#include <ostream>
#include <sstream>
#include <utility>

namespace {

// Also how often it is shown anew.
constexpr std::chrono::seconds kUntilShown{1};

/// Without colours, which some do not want and none needs here.
std::string progressText(std::uint64_t done, std::uint64_t size) {
  constexpr std::uint64_t width = 40;
  constexpr std::uint64_t whole = 100;
  constexpr std::uint64_t megabyte = 1'000'000;
  std::ostringstream text;
  if (size == 0) {
    text << done / megabyte << " MB";
  } else {
    const std::uint64_t share = std::min(done, size) * whole / size;
    const std::uint64_t filled = share * width / whole;
    text << '[' << std::string(filled, '#') << std::string(width - filled, '.') << "] " << share << '%';
  }
  return text.str();
}

}  // namespace

BatchReport::BatchReport(Settings settings, std::ostream& errors)
    : m_settings(std::move(settings)), m_errors(errors), m_shown(std::chrono::steady_clock::now()) {}

void BatchReport::skip(std::size_t lines, std::size_t bytes) {
  m_lines += lines;
  m_bytes += bytes;
}

void BatchReport::add(const ChunkAnswer& answer) {
  for (std::size_t at = 0; at < answer.errors.size() && m_errorCount + at < kErrorsTold; ++at)
    tell(m_lines + answer.errors[at].line + 1, answer.errors[at].reason);
  m_errorCount += answer.errorCount;
  skip(answer.lines, answer.bytes);
  if (m_settings.showsProgress) showProgress();
}

void BatchReport::fail(const std::string& reason) {
  ++m_errorCount;
  tell(m_lines + 1, reason);
}

void BatchReport::tell(std::size_t line, const std::string& reason) {
  clearProgress();
  m_errors << m_settings.name << ':' << line << ": " << reason << '\n';
}

void BatchReport::showProgress() {
  const auto now = std::chrono::steady_clock::now();
  if (now - m_shown < kUntilShown) return;
  m_shown = now;
  clearProgress();
  const std::string text = progressText(m_bytes, m_settings.size);
  m_errors << text << std::flush;
  m_barWidth = text.size();
}

void BatchReport::clearProgress() {
  if (m_barWidth == 0) return;
  m_errors << '\r' << std::string(m_barWidth, ' ') << '\r';
  m_barWidth = 0;
}

void BatchReport::finish() {
  clearProgress();
  if (m_errorCount > kErrorsTold)
    m_errors << m_settings.name << ": " << m_errorCount - kErrorsTold << " more rows with errors\n";
  m_errors.flush();
}

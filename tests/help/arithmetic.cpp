#include "arithmetic.h"

#include <stdexcept>

#include "amount_text.h"

namespace {

constexpr double kPerCent = 0.01;

class SumReader {
 public:
  SumReader(std::string_view text, std::string_view decimal) : m_rest(text) { m_locale.decimal = decimal; }

  PrintedSum read() {
    PrintedSum sum{readTerm(), {}};
    while (true) {
      if (take("+")) {
        sum.left += readTerm();
      } else if (take("−")) {
        sum.left -= readTerm();
      } else {
        break;
      }
    }
    if (!take("=")) throw std::runtime_error("no = before: " + std::string(m_rest));
    sum.result = readDigits();
    skipBlanks();
    if (!m_rest.empty()) throw std::runtime_error("more behind the sum: " + std::string(m_rest));
    return sum;
  }

 private:
  double readTerm() {
    double product = readFactor();
    while (true) {
      if (take("×")) {
        product *= readFactor();
      } else if (take("÷")) {
        product /= readFactor();
      } else {
        return product;
      }
    }
  }

  double readFactor() {
    const double number = toDouble(readDigits(), m_locale);
    return take("%") ? number * kPerCent : number;
  }

  std::string readDigits() {
    skipBlanks();
    const std::size_t end =
        std::min(m_rest.find_first_not_of("0123456789" + m_locale.decimal), m_rest.size());
    std::string digits(m_rest.substr(0, end));
    if (!isNumeric(digits, m_locale)) throw std::runtime_error("no number before: " + std::string(m_rest));
    m_rest.remove_prefix(end);
    return digits;
  }

  bool take(std::string_view sign) {
    skipBlanks();
    if (!m_rest.starts_with(sign)) return false;
    m_rest.remove_prefix(sign.size());
    return true;
  }

  void skipBlanks() {
    constexpr std::string_view noBreak = "\u00a0";
    while (m_rest.starts_with(' ') || m_rest.starts_with(noBreak)) {
      m_rest.remove_prefix(m_rest.front() == ' ' ? 1 : noBreak.size());
    }
  }

  std::string_view m_rest;
  NumberLocale m_locale;
};

}  // namespace

PrintedSum workOut(std::string_view printed, std::string_view decimal) {
  return SumReader(printed, decimal).read();
}

#pragma once

#include "amount_text.h"

/// A sum of feature fees, stored in single precision after each addition: the order of the additions shows in
/// the cents. Listing in two categories doubles some fees and leaves others alone.
class FeeTotal {
 public:
  explicit FeeTotal(bool isTwoCategories) : m_multiplier(isTwoCategories ? 2.0 : 1.0) {}

  void addDoubledForTwoCategories(float fee) { store(static_cast<double>(fee) * m_multiplier); }
  void add(float fee) { store(static_cast<double>(fee)); }

  [[nodiscard]] float total() const { return m_total; }

 private:
  void store(double addend) { m_total = storedAsSingle(static_cast<double>(m_total) + addend); }

  double m_multiplier;
  float m_total = 0.0F;
};

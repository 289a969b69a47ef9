#include "curve_picture.h"

#include <fmt/format.h>

#include <algorithm>
#include <iterator>

namespace {

constexpr double kWidth = 960;
constexpr double kHeight = 640;
constexpr double kLeft = 96;
constexpr double kRight = kWidth - 44;

/// One of the two fields, with the range of amounts that it shows.
struct Panel {
  double top;
  double bottom;
  Cents low;
  Cents high;
  Cents tick;
  Cents (*amount)(const SaleResult& result);
  const char* name;
  const char* label;
};

// Colours as attributes are for readers that know no custom properties; the rules of the sheet win elsewhere.
constexpr const char* kStyle = R"(<style>
.tessaloom{--paper:#ffffff;--ink:#1f2328;--soft:#57606a;--grid:#d8dee4;--net:#0550ae;--fees:#a33600;--dead:#b3261e}
@media (prefers-color-scheme:dark){.tessaloom{--paper:#0f1419;--ink:#e6edf3;--soft:#a3aeb9;--grid:#333b44;--net:#79b8ff;--fees:#ffab70;--dead:#ff8a80}}
.tessaloom text{font-family:system-ui,"DejaVu Sans",sans-serif;font-size:15px;fill:var(--ink)}
.tessaloom .head{font-size:19px;font-weight:600}
.tessaloom .tick{font-size:14px;fill:var(--soft)}
.tessaloom .paper{fill:var(--paper)}
.tessaloom .grid{stroke:var(--grid);stroke-width:1}
.tessaloom .axis{stroke:var(--soft);stroke-width:1.5}
.tessaloom .net,.tessaloom .fees{fill:none;stroke-width:2.25;stroke-linejoin:round}
.tessaloom .net{stroke:var(--net)}
.tessaloom .fees{stroke:var(--fees);stroke-dasharray:7 3}
.tessaloom .dead{fill:var(--dead);fill-opacity:.28}
</style>
)";

Cents netOf(const SaleResult& result) { return result.net; }
Cents feesOf(const SaleResult& result) { return result.totalFees(); }

/// The amounts that an axis shows. It begins or ends at zero, unless what is shown lies so close together,
/// far from zero, that its ups and downs would be flattened.
struct AxisEnds {
  Cents low;
  Cents high;
};

AxisEnds axisOf(const Curve& curve, Cents (*amount)(const SaleResult&)) {
  AxisEnds ends{.low = amount(curve.points.front()), .high = amount(curve.points.front())};
  for (const SaleResult& point : curve.points) {
    ends.low = std::min(ends.low, amount(point));
    ends.high = std::max(ends.high, amount(point));
  }
  const Cents span = ends.high - ends.low;
  const bool isNarrow = span > 0 && 2 * span < std::max(ends.high, -ends.low);
  if (!isNarrow) ends = {.low = std::min<Cents>(ends.low, 0), .high = std::max<Cents>(ends.high, 0)};
  if (ends.low == ends.high) ++ends.high;
  return ends;
}

class Picture {
 public:
  Picture(const Curve& curve, const PriceFunction& sale) : m_curve(curve), m_sale(sale) {}

  std::string draw() {
    begin();
    const Panel net = panel(96, 352, 6, netOf, "net", "Net");
    const Panel fees = panel(400, 560, 4, feesOf, "fees", "All fees");
    drawPrices(net, fees);
    for (const Panel& each : {net, fees}) drawField(each);
    drawLegend();
    return std::move(m_text) + "</svg>\n";
  }

 private:
  template <typename... Values>
  void add(fmt::format_string<Values...> format, Values&&... values) {
    fmt::format_to(std::back_inserter(m_text), format, std::forward<Values>(values)...);
  }

  [[nodiscard]] std::string amount(Cents cents) const { return textOf(cents, m_sale.locale()); }
  [[nodiscard]] std::string withCurrency(Cents cents) const { return currency() + " " + amount(cents); }
  [[nodiscard]] std::string currency() const { return Pricer::currencyOf(m_sale.sale().listing); }

  /// "10" rather than "10.00" where all steps are whole.
  [[nodiscard]] std::string tickText(Cents cents, Cents tick) const {
    std::string text = amount(cents);
    constexpr std::size_t decimals = 3;
    if (tick % 100 == 0) text.erase(text.size() - decimals);
    return text;
  }

  [[nodiscard]] Panel panel(double top, double bottom, Cents ticks, Cents (*amountOf)(const SaleResult&),
                            const char* name, const char* label) const {
    const AxisEnds ends = axisOf(m_curve, amountOf);
    const Cents tick = roundStep(ends.high - ends.low, ticks);
    return {top,  bottom, roundedDown(ends.low, tick), roundedUp(ends.high, tick), tick, amountOf,
            name, label};
  }

  [[nodiscard]] double x(Cents price) const {
    const auto span = static_cast<double>(std::max<Cents>(1, m_curve.range.last - m_curve.range.first));
    return kLeft + (kRight - kLeft) * static_cast<double>(price - m_curve.range.first) / span;
  }

  static double y(const Panel& panel, Cents amount) {
    return panel.bottom - (panel.bottom - panel.top) * static_cast<double>(amount - panel.low) /
                              static_cast<double>(panel.high - panel.low);
  }

  void begin() {
    add("<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 {} {}\" class=\"tessaloom\" role=\"img\" "
        "aria-labelledby=\"curve-title curve-desc\">\n",
        kWidth, kHeight);
    const std::string title =
        fmt::format("What a sale leaves, by price from {} to {}", withCurrency(m_curve.range.first),
                    withCurrency(m_curve.range.last));
    add("<title id=\"curve-title\">{}</title>\n<desc id=\"curve-desc\">{}</desc>\n", title, description());
    m_text += kStyle;
    add("<rect class=\"paper\" fill=\"#ffffff\" width=\"{}\" height=\"{}\"/>\n", kWidth, kHeight);
    add("<text class=\"head\" x=\"{}\" y=\"34\" font-size=\"19\">{}</text>\n", kLeft, title);
  }

  [[nodiscard]] std::string description() const {
    const SaleResult& first = m_curve.points.front();
    const SaleResult& last = m_curve.points.back();
    std::string text =
        fmt::format("Net goes from {} to {}, fees from {} to {}.", withCurrency(first.net),
                    withCurrency(last.net), withCurrency(first.totalFees()), withCurrency(last.totalFees()));
    if (m_curve.bands.empty()) return text + " A higher price never leaves less.";
    text += " Prices that leave less than a lower one:";
    const char* separator = " ";
    for (const DeadBand& band : m_curve.bands) {
      text += fmt::format("{}{} to {}, up to {} less", separator, amount(band.from), amount(band.to),
                          amount(band.worstLoss));
      separator = "; ";
    }
    return text + ".";
  }

  void drawField(const Panel& panel) {
    for (Cents at = panel.low; at <= panel.high; at += panel.tick) {
      const double line = y(panel, at);
      const bool isZero = at == 0;
      add("<line class=\"{}\" stroke=\"{}\" x1=\"{}\" x2=\"{}\" y1=\"{:.2f}\" y2=\"{:.2f}\"/>\n",
          isZero ? "axis" : "grid", isZero ? "#57606a" : "#d8dee4", kLeft, kRight, line, line);
      add("<text class=\"tick\" font-size=\"14\" text-anchor=\"end\" x=\"{}\" y=\"{:.2f}\">{}</text>\n",
          kLeft - 8, line + 5, tickText(at, panel.tick));
    }
    drawBands(panel);
    const bool hasZero = panel.low <= 0 && panel.high >= 0;
    add("<text x=\"{}\" y=\"{}\" font-size=\"15\">{} ({}){}</text>\n", kLeft, panel.top - 12, panel.label,
        currency(), hasZero ? "" : ", axis from " + tickText(panel.low, panel.tick));
    add(R"(<polyline class="{}" fill="none" stroke="{}" stroke-width="2.25" points=")", panel.name,
        panel.amount == netOf ? "#0550ae" : "#a33600");
    for (const SaleResult& point : m_curve.points)
      add("{:.2f},{:.2f} ", x(point.price), y(panel, panel.amount(point)));
    m_text.back() = '"';
    m_text += "/>\n";
  }

  void drawBands(const Panel& panel) {
    constexpr double thinnest = 2;
    for (const DeadBand& band : m_curve.bands) {
      const double from = x(std::max(band.from, m_curve.range.first));
      const double to = std::max(x(std::min(band.to, m_curve.range.last)), from + thinnest);
      add("<rect class=\"dead\" fill=\"#b3261e\" fill-opacity=\".28\" x=\"{:.2f}\" y=\"{}\" width=\"{:.2f}\" "
          "height=\"{}\"><title>{} to {}: up to {} less</title></rect>\n",
          from, panel.top, to - from, panel.bottom - panel.top, amount(band.from), amount(band.to),
          amount(band.worstLoss));
    }
  }

  void drawPrices(const Panel& upper, const Panel& lower) {
    constexpr Cents ticks = 8;
    const Cents tick = roundStep(m_curve.range.last - m_curve.range.first, ticks);
    const Cents first = roundedUp(m_curve.range.first, tick);
    for (Cents at = first; at <= m_curve.range.last; at += tick) {
      for (const Panel& panel : {upper, lower})
        add("<line class=\"grid\" stroke=\"#d8dee4\" x1=\"{0:.2f}\" x2=\"{0:.2f}\" y1=\"{1}\" y2=\"{2}\"/>\n",
            x(at), panel.top, panel.bottom);
      add("<text class=\"tick\" font-size=\"14\" text-anchor=\"middle\" x=\"{:.2f}\" y=\"{}\">{}</text>\n",
          x(at), lower.bottom + 22, tickText(at, tick));
    }
    add("<text x=\"{}\" y=\"{}\" font-size=\"15\" text-anchor=\"middle\">Price ({})</text>\n",
        (kLeft + kRight) / 2, lower.bottom + 48, currency());
  }

  void drawLegend() {
    constexpr double line = 54;
    add("<line class=\"net\" stroke=\"#0550ae\" stroke-width=\"2.25\" x1=\"{}\" x2=\"{}\" y1=\"{}\" "
        "y2=\"{}\"/>\n",
        kLeft + 330, kLeft + 362, line, line);
    add("<text x=\"{}\" y=\"{}\" font-size=\"15\">net</text>\n", kLeft + 370, line + 5);
    add("<line class=\"fees\" stroke=\"#a33600\" stroke-width=\"2.25\" x1=\"{}\" x2=\"{}\" y1=\"{}\" "
        "y2=\"{}\"/>\n",
        kLeft + 420, kLeft + 452, line, line);
    add("<text x=\"{}\" y=\"{}\" font-size=\"15\">all fees</text>\n", kLeft + 460, line + 5);
    if (m_curve.bands.empty()) return;
    add("<rect class=\"dead\" fill=\"#b3261e\" fill-opacity=\".28\" x=\"{}\" y=\"{}\" width=\"24\" "
        "height=\"14\"/>\n",
        kLeft + 545, line - 7);
    add("<text x=\"{}\" y=\"{}\" font-size=\"15\">asking more leaves less</text>\n", kLeft + 577, line + 5);
  }

  const Curve& m_curve;
  const PriceFunction& m_sale;
  std::string m_text;
};

}  // namespace

std::string pictureOf(const Curve& curve, const PriceFunction& sale) { return Picture(curve, sale).draw(); }

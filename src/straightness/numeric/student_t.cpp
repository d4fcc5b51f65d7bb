#include "straightness/numeric/student_t.h"

#include <charconv>
#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>

namespace korvin {
namespace {

constexpr std::size_t Width = 5;

// Fields of five characters each; the entries are found by their position.
struct Tables {
  std::string_view to30;   // k = 1, 2, 3 …
  std::string_view to49;   // k = 31, 32, 33 …
  std::string_view to199;  // ten k each, from 50 on
  std::string_view to999;  // a hundred k each, from 200 on

  constexpr bool complete() const {
    return to30.size() == 30 * Width && to49.size() == 19 * Width && to199.size() == 17 * Width &&
           to999.size() == 9 * Width;
  }
};

constexpr Tables FivePercent = {.to30 =
                                    "4.3033.1822.7762.5712.4472.3652.3062.2622.2282.201"
                                    "2.1792.1602.1452.1312.1202.1102.1012.0932.0862.080"
                                    "2.0742.0692.0642.0602.0562.0522.0482.0452.0422.039",
                                .to49 =
                                    "2.0372.0342.0322.0302.0282.0262.0242.0232.0212.020"
                                    "2.0182.0172.0152.0142.0132.0122.0112.0102.008",
                                .to199 =
                                    "2.0001.9941.9901.9871.9841.9821.9801.9781.9771.976"
                                    "1.9751.9741.9731.9721.9721.9721.968",
                                .to999 = "1.9681.9661.9651.9641.9641.9631.9631.9621.962"};
constexpr Tables OnePercent = {.to30 =
                                   "9.9255.8414.6044.0323.7073.4993.3553.2503.1693.106"
                                   "3.0553.0122.9772.9472.9212.8982.8782.8612.8452.831"
                                   "2.8192.8072.7972.7872.7792.7712.7632.7562.7502.746",
                               .to49 =
                                   "2.7422.7382.7282.7242.7192.7152.7122.7082.7042.701"
                                   "2.6982.6952.6922.6902.6872.6852.6822.6802.660",
                               .to199 =
                                   "2.6602.6482.6382.6312.6262.6212.6112.6092.6072.605"
                                   "2.6032.6022.6012.5992.5982.5962.592",
                               .to999 = "2.5922.5882.5862.5852.5842.5832.5822.5812.581"};

static_assert(FivePercent.complete() && OnePercent.complete());

// The number at `position`, which counts from 1.
double fieldAt(std::string_view table, std::int32_t position) {
  const std::string_view field = table.substr(static_cast<std::size_t>(position - 1), Width);
  double value = 0;
  std::from_chars(field.data(), field.data() + field.size(), value);
  return value;
}

double entry(std::string_view table, std::int32_t j) {
  return fieldAt(table, static_cast<std::int32_t>(Width) * j + 1);
}

// A group of `group` k shares one value: the step to the next entry is a fixed part of their difference, not
// an interpolation by k. `k` counts from 1 here.
double stepped(std::string_view table, std::int32_t k, std::int32_t group) {
  const std::int32_t p = 5 * k - 4;
  const std::int32_t j = p / (5 * group);
  const double t0 = entry(table, j);
  const double t1 = entry(table, j + 1);
  return t0 - (t1 - t0) / group;
}

}  // namespace

double StudentT(std::int32_t k, std::int16_t level) {
  if (k < 1) throw std::out_of_range("Student's t for index " + std::to_string(k));
  const Tables& tables = level > 1 ? FivePercent : OnePercent;
  if (k <= 30) return fieldAt(tables.to30, 5 * k - 4);
  if (k <= 49) return fieldAt(tables.to49, 5 * (k - 30) - 4);
  if (k <= 199) return stepped(tables.to199, k - 49, 10);
  if (k <= 999) return stepped(tables.to999, k - 199, 100);
  return entry(tables.to999, 8);
}

}  // namespace korvin

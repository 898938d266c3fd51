#include "input/Link_intake.h"

#include <algorithm>

namespace gns {

bool Link_in_interval(double weight, bool use_lower_threshold, double lower_threshold,
                      bool use_upper_threshold, double upper_threshold) {
  if (use_lower_threshold && !(weight > lower_threshold)) return false;
  return !(use_upper_threshold && !(weight < upper_threshold));
}

bool Link_intake::Is_inside(double weight) const {
  return Link_in_interval(weight, rule_.use_lower_threshold, rule_.lower_threshold,
                          rule_.use_upper_threshold, rule_.upper_threshold);
}

void Link_intake::Count_outside(double weight) {
  if (counts_.outside++ == 0) counts_.least_outside = counts_.greatest_outside = weight;
  counts_.least_outside = std::min(counts_.least_outside, weight);
  counts_.greatest_outside = std::max(counts_.greatest_outside, weight);
}

}  // namespace gns

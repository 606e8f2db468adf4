#include "support/targets.h"

#include <algorithm>

namespace kels::test {

std::vector<int> sweep_lengths(std::initializer_list<int> thresholds) {
  std::vector<int> v = {1, 2, 3, 4, 5, 7, 8, 9, 15, 16, 17, 31, 32, 33, 63, 64, 65, 100, 127, 128, 129, 255, 257};
  for (int t : thresholds) {
    for (int d = -2; d <= 2; ++d) {
      if (t + d >= 1) v.push_back(t + d);
    }
  }
  std::sort(v.begin(), v.end());
  v.erase(std::unique(v.begin(), v.end()), v.end());
  return v;
}

}  // namespace kels::test

// Where the marks of an axis are.
#ifndef GRADIX_AXISTICKS_H
#define GRADIX_AXISTICKS_H

#include <functional>
#include <vector>

namespace host {

// Multiples of 1, 2, 5, 10, 20, 50, … within the bounds, in steps that fit; finer than whole numbers only
// where the bounds are less than 1 apart. `fits` is asked of growing steps; of one wider than the axis it is
// not asked.
std::vector<double> AxisTicks(double low, double high, const std::function<bool(double step)>& fits);

}  // namespace host

#endif  // GRADIX_AXISTICKS_H

// A walk through the pages of gxhost with a large class, to find where its windows stop answering.
#ifndef GRADIX_HOSTTOUR_H
#define GRADIX_HOSTTOUR_H

#include <QString>
#include <functional>
#include <string>

struct ClassPlan;

// The longest time in which the main thread looked after no event, in seconds: by the clock, and of the
// thread's own, whatever else keeps the processors busy.
struct Gap {
  double wall = 0;
  double thread = 0;
};

// Writes the class and a gradebook to fill in into the folder, opens them and uses every page. `tell` is
// called with each step and its longest gap. False when something that should happen did not. Needs a
// QApplication.
bool TourHost(const ClassPlan& plan, const QString& folder,
              const std::function<void(const std::string& step, const Gap& gap)>& tell);

// A class of many problems: identifiers that are missing, equal or nearly equal, titles with commas.
ClassPlan TroubledClass(unsigned students, unsigned assignments);

#endif  // GRADIX_HOSTTOUR_H

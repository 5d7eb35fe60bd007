#include "Systems/LearningSystem.h"

#include <stdexcept>

#include "Systems/Systems.h"

namespace {

// In the order in which people are offered them.
constexpr const LearningSystem* kSystems[] = {
    &kCanvasSystem, &kMoodleSystem, &kBlackboardSystem, &kBrightspaceSystem, &kSchoologySystem,
    &kSakaiSystem,  &kANGELSystem,  &kWebCTSystem,      &kDetailedReport,
};

struct Found {
  const LearningSystem* system;
  const SystemFormat* format;
};

Found _Find(const FormatRow& format) {
  for (const LearningSystem* system : kSystems) {
    for (const SystemFormat& taken : system->formats) {
      if (std::string_view(taken.key) == format.key) return {system, &taken};
    }
  }
  throw std::logic_error("a format without a system");
}

}  // namespace

std::span<const LearningSystem* const> LearningSystems() {
  return kSystems;
}

const LearningSystem& SystemOf(const FormatRow& format) {
  return *_Find(format).system;
}

const CurrentFile* FindCurrentFile(const FormatRow& format) {
  return _Find(format).format->current;
}

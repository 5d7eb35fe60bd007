// The rows of the table of systems, each in the file of its system.
#ifndef GRADIX_SYSTEMS_SYSTEMS_H
#define GRADIX_SYSTEMS_SYSTEMS_H

#include "Systems/LearningSystem.h"

extern const LearningSystem kCanvasSystem;
extern const LearningSystem kMoodleSystem;
extern const LearningSystem kBlackboardSystem;
extern const LearningSystem kBrightspaceSystem;
extern const LearningSystem kSchoologySystem;
extern const LearningSystem kSakaiSystem;
extern const LearningSystem kANGELSystem;
extern const LearningSystem kWebCTSystem;
extern const LearningSystem kDetailedReport;  // stands in for the readers of the detailed report

#endif  // GRADIX_SYSTEMS_SYSTEMS_H

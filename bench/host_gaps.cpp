// How long gxhost's windows answer nothing while a large class is opened and its pages are used: for each
// step the longest gap of the event loop, by the clock and in the main thread's own time.
//
//   host_gaps [STUDENTS ASSIGNMENTS]
#include <QApplication>
#include <QSettings>
#include <QTemporaryDir>
#include <cstdio>
#include <cstdlib>

#include "bench/ClassGenerator.h"
#include "bench/HostTour.h"

int main(int argc, char** argv) {
  setenv("QT_QPA_PLATFORM", "offscreen", 0);
  const QTemporaryDir folder;
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folder.path());  // not the user's own
  QApplication::setOrganizationName(QStringLiteral("Gradix"));
  QApplication::setApplicationName(QStringLiteral("host_gaps"));
  const QApplication application(argc, argv);
  const auto number = [argc, argv](int index, unsigned otherwise) {
    return argc > index ? static_cast<unsigned>(std::strtoul(argv[index], nullptr, 10)) : otherwise;
  };
  Gap longest;
  const auto print = [](const char* step, const Gap& gap) {
    std::printf("%-36s %7.0f ms   %7.0f ms own\n", step, gap.wall * 1e3, gap.thread * 1e3);
    std::fflush(stdout);
  };
  const bool done = TourHost(TroubledClass(number(1, 2000), number(2, 60)), folder.path(),
                             [&](const std::string& step, const Gap& gap) {
                               print(step.c_str(), gap);
                               if (gap.thread > longest.thread) longest = gap;
                             });
  print("longest", longest);
  if (!done) std::fputs("host_gaps: a step did not end as it should\n", stderr);
  return done ? EXIT_SUCCESS : EXIT_FAILURE;
}

#include "Host/Window/ClassWatcher.h"

namespace host {

ClassWatcher::ClassWatcher(QObject* parent, std::function<void(Change)> /*changed*/) : QObject(parent) {}

void ClassWatcher::Watch(const QString& /*path*/) {}

ClassWatcher::Change ClassWatcher::Look() const {
  return Change::kNone;
}

}  // namespace host

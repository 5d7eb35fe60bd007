#include "Host/App/Choices.h"

#include <QSettings>
#include <QString>
#include <algorithm>

#include "Common/QZData/StudentFields.h"
#include "Systems/LearningSystem.h"

namespace host {

namespace {

constexpr const char* kFormatKey = "export/format";

QString _FieldKey(const FormatRow& format) {
  return QLatin1String("export/field/") + QLatin1String(format.key);
}

}  // namespace

const FormatRow* LastFormat() {
  return FindFormat(QSettings().value(QLatin1String(kFormatKey)).toString().toStdString());
}

void SetLastFormat(const FormatRow& format) {
  QSettings().setValue(QLatin1String(kFormatKey), QLatin1String(format.key));
}

qz::UserIDField FieldOf(const FormatRow& format) {
  const std::string key = QSettings().value(_FieldKey(format)).toString().toStdString();
  const qz::StudentField* field = qz::FindStudentField(std::string_view(key));
  return field != nullptr && field->CanIdentify() ? field->userIDField : format.defaultUserIDField;
}

void SetFieldOf(const FormatRow& format, qz::UserIDField field) {
  QSettings().setValue(_FieldKey(format), QLatin1String(qz::FindStudentField(field).key));
}

FormatOrder FormatsInTeachersOrder() {
  FormatOrder order;
  for (const LearningSystem* system : LearningSystems()) {
    for (const SystemFormat& taken : system->formats) {
      const bool isRetired = system->isRetired || &taken != &system->formats.front();
      (isRetired ? order.retired : order.inUse).push_back(FindFormat(taken.key));
    }
  }
  if (const FormatRow* const last = LastFormat()) {
    std::erase(order.inUse, last);
    std::erase(order.retired, last);
    order.inUse.insert(order.inUse.begin(), last);
  }
  return order;
}

}  // namespace host

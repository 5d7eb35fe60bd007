#include "Host/Findings/NameList.h"

#include "Host/App/Texts.h"
#include "Host/ClassView/RomanText.h"

namespace host {

namespace {

constexpr size_t kHandful = 5;

// With the last of several joined by a word.
QString _Joined(const QStringList& names) {
  if (names.size() < 2) return names.join(QString());
  return Texts::tr("%1 and %2").arg(names.first(names.size() - 1).join(QLatin1String(", ")), names.back());
}

QString _NameOf(size_t student, const qz::ClassTexts& texts) {
  const QString name = LineFromUtf8(texts.StudentName(student));
  return name.isEmpty() ? QStringLiteral("#%1").arg(student + 1) : name;
}

// `nameOf(i)` is the i-th of `count` names.
template <typename NameOf>
QString _List(size_t count, NameOf nameOf) {
  const size_t named = count > kHandful + 1 ? kHandful : count;
  QStringList names;
  for (size_t i = 0; i < named; ++i) names.append(nameOf(i));
  if (named == count) return _Joined(names);
  return names.join(QLatin1String(", ")) + u' ' + Texts::tr("and %L1 more").arg(count - named);
}

}  // namespace

QString NameList(const QStringList& names) {
  return _List(static_cast<size_t>(names.size()),
               [&names](size_t i) { return names[static_cast<qsizetype>(i)]; });
}

QString StudentNames(const std::vector<size_t>& students, const qz::ClassTexts& texts) {
  return _List(students.size(), [&](size_t i) { return _NameOf(students[i], texts); });
}

}  // namespace host

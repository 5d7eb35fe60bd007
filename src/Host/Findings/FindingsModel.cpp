#include "Host/Findings/FindingsModel.h"

#include <QStringList>

#include "Host/App/Language.h"
#include "Host/App/Texts.h"
#include "Host/ClassView/RomanText.h"
#include "Host/Findings/ConsequenceIcon.h"

namespace host {

namespace {

constexpr int kStudentRole = Qt::UserRole;
constexpr int kAssignmentRole = Qt::UserRole + 1;

// A title and what follows it: for the eye in lines, for a screen reader in one.
QStandardItem* _Item(const QString& title, const QStringList& lines = {}) {
  auto* const item = new QStandardItem((QStringList(title) + lines).join(u'\n'));
  const QString spoken = lines.isEmpty() ? title : title + QLatin1String(": ") + lines.join(u' ');
  item->setData(spoken, Qt::AccessibleTextRole);
  item->setEditable(false);
  return item;
}

void _SetPlace(QStandardItem* item, const FindingPlace& place) {
  if (place.student != FindingPlace::kNone) {
    item->setData(QVariant::fromValue(qulonglong{place.student}), kStudentRole);
  }
  if (place.assignment != FindingPlace::kNone) {
    item->setData(QVariant::fromValue(qulonglong{place.assignment}), kAssignmentRole);
  }
}

void _AddPlaces(const Finding& finding, const ExportSubject& subject, QStandardItem* item) {
  const auto count = static_cast<qsizetype>(finding.places.size());
  for (const FindingPlace& place : finding.places) {
    if (item->rowCount() == FindingsModel::kMaxPlaces) break;
    QStandardItem* const row = _Item(LineFromUtf8(DescribePlace(place, subject)));
    _SetPlace(row, place);
    item->appendRow(row);
  }
  if (count > FindingsModel::kMaxPlaces) {
    item->appendRow(_Item(Texts::tr("and %1 more").arg(count - FindingsModel::kMaxPlaces)));
  }
}

QStandardItem* _FindingItem(const Finding& finding, const ExportSubject& subject) {
  const TextLanguage language = FindingLanguage();
  const FindingText text = DescribeFinding(finding, subject, language);
  QStringList lines(LineFromUtf8(text.what));
  if (!text.advice.empty()) lines.append(Texts::tr("What to do: %1").arg(LineFromUtf8(text.advice)));
  QStandardItem* const item =
      _Item(QString::fromStdString(DescribeConsequence(finding.consequence, language)), lines);
  item->setIcon(ConsequenceIcon(finding.consequence));
  if (!finding.places.empty()) _SetPlace(item, finding.places.front());
  _AddPlaces(finding, subject, item);
  return item;
}

size_t _Position(const QModelIndex& index, int role) {
  const QVariant position = index.data(role);
  return position.isValid() ? static_cast<size_t>(position.toULongLong()) : FindingPlace::kNone;
}

}  // namespace

TextLanguage FindingLanguage() {
  return CurrentLanguage() == HostLanguage::kSpanish ? TextLanguage::kSpanish : TextLanguage::kEnglish;
}

void FindingsModel::Show(const Findings& findings, const ExportSubject& subject) {
  clear();
  for (const Finding& finding : findings) appendRow(_FindingItem(finding, subject));
}

FindingPlace FindingsModel::PlaceOf(const QModelIndex& index) {
  return {.student = _Position(index, kStudentRole), .assignment = _Position(index, kAssignmentRole)};
}

}  // namespace host

#include "Host/Findings/FindingsModel.h"

#include <QStringList>
#include <utility>

#include "Host/App/Language.h"
#include "Host/App/Texts.h"
#include "Host/ClassView/RomanText.h"
#include "Host/Findings/ConsequenceIcon.h"
#include "Host/Findings/RowItem.h"

namespace host {

namespace {

void _AddPlaces(const Finding& finding, const ExportSubject& subject, QStandardItem* item) {
  const auto count = static_cast<qsizetype>(finding.places.size());
  for (const FindingPlace& place : finding.places) {
    if (item->rowCount() == FindingsModel::kMaxPlaces) break;
    item->appendRow(MakeRowItem(LineFromUtf8(DescribePlace(place, subject))));
  }
  if (count > FindingsModel::kMaxPlaces) {
    item->appendRow(MakeRowItem(Texts::tr("and %L1 more").arg(count - FindingsModel::kMaxPlaces)));
  }
}

QStandardItem* _FindingItem(const Finding& finding, const ExportSubject& subject) {
  const TextLanguage language = FindingLanguage();
  const FindingText text = DescribeFinding(finding, subject, language);
  QStringList lines(LineFromUtf8(text.what));
  if (!text.advice.empty()) lines.append(Texts::tr("What to do: %1").arg(LineFromUtf8(text.advice)));
  QStandardItem* const item =
      MakeRowItem(QString::fromStdString(DescribeConsequence(finding.consequence, language)), lines);
  item->setIcon(ConsequenceIcon(finding.consequence));
  _AddPlaces(finding, subject, item);
  return item;
}

}  // namespace

TextLanguage FindingLanguage() {
  return CurrentLanguage() == HostLanguage::kSpanish ? TextLanguage::kSpanish : TextLanguage::kEnglish;
}

void FindingsModel::Show(Findings findings, const ExportSubject& subject) {
  clear();
  m_findings = std::move(findings);
  for (const Finding& finding : m_findings) appendRow(_FindingItem(finding, subject));
}

std::vector<FindingPlace> FindingsModel::PlacesOf(const QModelIndex& index) const {
  if (!index.isValid()) return {};
  const QModelIndex parent = index.parent();
  const auto row = static_cast<size_t>(index.row());
  if (!parent.isValid()) return m_findings[row].places;
  const std::vector<FindingPlace>& places = m_findings[static_cast<size_t>(parent.row())].places;
  const auto first = places.begin() + index.row();
  return {first, row < kMaxPlaces ? first + 1 : places.end()};
}

}  // namespace host

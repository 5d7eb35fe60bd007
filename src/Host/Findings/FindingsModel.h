// Findings as a tree: each with what will happen and what to do, below it the places that it is about.
#ifndef GRADIX_FINDINGSMODEL_H
#define GRADIX_FINDINGSMODEL_H

#include <QStandardItemModel>
#include <vector>

#include "Systems/ExportSubject.h"
#include "Systems/Finding.h"
#include "Systems/FindingTexts.h"

namespace host {

// The host's language as the sentences of findings have it.
TextLanguage FindingLanguage();

// The row of a finding has its consequence in a word as its first line, which has an icon, too.
class FindingsModel : public QStandardItemModel {
 public:
  static constexpr int kMaxPlaces = 20;  // that are listed; the others are counted

  explicit FindingsModel(QObject* parent) : QStandardItemModel(parent) {}

  // In the current language and the order in which they are given. Keeps nothing of the subject.
  void Show(Findings findings, const ExportSubject& subject);
  const Findings& Shown() const { return m_findings; }

  // What a row is about: that of a finding, all its places.
  std::vector<FindingPlace> PlacesOf(const QModelIndex& index) const;

 private:
  Findings m_findings;
};

}  // namespace host

#endif  // GRADIX_FINDINGSMODEL_H

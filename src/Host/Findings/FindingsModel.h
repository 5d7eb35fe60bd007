// Findings as a tree: each with what will happen and what to do, below it the places that it is about.
#ifndef GRADIX_FINDINGSMODEL_H
#define GRADIX_FINDINGSMODEL_H

#include <QStandardItemModel>

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

  // In the current language and the order in which they are given. Keeps nothing of the arguments.
  void Show(const Findings& findings, const ExportSubject& subject);

  // What a row is about: of a finding, the first place. Without student and assignment when there is none.
  static FindingPlace PlaceOf(const QModelIndex& index);
};

}  // namespace host

#endif  // GRADIX_FINDINGSMODEL_H

// The student fields that can be the identifier, as a tree: each with how well it is filled in, below it what
// keeps it from telling everybody apart.
#ifndef GRADIX_FIELDSMODEL_H
#define GRADIX_FIELDSMODEL_H

#include <QStandardItemModel>
#include <vector>

#include "Host/Findings/FieldAdvice.h"

namespace host {

class FieldsModel : public QStandardItemModel {
 public:
  explicit FieldsModel(QObject* parent) : QStandardItemModel(parent) {}

  // In the current language. Keeps nothing of the judgements.
  void Show(const std::vector<FieldJudgement>& all, qz::UserIDField proposed, qz::UserIDField chosen);

  // The field of a row, which may be a problem's.
  static qz::UserIDField FieldOf(const QModelIndex& index);

  // The students that a problem's row is about; of a field's, none.
  std::vector<size_t> StudentsOf(const QModelIndex& index) const;

 private:
  using Groups = std::vector<std::vector<size_t>>;

  void AddField(const FieldJudgement& judgement, qz::UserIDField proposed, qz::UserIDField chosen);
  void AddProblems(const FieldJudgement& judgement, QStandardItem* field);
  template <typename TextOf>
  void AddGroups(const Groups& groups, TextOf textOf, QStandardItem* field);
  void AddProblem(const QString& text, std::vector<size_t> students, QStandardItem* field);

  Groups m_problems;  // the students of each problem's row
};

}  // namespace host

#endif  // GRADIX_FIELDSMODEL_H

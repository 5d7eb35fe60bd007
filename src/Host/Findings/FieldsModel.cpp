#include "Host/Findings/FieldsModel.h"

#include <QApplication>
#include <QStyle>
#include <algorithm>
#include <utility>

#include "Host/App/Texts.h"
#include "Host/ClassView/RomanText.h"
#include "Host/Findings/ConsequenceIcon.h"
#include "Host/Findings/NameList.h"
#include "Host/Findings/RowItem.h"

namespace host {

namespace {

constexpr int kFieldRole = Qt::UserRole;        // of a field's row
constexpr int kProblemRole = Qt::UserRole + 1;  // of a problem's row: its position in m_problems

constexpr size_t kMaxGroups = 5;  // of one kind that have a row each

// How many have it, and how well it tells them apart.
QString _Summary(const FieldJudgement& judgement) {
  const IdentifierQuality& quality = judgement.quality;
  if (judgement.IsEmpty()) return Texts::tr("Nobody has one");
  QStringList parts(Texts::tr("%L1 of %L2 filled in").arg(quality.Filled()).arg(quality.students));
  const auto count = [](const std::vector<std::vector<size_t>>& groups) {
    return static_cast<int>(groups.size());
  };
  if (quality.duplicates.empty()) {
    parts.append(Texts::tr("all different"));
  } else {
    parts.append(Texts::tr("%Ln shared value(s)", nullptr, count(quality.duplicates)));
  }
  if (!quality.nearDuplicates.empty()) {
    parts.append(Texts::tr("%Ln nearly the same", nullptr, count(quality.nearDuplicates)));
  }
  return parts.join(QLatin1String(", "));
}

QString _Title(const FieldJudgement& judgement, bool isProposed, bool isChosen) {
  if (isProposed && isChosen) return Texts::tr("%1 (proposed, chosen)").arg(judgement.title);
  if (isProposed) return Texts::tr("%1 (proposed)").arg(judgement.title);
  if (isChosen) return Texts::tr("%1 (chosen)").arg(judgement.title);
  return judgement.title;
}

QIcon _IconOf(const FieldJudgement& judgement) {
  if (judgement.IsEmpty()) return {};
  if (!judgement.TellsEverybodyApart()) return ConsequenceIcon(Consequence::kChanged);
  return QApplication::style()->standardIcon(QStyle::SP_DialogApplyButton);
}

QString _SharedText(const FieldJudgement& judgement, const std::vector<size_t>& group) {
  return QStringLiteral("“%1”: %2")
      .arg(judgement.ValueOf(group.front()), StudentNames(group, judgement.texts));
}

QString _NearText(const FieldJudgement& judgement, const std::vector<size_t>& group) {
  QStringList values;
  for (const size_t student : group) values.append(Texts::tr("“%1”").arg(judgement.ValueOf(student)));
  return Texts::tr("Nearly the same: %1").arg(NameList(values));
}

}  // namespace

void FieldsModel::Show(const std::vector<FieldJudgement>& all, qz::UserIDField proposed,
                       qz::UserIDField chosen) {
  clear();
  m_problems.clear();
  for (const FieldJudgement& judgement : all) AddField(judgement, proposed, chosen);
}

void FieldsModel::AddField(const FieldJudgement& judgement, qz::UserIDField proposed,
                           qz::UserIDField chosen) {
  const qz::UserIDField field = judgement.field->userIDField;
  QStringList lines(_Summary(judgement));
  if (!judgement.IsEmpty()) {
    lines.append(Texts::tr("Example: %1").arg(LineFromUtf8(judgement.quality.example)));
  }
  QStandardItem* const item = MakeRowItem(_Title(judgement, field == proposed, field == chosen), lines);
  item->setData(int{field}, kFieldRole);
  item->setIcon(_IconOf(judgement));
  AddProblems(judgement, item);
  appendRow(item);
}

void FieldsModel::AddProblems(const FieldJudgement& judgement, QStandardItem* field) {
  const IdentifierQuality& quality = judgement.quality;
  if (!quality.empty.empty() && !judgement.IsEmpty()) {
    AddProblem(Texts::tr("Without: %1").arg(StudentNames(quality.empty, judgement.texts)), quality.empty,
               field);
  }
  AddGroups(
      quality.duplicates, [&](const auto& group) { return _SharedText(judgement, group); }, field);
  AddGroups(
      quality.nearDuplicates, [&](const auto& group) { return _NearText(judgement, group); }, field);
}

// A row for each of the first groups, and one for all the others.
template <typename TextOf>
void FieldsModel::AddGroups(const Groups& groups, TextOf textOf, QStandardItem* field) {
  const size_t shown = groups.size() > kMaxGroups + 1 ? kMaxGroups : groups.size();
  for (size_t i = 0; i < shown; ++i) AddProblem(textOf(groups[i]), groups[i], field);
  if (shown == groups.size()) return;
  std::vector<size_t> others;
  for (size_t i = shown; i < groups.size(); ++i) {
    others.insert(others.end(), groups[i].begin(), groups[i].end());
  }
  AddProblem(Texts::tr("and %L1 more").arg(groups.size() - shown), std::move(others), field);
}

void FieldsModel::AddProblem(const QString& text, std::vector<size_t> students, QStandardItem* field) {
  QStandardItem* const item = MakeRowItem(text);
  item->setData(QVariant::fromValue(qulonglong{m_problems.size()}), kProblemRole);
  m_problems.push_back(std::move(students));
  field->appendRow(item);
}

qz::UserIDField FieldsModel::FieldOf(const QModelIndex& index) {
  const QModelIndex field = index.parent().isValid() ? index.parent() : index;
  return static_cast<qz::UserIDField>(field.data(kFieldRole).toInt());
}

std::vector<size_t> FieldsModel::StudentsOf(const QModelIndex& index) const {
  const QVariant problem = index.data(kProblemRole);
  return problem.isValid() ? m_problems.at(static_cast<size_t>(problem.toULongLong()))
                           : std::vector<size_t>();
}

}  // namespace host

#include "shell/qt/puzzle_list_model.h"

#include <algorithm>

namespace tessel {

namespace {

bool IsByLevel(PuzzleOrder order) {
  return order == PuzzleOrder::kEasiestFirst || order == PuzzleOrder::kHardestFirst;
}

QString LevelText(const ListedLevel& level) {
  switch (level.grade) {
    case ListedGrade::kPending:
      return "…";
    case ListedGrade::kNotOne:
      return "Not one solution";
    case ListedGrade::kLevel:
      break;
  }
  const std::string_view name = grade::NameOf(level.level);
  return QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()));
}

}  // namespace

void PuzzleListModel::Append(const std::vector<ListedPuzzle>& puzzles) {
  if (puzzles.empty()) return;
  const int first = static_cast<int>(rows_.size());
  beginInsertRows({}, first, first + static_cast<int>(puzzles.size()) - 1);
  for (const ListedPuzzle& puzzle : puzzles) {
    shown_.push_back(rows_.size());
    rows_.push_back({puzzle, {}});
  }
  endInsertRows();
  Sort();
}

void PuzzleListModel::SetLevels(std::size_t first, const std::vector<ListedLevel>& levels) {
  for (std::size_t k = 0; k < levels.size(); ++k) rows_[first + k].level = levels[k];
  graded_ += levels.size();
  // One by one they would jump about: they find their places at the end.
  if (IsByLevel(order_) && graded_ == rows_.size()) Sort();
  emit dataChanged(index(0), index(rowCount() - 1));
}

void PuzzleListModel::Order(PuzzleOrder order) {
  order_ = order;
  Sort();
}

void PuzzleListModel::Sort() {
  emit layoutAboutToBeChanged();
  const QModelIndexList before = persistentIndexList();
  std::vector<std::size_t> kept;
  for (const QModelIndex& index : before)
    kept.push_back(shown_[static_cast<std::size_t>(index.row())]);
  std::ranges::sort(shown_, [this](std::size_t a, std::size_t b) { return Before(a, b); });
  std::vector<int> placeOf(rows_.size());
  for (std::size_t k = 0; k < shown_.size(); ++k) placeOf[shown_[k]] = static_cast<int>(k);
  QModelIndexList after;
  for (const std::size_t row : kept) after << index(placeOf[row]);
  changePersistentIndexList(before, after);
  emit layoutChanged();
}

bool PuzzleListModel::Before(std::size_t a, std::size_t b) const {
  if (order_ == PuzzleOrder::kNewestFirst) return a > b;
  if (order_ == PuzzleOrder::kOldestFirst) return a < b;
  const ListedLevel& one = rows_[a].level;
  const ListedLevel& other = rows_[b].level;
  const bool isKnown = one.grade == ListedGrade::kLevel;
  if (isKnown != (other.grade == ListedGrade::kLevel)) return isKnown;
  if (!isKnown || one.level == other.level) return a < b;
  return (one.level < other.level) == (order_ == PuzzleOrder::kEasiestFirst);
}

const PuzzleListModel::Row& PuzzleListModel::RowAt(const QModelIndex& index) const {
  return rows_[shown_[static_cast<std::size_t>(index.row())]];
}

const PuzzleRecord& PuzzleListModel::RecordAt(const QModelIndex& index) const {
  return RowAt(index).puzzle.record;
}

int PuzzleListModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(shown_.size());
}

QVariant PuzzleListModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const Row& row = RowAt(index);
  const QString number = QString::number(row.puzzle.number);
  if (role == Qt::DisplayRole) return number + "  " + LevelText(row.level);
  if (role != Qt::AccessibleTextRole && role != Qt::ToolTipRole) return {};
  const auto givens = kCellCount - std::ranges::count(row.puzzle.record.Board, 0);
  const QString level =
      row.level.grade == ListedGrade::kPending ? "not yet graded" : LevelText(row.level);
  return QString("Puzzle %1, %2 givens, %3").arg(number).arg(givens).arg(level);
}

}  // namespace tessel

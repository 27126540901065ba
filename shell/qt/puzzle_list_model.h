// The puzzles of a file as a list that views show.
#pragma once

#include <QAbstractListModel>
#include <vector>

#include "shell/puzzle_listing.h"

namespace tessel {

enum class PuzzleOrder : std::uint8_t { kNewestFirst, kOldestFirst, kEasiestFirst, kHardestFirst };

class PuzzleListModel final : public QAbstractListModel {
  Q_OBJECT

 public:
  using QAbstractListModel::QAbstractListModel;

  void Append(const std::vector<ListedPuzzle>& puzzles);
  // Of the puzzles from `first` on, in the order in which they were appended.
  void SetLevels(std::size_t first, const std::vector<ListedLevel>& levels);
  // Puzzles without a level come last in both orders by level.
  void Order(PuzzleOrder order);

  const PuzzleRecord& RecordAt(const QModelIndex& index) const;
  // How many have been graded.
  std::size_t Graded() const { return graded_; }

  int rowCount(const QModelIndex& parent = {}) const override;
  // Qt::DisplayRole: "12  Hard"; the longer text for screen readers and as a tooltip.
  QVariant data(const QModelIndex& index, int role) const override;

 private:
  struct Row {
    ListedPuzzle puzzle;
    ListedLevel level;
  };

  const Row& RowAt(const QModelIndex& index) const;
  bool Before(std::size_t a, std::size_t b) const;
  void Sort();

  std::vector<Row> rows_;           // in the order of the file
  std::vector<std::size_t> shown_;  // indices of rows_, as they are listed
  PuzzleOrder order_ = PuzzleOrder::kNewestFirst;
  std::size_t graded_ = 0;
};

}  // namespace tessel

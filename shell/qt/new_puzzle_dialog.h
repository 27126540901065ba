// Asks what puzzle is wished, and has it made.
#pragma once

#include <QDialog>
#include <memory>
#include <optional>

#include "shell/new_puzzle.h"

class QCheckBox;
class QComboBox;
class QDialogButtonBox;
class QElapsedTimer;
class QLabel;

namespace tessel {

class NewPuzzleDialog final : public QDialog {
  Q_OBJECT

 public:
  // Opens with this wish. What is made depends on the wish and the seed alone.
  NewPuzzleDialog(const NewPuzzleWish& wish, std::uint64_t seed, QWidget* parent);
  ~NewPuzzleDialog() override;

  // As the dialog shows it.
  NewPuzzleWish Wish() const;
  // Once the dialog was accepted.
  const std::optional<Puzzle>& Made() const { return made_; }

 private:
  void BuildForm(const NewPuzzleWish& wish);
  void Make();
  void Take(const Puzzle& puzzle);
  void TellProgress();

  std::uint64_t seed_;
  QWidget* choices_ = nullptr;
  QComboBox* layout_ = nullptr;
  QCheckBox* symmetric_ = nullptr;
  QComboBox* level_ = nullptr;
  QLabel* progress_ = nullptr;
  QDialogButtonBox* buttons_ = nullptr;
  std::unique_ptr<QElapsedTimer> since_;
  std::optional<Puzzle> made_;
  std::unique_ptr<NewPuzzleMaking> making_;  // last: it ends before what it reaches
};

}  // namespace tessel

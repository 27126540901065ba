// Shows the puzzles of a file as small boards, to open one or to print and export several.
#pragma once

#include <QDialog>
#include <memory>
#include <vector>

#include "core/colour.h"
#include "shell/puzzle_listing.h"

class QComboBox;
class QLabel;
class QListView;
class QPushButton;

namespace tessel {

class PuzzleListModel;

class PuzzleListDialog final : public QDialog {
  Q_OBJECT

 public:
  // Lists what `source` gives, with cages in these colours. `where` says where it comes from: a
  // path, or "clipboard".
  PuzzleListDialog(const QString& title, formats::ByteSource source, const QString& where,
                   const CageColours& colours, QWidget* parent);
  ~PuzzleListDialog() override;

  // In the order in which they are listed.
  std::vector<Puzzle> Chosen() const;

 signals:
  // The dialog stays open.
  void PrintWanted();
  void ExportWanted();

 private:
  void Build(const QString& where, const CageColours& colours);
  void BuildList(const CageColours& colours);
  QLayout* BuildFoot(const QString& where);
  QPushButton* AddButton(const QString& text, const char* name);
  void List(formats::ByteSource source, const QString& where);
  void ShowCount();
  void EnableButtons();

  PuzzleListModel* model_;
  QListView* list_;
  QComboBox* order_;
  QLabel* count_;
  QPushButton* open_ = nullptr;
  QPushButton* print_ = nullptr;
  QPushButton* export_ = nullptr;
  QString trouble_;
  bool allRead_ = false;
  std::unique_ptr<PuzzleListing> listing_;  // last: it ends before what it reaches
};

}  // namespace tessel

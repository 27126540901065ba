#include "shell/qt/new_puzzle_dialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QElapsedTimer>
#include <QFormLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QTimer>

namespace tessel {

namespace {

constexpr int kTellEachMilliseconds = 200;
constexpr int kWidth = 360;  // the line of progress stays in it

QString LevelName(grade::Level level) {
  const std::string_view name = grade::NameOf(level);
  return QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()));
}

}  // namespace

NewPuzzleDialog::NewPuzzleDialog(const NewPuzzleWish& wish, std::uint64_t seed, QWidget* parent)
    : QDialog(parent), seed_(seed) {
  setObjectName("NewPuzzleDialog");
  setWindowTitle("Tessel Sudoku - New Puzzle");
  BuildForm(wish);
  connect(buttons_, &QDialogButtonBox::accepted, this, &NewPuzzleDialog::Make);
  connect(buttons_, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

NewPuzzleDialog::~NewPuzzleDialog() = default;

void NewPuzzleDialog::BuildForm(const NewPuzzleWish& wish) {
  choices_ = new QWidget(this);
  layout_ = new QComboBox(choices_);
  layout_->setObjectName("NewLayout");
  layout_->addItems({"Random cages", "Rotational cages", "Regular 3×3 boxes"});
  layout_->setCurrentIndex(static_cast<int>(wish.layout));
  level_ = new QComboBox(choices_);
  level_->setObjectName("NewLevel");
  level_->addItem("Any");
  for (int level = 1; level <= grade::kLevelCount; ++level) {
    level_->addItem(LevelName(static_cast<grade::Level>(level)));
  }
  level_->setCurrentIndex(wish.level ? static_cast<int>(*wish.level) : 0);
  symmetric_ = new QCheckBox("&Symmetric givens", choices_);
  symmetric_->setObjectName("NewSymmetric");
  symmetric_->setChecked(wish.symmetricGivens);
  auto* form = new QFormLayout(choices_);
  form->setContentsMargins({});
  form->addRow("&Layout:", layout_);
  form->addRow("L&evel:", level_);
  form->addRow(QString(), symmetric_);

  progress_ = new QLabel(this);
  progress_->setObjectName("NewProgress");
  progress_->setWordWrap(true);
  buttons_ = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  buttons_->button(QDialogButtonBox::Ok)->setText("&Make");
  buttons_->button(QDialogButtonBox::Ok)->setDefault(true);
  auto* column = new QVBoxLayout(this);
  column->addWidget(choices_);
  column->addWidget(progress_);
  column->addWidget(buttons_);
  setMinimumWidth(kWidth);
}

NewPuzzleWish NewPuzzleDialog::Wish() const {
  NewPuzzleWish wish;
  wish.layout = static_cast<maker::LayoutKind>(layout_->currentIndex());
  wish.symmetricGivens = symmetric_->isChecked();
  if (level_->currentIndex() > 0) wish.level = static_cast<grade::Level>(level_->currentIndex());
  return wish;
}

// A puzzle that is made at once changes nothing on the screen but the board.
void NewPuzzleDialog::Make() {
  choices_->setEnabled(false);
  QPushButton* const make = buttons_->button(QDialogButtonBox::Ok);
  make->setEnabled(false);
  since_ = std::make_unique<QElapsedTimer>();
  since_->start();
  auto* tell = new QTimer(this);
  connect(tell, &QTimer::timeout, this, &NewPuzzleDialog::TellProgress);
  tell->start(kTellEachMilliseconds);
  making_ = std::make_unique<NewPuzzleMaking>(Wish(), seed_, [this](const Puzzle& puzzle) {
    QMetaObject::invokeMethod(
        this, [this, puzzle] { Take(puzzle); }, Qt::QueuedConnection);
  });
}

void NewPuzzleDialog::Take(const Puzzle& puzzle) {
  made_ = puzzle;
  accept();
}

void NewPuzzleDialog::TellProgress() {
  const auto tried = static_cast<qulonglong>(making_->Refused());
  progress_->setText(
      QString("Tried %1 puzzles in %2 s. This level is rare, or the machine is busy.")
          .arg(QLocale::c().toString(tried))
          .arg(static_cast<double>(since_->elapsed()) / 1000, 0, 'f', 1));
}

}  // namespace tessel

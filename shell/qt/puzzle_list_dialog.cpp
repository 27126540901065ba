#include "shell/qt/puzzle_list_dialog.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QListView>
#include <QPainter>
#include <QPushButton>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

#include "shell/qt/puzzle_list_model.h"
#include "shell/qt/screen_fit.h"
#include "shell/qt/small_board.h"

namespace tessel {

namespace {

constexpr int kBoardSide = 118;
constexpr int kAround = 8;

// A board, and below it the item's text. Boards are painted when they come into sight.
class BoardDelegate final : public QStyledItemDelegate {
 public:
  BoardDelegate(const CageColours& colours, QObject* parent)
      : QStyledItemDelegate(parent), colours_(colours) {}

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const override {
    const int text = option.fontMetrics.height();
    return {kBoardSide + 2 * kAround, kBoardSide + text + 3 * kAround};
  }

  void paint(QPainter* painter, const QStyleOptionViewItem& given,
             const QModelIndex& index) const override {
    QStyleOptionViewItem option = given;
    initStyleOption(&option, index);
    const QRect board(option.rect.center().x() - kBoardSide / 2, option.rect.top() + kAround,
                      kBoardSide, kBoardSide);
    const auto& model = static_cast<const PuzzleListModel&>(*index.model());
    option.displayAlignment = Qt::AlignHCenter | Qt::AlignBottom;
    option.widget->style()->drawPrimitive(QStyle::PE_PanelItemViewItem, &option, painter,
                                          option.widget);
    PaintSmallBoard(*painter, board, model.RecordAt(index), colours_);
    const bool isChosen = option.state.testFlag(QStyle::State_Selected);
    const auto group =
        option.state.testFlag(QStyle::State_Active) ? QPalette::Active : QPalette::Inactive;
    painter->setPen(
        option.palette.color(group, isChosen ? QPalette::HighlightedText : QPalette::Text));
    painter->drawText(option.rect.adjusted(0, 0, 0, -kAround / 2),
                      Qt::AlignHCenter | Qt::AlignBottom, option.text);
    if (option.state.testFlag(QStyle::State_HasFocus)) DrawFocus(*painter, option);
  }

 private:
  static void DrawFocus(QPainter& painter, const QStyleOptionViewItem& option) {
    QStyleOptionFocusRect focus;
    focus.QStyleOption::operator=(option);
    option.widget->style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter,
                                          option.widget);
  }

  const CageColours colours_;
};

}  // namespace

PuzzleListDialog::PuzzleListDialog(const QString& title, formats::ByteSource source,
                                   const QString& where, const CageColours& colours,
                                   QWidget* parent)
    : QDialog(parent),
      model_(new PuzzleListModel(this)),
      list_(new QListView(this)),
      order_(new QComboBox(this)),
      count_(new QLabel(this)) {
  setObjectName("PuzzleListDialog");
  setWindowTitle("Tessel Sudoku - " + title);
  Build(where, colours);
  EnableButtons();
  List(std::move(source), where);
}

PuzzleListDialog::~PuzzleListDialog() = default;

void PuzzleListDialog::Build(const QString& where, const CageColours& colours) {
  BuildList(colours);
  count_->setObjectName("PuzzleCount");
  count_->setTextFormat(Qt::PlainText);
  count_->setWordWrap(true);
  auto* const top = new QHBoxLayout;
  top->addWidget(count_, 1);
  auto* const label = new QLabel("O&rder:", this);
  label->setBuddy(order_);
  top->addWidget(label);
  top->addWidget(order_);
  auto* const column = new QVBoxLayout(this);
  column->addLayout(top);
  column->addWidget(list_, 1);
  column->addLayout(BuildFoot(where));
  resize(720, 560);
  FitOnScreen(*this);
  list_->setFocus();
}

void PuzzleListDialog::BuildList(const CageColours& colours) {
  order_->setObjectName("PuzzleOrder");
  order_->addItems({"Newest first", "Oldest first", "Easiest first", "Hardest first"});
  connect(order_, &QComboBox::currentIndexChanged, this, [this](int chosen) {
    model_->Order(static_cast<PuzzleOrder>(chosen));
    list_->scrollToTop();
  });
  list_->setObjectName("PuzzleList");
  list_->setAccessibleName("Puzzles");
  list_->setModel(model_);
  list_->setItemDelegate(new BoardDelegate(colours, list_));
  list_->setFlow(QListView::LeftToRight);
  list_->setWrapping(true);
  list_->setResizeMode(QListView::Adjust);
  list_->setUniformItemSizes(true);
  list_->setSelectionMode(QAbstractItemView::ExtendedSelection);
  list_->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
  connect(list_->selectionModel(), &QItemSelectionModel::selectionChanged, this,
          &PuzzleListDialog::EnableButtons);
  connect(list_, &QListView::doubleClicked, this, &QDialog::accept);
}

QLayout* PuzzleListDialog::BuildFoot(const QString& where) {
  auto* const kept = new QLabel(where, this);
  kept->setObjectName("PuzzlePlace");
  kept->setTextFormat(Qt::PlainText);
  kept->setWordWrap(true);
  kept->setTextInteractionFlags(Qt::TextSelectableByMouse);
  open_ = AddButton("&Open", "OpenChosen");
  open_->setDefault(true);
  connect(open_, &QPushButton::clicked, this, &QDialog::accept);
  print_ = AddButton("&Print…", "PrintChosen");
  connect(print_, &QPushButton::clicked, this, &PuzzleListDialog::PrintWanted);
  export_ = AddButton("&Export…", "ExportChosen");
  connect(export_, &QPushButton::clicked, this, &PuzzleListDialog::ExportWanted);
  auto* const close = AddButton("&Close", "CloseList");
  connect(close, &QPushButton::clicked, this, &QDialog::reject);
  auto* const foot = new QHBoxLayout;
  foot->addWidget(kept, 1);
  for (QPushButton* const button : {open_, print_, export_, close}) foot->addWidget(button);
  return foot;
}

QPushButton* PuzzleListDialog::AddButton(const QString& text, const char* name) {
  auto* const button = new QPushButton(text, this);
  button->setObjectName(name);
  button->setAutoDefault(false);
  return button;
}

void PuzzleListDialog::List(formats::ByteSource source, const QString& where) {
  const auto onWindow = [this](auto act) {
    QMetaObject::invokeMethod(this, std::move(act), Qt::QueuedConnection);
  };
  ListingTakers takers;
  takers.found = [this, onWindow](std::vector<ListedPuzzle> puzzles) {
    onWindow([this, puzzles = std::move(puzzles)] {
      model_->Append(puzzles);
      ShowCount();
    });
  };
  takers.ended = [this, onWindow](const std::string& trouble) {
    onWindow([this, trouble] {
      allRead_ = true;
      trouble_ = QString::fromStdString(trouble);
      if (!list_->selectionModel()->hasSelection()) list_->setCurrentIndex(model_->index(0));
      ShowCount();
    });
  };
  takers.graded = [this, onWindow](std::size_t first, std::vector<ListedLevel> levels) {
    onWindow([this, first, levels = std::move(levels)] {
      model_->SetLevels(first, levels);
      ShowCount();
    });
  };
  ShowCount();
  listing_ =
      std::make_unique<PuzzleListing>(std::move(source), where.toStdString(), std::move(takers));
}

void PuzzleListDialog::ShowCount() {
  const auto count = static_cast<std::size_t>(model_->rowCount());
  QString text = count == 1 ? "1 puzzle" : QString("%1 puzzles").arg(count);
  if (!allRead_) text += ", reading…";
  if (allRead_ && count == 0) text = "No puzzle yet: every puzzle that is concealed is kept here.";
  if (allRead_ && model_->Graded() < count) text += QString(", %1 graded").arg(model_->Graded());
  if (!trouble_.isEmpty()) text += ". " + trouble_;
  count_->setText(text);
}

void PuzzleListDialog::EnableButtons() {
  const auto chosen = list_->selectionModel()->selectedIndexes().size();
  open_->setEnabled(chosen == 1);
  print_->setEnabled(chosen > 0);
  export_->setEnabled(chosen > 0);
}

std::vector<Puzzle> PuzzleListDialog::Chosen() const {
  QModelIndexList indexes = list_->selectionModel()->selectedIndexes();
  std::ranges::sort(indexes, {}, &QModelIndex::row);
  std::vector<Puzzle> puzzles;
  for (const QModelIndex& index : indexes) puzzles.push_back(PuzzleOf(model_->RecordAt(index)));
  return puzzles;
}

}  // namespace tessel

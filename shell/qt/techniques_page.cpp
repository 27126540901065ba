#include "shell/qt/techniques_page.h"

#include <QTextBrowser>
#include <QTextDocument>
#include <QUrl>

#include "shell/qt/example_board.h"
#include "shell/qt/technique_examples.h"

namespace tessel {

namespace {

constexpr int kPictureSide = 340;

constexpr char kIntroduction[] = R"(
<h2>What the hints mean</h2>
<p>A hint names the easiest step that there is, in the order of this page. In the pictures the marks
that make up the pattern are bold. Red is what follows from it: the digit that can be placed, or the
marks that can be removed with the right button.</p>
<p>Rows have letters from A to J, without I, and columns have numbers. A <i>line</i> is a row or a
column; a <i>house</i> is a row, a column or a cage.</p>
)";

QString PictureName(std::size_t index) {
  return QString("technique:%1").arg(index);
}

QString Section(const TechniqueExample& example, const ExampleBoard& board, std::size_t index) {
  return QString(
             "<h3>%1</h3><p>%2</p>"
             "<p><img src=\"%3\" width=\"%4\" height=\"%4\" alt=\"%5\"></p>"
             "<p><i>%5</i></p>")
      .arg(example.title, example.meaning, PictureName(index), QString::number(kPictureSide),
           QString::fromStdString(board.Sentence()).toHtmlEscaped());
}

}  // namespace

void FillTechniquesPage(QTextBrowser& page) {
  QString text = kIntroduction;
  std::size_t index = 0;
  for (const TechniqueExample& example : TechniqueExamples()) {
    const Layout layout = example.Cages();
    const Grid digits = example.Digits();
    const MaskBoard marks = example.Marks();
    const ExampleBoard board(*example.technique, {layout, digits, marks});
    const QImage picture = board.Picture(kPictureSide, page.devicePixelRatioF(), page.font());
    page.document()->addResource(QTextDocument::ImageResource, QUrl(PictureName(index)), picture);
    text += Section(example, board, index++);
  }
  page.setHtml(text);
}

}  // namespace tessel

#include "shell/qt/about_page.h"

#include "core/version.h"

namespace tessel {

namespace {

constexpr char kPage[] = R"(
<h2>Tessel Sudoku</h2>
<p>Version %1</p>
<p>Makes irregular and regular sudoku puzzles, each with exactly one solution, to be played here.</p>
<h3>Your puzzles</h3>
<p>Every concealed puzzle is added to the file<br><b>%2</b></p>
<h3>Licence</h3>
<p>Copyright © 2026 Tessel Sudoku contributors. Free software under the MIT licence: use it, change it
and pass it on, as long as its notice stays with it. It comes without warranty of any kind.</p>
<p>The window is made with Qt %3, which is used under the LGPL, version 3.</p>
)";

}  // namespace

QString AboutPage(const std::string& puzzleFile) {
  const QString path = QString::fromStdString(puzzleFile).toHtmlEscaped();
  return QString::fromUtf8(kPage).arg(Version(), path, qVersion());
}

}  // namespace tessel

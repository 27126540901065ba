#include "shell/qt/help_page.h"

#include "core/version.h"

namespace tessel {

namespace {

constexpr char kPage[] = R"(
<h2>Make a puzzle</h2>
<ol>
<li><b>Saw</b> cuts the board into nine cages of nine cells. Tick <i>Saw 180° Rotational</i> for cages
that look the same after half a turn, or <i>Make regular Sudoku</i> for the nine 3×3 boxes.</li>
<li><b>Fill</b> finds a solution: every digit once in each row, column and cage.</li>
<li><b>Conceal</b> hides cells as long as one solution remains, in facing pairs with <i>Conceal 180°
Rotational</i>, and saves the puzzle; the foot of the window says where.</li>
<li><b>Solve</b> lets you play it.</li>
</ol>
<p><i>Visualize progress</i> shows the work step by step, in two seconds or some more. The button of a
running Fill or Conceal reads <b>Stop</b>, and once it has, it takes no press for a moment: a Stop that
comes too late does not begin the work again. The button in colour is the next step.</p>
<p>All of this works while a game is open. The game goes on until <b>Solve</b> opens the new puzzle.</p>
<h2>Play</h2>
<p>An empty cell shows its marks, the digits that are still possible, like a keypad: 1 2 3 above,
7 8 9 below. Where you click in the cell chooses the digit.</p>
<table border="1" cellspacing="0" cellpadding="4">
<tr><th align="left">To</th><th align="left">Mouse</th><th align="left">Keyboard</th></tr>
<tr><td>choose a cell</td><td>point at it</td><td>arrows, Home, End, Page Up, Page Down</td></tr>
<tr><td>place a digit</td><td>left click on its mark</td><td>the digit</td></tr>
<tr><td>take the digit out</td><td>right click</td><td>Delete or Backspace</td></tr>
<tr><td>remove or add a mark</td><td>right click on its place</td><td>Ctrl + digit</td></tr>
<tr><td>empty the cell, show all nine marks</td><td>middle click</td><td>Insert</td></tr>
</table>
<p>The number pad works too; its 0 is Insert and its point is Delete. What counts is where you let
go of the mouse button: drag off the board to take a click back. The digits of the row above
the letters work wherever the layout has them. Where a digit is refused, the ring round the cell
flashes. Tab moves between the controls; Shift+F1 tells the key of the one that has the focus, and
<i>Help &gt; Keys</i> all of them.</p>
<p><b>Hint</b> names the next logical step and marks its rows and columns red, with an arrow. It never
changes the board. <i>Help &gt; Techniques</i> shows what each hint means. The hint's text can be
selected and copied. <b>Undo</b> (Ctrl+Z) and <b>Redo</b> (Ctrl+Y) go back and forth through every
move, also after the end. <b>Restart</b> begins the puzzle again, <b>Solution</b> shows it solved.</p>
<p>A game that you leave is kept: <b>Continue Last Game</b> in the menu <i>Puzzle</i> goes on with it.</p>
<h2>Puzzles in and out</h2>
<p><b>New</b> (Ctrl+N, Enter) makes a puzzle of the wished cages and level, ready to play. <b>Open</b>
(Ctrl+O) and <b>Paste</b> (Ctrl+V) take text lines, links of SudokuPad and f-puzzles, game IDs of Solo
and more, and <b>My Puzzles</b> (Ctrl+Shift+O) shows what Conceal has saved. A puzzle is opened only if
it has exactly one solution; opening saves nothing. <b>Copy</b> (Ctrl+C), <b>Copy Link</b>, <b>Copy
Picture</b>, <b>Export</b> (Ctrl+E) and <b>Print</b> (Ctrl+P) take the puzzle elsewhere, and <b>Explain
Way</b> writes down how it is solved, step by step.</p>
<h2>Rules that surprise</h2>
<ul>
<li>Only a digit whose mark is shown can be placed. Placing it removes it from the marks of its row,
column and cage; taking it out again does <b>not</b> give them back, as Undo does. Add a mark with the right button,
or all nine with the middle one.</li>
<li>A full board is applauded and framed, <b>right or wrong</b>, and then closed. Only Restart and Undo
open it again.</li>
<li>With <i>Update Pencilmarks</i> unticked every empty cell shows all nine marks, any digit can be
placed, and the right button only takes digits out. The hints then come from the marks as they were
kept until now.</li>
</ul>
)";

}  // namespace

QString HelpPage() {
  return QString::fromUtf8(kPage) + QString("<p>Version %1</p>").arg(Version());
}

}  // namespace tessel

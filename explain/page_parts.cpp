#include "explain/page_parts.h"

namespace tessel::explain {

// On paper steps follow each other, none of them parted.
const std::string_view kStyle = R"css(
:root { color-scheme: light; }
* { box-sizing: border-box; }
body { margin: 0; background: #fff; color: #111; font: 17px/1.5 Lato, "Segoe UI", Roboto,
  "Helvetica Neue", Arial, sans-serif; }
nav { position: sticky; top: 0; z-index: 1; display: flex; gap: .6rem; align-items: center;
  padding: .5rem 1.2rem; background: #fffd; border-bottom: 1px solid #bbb; }
nav output { min-width: 9em; font-variant-numeric: tabular-nums; }
nav .keys { margin-left: auto; color: #555; font-size: .85em; }
button { font: inherit; padding: .15rem .9rem; border: 1px solid #555; border-radius: .3rem;
  background: #fff; color: inherit; cursor: pointer; }
button:focus-visible { outline: 3px solid #0d4da6; outline-offset: 1px; }
button:disabled { color: #888; border-color: #bbb; cursor: default; }
main { max-width: 68rem; margin: 0 auto; padding: 1rem 1.2rem; }
.step { display: grid; grid-template: auto 1fr / minmax(0, 6fr) minmax(0, 5fr);
  gap: 0 2rem; margin: 0 0 2.5rem; }
.now { grid-row: 1 / 3; }
figure { margin: 0; }
.outlines { position: absolute; width: 0; height: 0; }
figure svg { display: block; width: 100%; height: auto; }
h2 { margin: 0 0 .5rem; font-size: 1.5rem; line-height: 1.2; }
p { margin: 0 0 .7rem; }
.says { font-weight: 600; }
.after { align-self: end; max-width: 22rem; }
figcaption { color: #555; font-size: .85em; }
footer { max-width: 68rem; margin: 0 auto; padding: .6rem 1.2rem 1.5rem; color: #444;
  font-size: .85em; border-top: 1px solid #ccc; }
.stepping .step { display: none; }
.stepping .step.shown { display: grid; }
.stepping .now svg { max-height: calc(100vh - 8rem); width: auto; max-width: 100%; }
body:not(.stepping) nav { display: none; }
@media (max-width: 44rem) {
  .step, .stepping .step.shown { display: block; }
  nav .keys { display: none; }
}
@media print {
  @page { margin: 14mm; }
  body { font-size: 9.5pt; }
  nav, .stepping nav { display: none; }
  main { max-width: none; padding: 0; }
  .step, .stepping .step { display: grid; break-inside: avoid; margin: 0 0 6mm;
    grid-template-columns: 73mm 1fr; }
  .stepping .now svg { max-height: none; width: 100%; }
  .after { max-width: 38mm; }
  h2 { font-size: 13pt; }
  footer { padding: 3mm 0 0; }
}
)css";

const std::string_view kScript = R"js(
(() => {
  const steps = [...document.querySelectorAll('.step')];
  const where = document.querySelector('nav output');
  const [back, on] = document.querySelectorAll('nav button');
  let at = 0;
  function show(k) {
    at = Math.max(0, Math.min(steps.length - 1, k));
    steps.forEach((step, i) => step.classList.toggle('shown', i === at));
    where.textContent = (at + 1) + ' of ' + steps.length;
    back.disabled = at === 0;
    on.disabled = at === steps.length - 1;
    scrollTo(0, 0);
  }
  const moves = {
    ArrowRight: 1, ArrowDown: 1, PageDown: 1, ArrowLeft: -1, ArrowUp: -1, PageUp: -1,
    Backspace: -1, Home: -Infinity, End: Infinity,
  };
  addEventListener('keydown', (event) => {
    if (event.ctrlKey || event.altKey || event.metaKey) return;
    const space = event.shiftKey ? -1 : 1;
    const by = event.key === ' ' ? space : moves[event.key];
    if (by === undefined) return;
    event.preventDefault();
    show(at + by);
  });
  back.addEventListener('click', () => show(at - 1));
  on.addEventListener('click', () => show(at + 1));
  document.body.classList.add('stepping');
  show(0);
})();
)js";

const std::string_view kLegend =
    "Ringed figures are what a step rests on, crossed-out ones are what it takes away. Cells on a "
    "darker ground, framed inside, are those that it looks at; bands, solid and dashed, run along "
    "its rows, columns, cages or other areas. A ring around a digit: just placed.";

}  // namespace tessel::explain

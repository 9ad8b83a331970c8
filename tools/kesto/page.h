// A self-contained page: styles for light and dark mode, and pointer interaction.
#pragma once

#include <string>
#include <string_view>

namespace kesto::command {

inline constexpr const char page_style[] = R"(
:root { color-scheme: light dark; --back: #fff; --front: #1d2330; --faint: #667085; --line: #d8dde6; --panel: #f5f7fa;
  --good: #0f7b3f; --good-back: #e6f5ec; --bad: #b3261e; --bad-back: #fdeceb; --odd-back: #fff4dc; --odd: #8a5a00;
  --structure: #dbe7ff; --vtable: #e9ebf0; --cell: #eadfff; --scalar: #d6f2dc; --count: #d3eef2; --payload: #ffe6cc; }
@media (prefers-color-scheme: dark) { :root { --back: #14171d; --front: #e3e7ee; --faint: #98a2b3; --line: #333a46;
  --panel: #1c2028; --good: #6fd394; --good-back: #15301f; --bad: #ff9d94; --bad-back: #3d1a18; --odd-back: #3a2d10;
  --odd: #f0c36a; --structure: #243a66; --vtable: #2b303a; --cell: #3d2d63; --scalar: #1e4a2b; --count: #1b444c;
  --payload: #573712; } }
* { box-sizing: border-box; }
body { margin: 0 auto; max-width: 110rem; padding: 1.2rem 1.2rem 4rem; background: var(--back); color: var(--front);
  font: 15px/1.45 system-ui, "DejaVu Sans", sans-serif; }
h1 { font-size: 1.25rem; margin: 0 0 .8rem; overflow-wrap: anywhere; }
h1 small { color: var(--faint); font-weight: normal; white-space: nowrap; }
code, pre, table, .grid, #hint { font-family: ui-monospace, "DejaVu Sans Mono", monospace; font-size: 13px; }
.verdict { border-left: 5px solid var(--good); background: var(--good-back); padding: .6rem .9rem; margin: 0 0 .8rem;
  overflow-wrap: anywhere; }
.verdict b { color: var(--good); } .verdict p { margin: .15rem 0; }
.refused { border-color: var(--bad); background: var(--bad-back); } .refused b { color: var(--bad); }
.ignored { border-color: var(--odd); background: var(--odd-back); } .ignored b { color: var(--odd); }
ul { list-style: none; margin: 0 0 .8rem; padding: 0; }
li { background: var(--odd-back); padding: .25rem .9rem; margin-bottom: 2px; overflow-wrap: anywhere; }
li b { color: var(--odd); }
.key { display: flex; flex-wrap: wrap; gap: .3rem .5rem; margin: 0 0 .8rem; font-size: 13px; color: var(--faint); }
.key span { padding: 0 .5rem; border-radius: 3px; color: var(--front); }
main { display: grid; grid-template-columns: 23rem minmax(0, 1fr); gap: 1.2rem; align-items: start; }
.grid { display: grid; grid-template-columns: repeat(auto-fill, minmax(20rem, 1fr)); column-gap: 1rem; position: sticky;
  top: .5rem; max-height: calc(100vh - 4rem); overflow: auto; background: var(--panel); padding: .6rem; }
.grid div { white-space: pre; line-height: 1.6; }
i { font-style: normal; color: var(--faint); }
.list { overflow-x: auto; }
table { border-collapse: collapse; width: 100%; }
th { text-align: left; color: var(--faint); font-weight: normal; }
th, td { padding: .1rem .5rem; border-bottom: 1px solid var(--line); vertical-align: top; }
td:first-child { text-align: right; color: var(--faint); }
.glance { overflow-x: auto; margin: 0 0 .8rem; } .glance td { overflow-wrap: anywhere; min-width: 7rem; }
.glance td:first-child { min-width: 0; width: 1%; }
.glance td:nth-child(2) { min-width: 11rem; }
.list td:nth-child(2) span { white-space: pre; } .list td:nth-child(5) { overflow-wrap: anywhere; min-width: 11rem; }
[data-r] { cursor: default; }
.structure { background: var(--structure); } .vtable { background: var(--vtable); } .cell { background: var(--cell); }
.scalar { background: var(--scalar); } .count { background: var(--count); } .payload { background: var(--payload); }
.unread { background: repeating-linear-gradient(135deg, transparent 0 4px, var(--odd-back) 4px 8px); }
.quiet { color: var(--faint); }
tr.read-last td { box-shadow: inset 0 -2px var(--bad), inset 0 2px var(--bad); }
span.read-last { outline: 2px solid var(--bad); }
.on { outline: 2px solid var(--front); } tr.on td { background: var(--vtable); }
#hint { position: fixed; left: 0; right: 0; bottom: 0; background: var(--panel); border-top: 1px solid var(--line);
  padding: .4rem 1.2rem; min-height: 2.1rem; overflow-wrap: anywhere; }
@media (max-width: 62rem) { main { grid-template-columns: minmax(0, 1fr); }
  .grid { position: static; max-height: 40vh; grid-template-columns: repeat(auto-fill, minmax(min(21rem, 100%), 1fr)); } }
@media (max-width: 34rem) { body { padding: .7rem .7rem 5rem; } code, table, .grid, #hint { font-size: 12px; }
  th, td { padding: .1rem .3rem; }
  .list th:nth-child(2), .list td:nth-child(2) { display: none; } .list td:nth-child(5) { min-width: 0; } }
@media (max-width: 22rem) { .grid i:last-child { display: none; } }
)";

inline constexpr const char page_script[] = R"(
const hint = document.getElementById('hint');
const parts = {};
for (const part of document.querySelectorAll('[data-r]'))
  (parts[part.dataset.r] ??= []).push(part);
let shown = null;
function show(r) {
  for (const part of parts[shown] ?? []) part.classList.remove('on');
  for (const part of parts[r] ?? []) part.classList.add('on');
  shown = r;
  const row = document.querySelector('tr[data-r="' + r + '"]');
  hint.textContent = row ? [0, 2, 3, 4].map(i => row.cells[i].textContent).join('   ') : '';
  hint.hidden = !row;
}
document.addEventListener('mouseover', event => show(event.target.closest('[data-r]')?.dataset.r ?? null));
document.addEventListener('click', event => {
  const part = event.target.closest('[data-r]');
  if (!part) return;
  show(part.dataset.r);
  const other = document.querySelector((part.tagName == 'SPAN' ? 'tr' : 'span') + '[data-r="' + part.dataset.r + '"]');
  other?.scrollIntoView({block: 'nearest', behavior: 'smooth'});
});
)";

std::string escaped(std::string_view text);

// The title is escaped, the body is HTML.
std::string page_of(const std::string& title, const std::string& body);

}   // namespace kesto::command

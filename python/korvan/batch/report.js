"use strict";
const body = document.querySelector("tbody");
const rows = [...body.rows];
const search = document.querySelector("input");
let state = "";

function show() {
  const wanted = search.value.toLowerCase();
  for (const row of rows) {
    const hasState = !state || row.dataset.state === state;
    row.hidden = !(hasState && (!wanted || row.textContent.toLowerCase().includes(wanted)));
  }
}

for (const button of document.querySelectorAll(".tools button")) {
  button.addEventListener("click", () => {
    state = button.dataset.state;
    for (const other of document.querySelectorAll(".tools button")) {
      other.setAttribute("aria-pressed", String(other === button));
    }
    show();
  });
}
search.addEventListener("input", show);

for (const [column, heading] of [...document.querySelectorAll("th")].entries()) {
  const button = heading.querySelector("button");
  if (!button) continue;
  button.addEventListener("click", () => {
    const ascending = heading.getAttribute("aria-sort") !== "ascending";
    for (const other of document.querySelectorAll("th")) other.removeAttribute("aria-sort");
    heading.setAttribute("aria-sort", ascending ? "ascending" : "descending");
    const isNumber = heading.classList.contains("number");
    const key = (row) => row.cells[column].dataset.value ?? row.cells[column].textContent;
    const compare = isNumber ? (a, b) => Number(key(a)) - Number(key(b)) : (a, b) => key(a).localeCompare(key(b));
    rows.sort((a, b) => (ascending ? compare(a, b) : compare(b, a)));
    body.append(...rows);
  });
}

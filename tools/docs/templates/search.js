// Search over qvxsIndex: names that begin with the words come first, then names that hold them, then lines that do.
(function () {
  "use strict";
  var field = document.getElementById("search"), list = document.getElementById("found"), entries = null, chosen = -1;

  function load() {
    entries = [];
    qvxsIndex.stems.forEach(function (s) {
      entries.push({ name: s[0], url: s[1] + ".html#" + s[0], line: s[2], rank: 0 });
      if (s[3]) s[3].split(" ").forEach(function (end) {
        if (end) entries.push({ name: s[0] + end, url: s[1] + ".html#" + s[0] + end, line: s[2], rank: 1 });
      });
    });
    qvxsIndex.rest.forEach(function (r) { entries.push({ name: r[0], url: r[1], line: r[2], rank: 0 }); });
    entries.forEach(function (e) { e.low = e.name.toLowerCase(); e.text = e.low + " " + e.line.toLowerCase(); });
  }

  function score(entry, words) {
    var total = entry.rank, i, at, word;
    for (i = 0; i < words.length; ++i) {
      word = words[i];
      at = entry.low.indexOf(word);
      if (entry.low === word || entry.low === "qvxs" + word) total += 0;
      else if (at === 0 || (at === 4 && entry.low.lastIndexOf("qvxs", 0) === 0)) total += 10 + entry.low.length / 10;
      else if (at > 0) total += 30 + entry.low.length / 10;
      else if (entry.rank === 0 && entry.text.indexOf(word) >= 0) total += 60;
      else return -1;
    }
    return total;
  }

  function show() {
    var words = field.value.toLowerCase().split(/\s+/).filter(Boolean), found = [];
    list.textContent = "";
    chosen = -1;
    if (words.length) {
      if (!entries) load();
      entries.forEach(function (entry) {
        var s = score(entry, words);
        if (s >= 0) found.push([s, entry]);
      });
      found.sort(function (a, b) { return a[0] - b[0]; });
      found.slice(0, 14).forEach(function (one) {
        var item = document.createElement("li"), link = document.createElement("a"), name = document.createElement("b"), line = document.createElement("span");
        link.href = one[1].url;
        name.textContent = one[1].name;
        line.textContent = one[1].line;
        link.append(name, line);
        item.append(link);
        list.append(item);
      });
      if (!found.length) {
        var none = document.createElement("li");
        none.textContent = "Nothing has this in its name or its line.";
        list.append(none);
      }
    }
    list.hidden = !words.length;
  }

  function choose(step) {
    var links = list.querySelectorAll("a");
    if (!links.length) return;
    if (chosen >= 0) links[chosen].classList.remove("chosen");
    chosen = (chosen + step + links.length) % links.length;
    links[chosen].classList.add("chosen");
    links[chosen].scrollIntoView({ block: "nearest" });
  }

  // A place inside of a folded list opens it.
  function unfold() {
    var target = location.hash && document.getElementById(decodeURIComponent(location.hash.slice(1)));
    var fold = target && target.closest("details");
    if (fold && !fold.open) { fold.open = true; target.scrollIntoView(); }
  }

  field.addEventListener("input", show);
  field.addEventListener("keydown", function (event) {
    var link;
    if (event.key === "ArrowDown") choose(1);
    else if (event.key === "ArrowUp") choose(-1);
    else if (event.key === "Enter") { link = list.querySelectorAll("a")[Math.max(chosen, 0)]; if (link) { location.href = link.href; list.hidden = true; } }
    else if (event.key === "Escape") { field.value = ""; show(); }
    else return;
    event.preventDefault();
  });
  list.addEventListener("click", function () { list.hidden = true; });
  document.addEventListener("click", function (event) { if (!event.target.closest(".search")) list.hidden = true; });
  document.addEventListener("keydown", function (event) {
    if (event.key === "/" && document.activeElement !== field) { field.focus(); event.preventDefault(); }
  });
  window.addEventListener("hashchange", unfold);
  if (window.matchMedia("(max-width: 60rem)").matches)
    document.querySelectorAll("aside details").forEach(function (fold) { fold.open = false; });
  var asked = new URLSearchParams(location.search).get("q");
  if (asked) { field.value = asked; show(); }
  unfold();
})();

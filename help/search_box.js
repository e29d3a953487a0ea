// The search box of the help: reads the topics from the page, and shows what is found as links.

function readTopics(page) {
  var words = {};
  page.querySelectorAll("#index li").forEach(function (entry) {
    entry.querySelectorAll("a").forEach(function (link) {
      var id = link.hash.slice(1);
      (words[id] = words[id] || []).push(entry.querySelector("span").textContent);
    });
  });
  return Array.prototype.map.call(page.querySelectorAll("main > .topic"), function (section) {
    var body = section.cloneNode(true);
    body.querySelectorAll("h1, h2, th, .chapter, .browse, .see, .contents").forEach(function (part) { part.remove(); });
    // Without what stands between them, the words of neighboring cells would become one.
    body.querySelectorAll("td, li, p, h3, blockquote").forEach(function (part) { part.append(" "); });
    return {
      id: section.id, title: section.querySelector("h1, h2").textContent, words: words[section.id] || [],
      text: body.textContent.replace(/\s+/g, " ").trim()
    };
  });
}

function SearchBox(page, topics) {
  var form = page.querySelector("form"), box = form.querySelector("input");
  var found = page.querySelector(".found"), contents = page.querySelector(".side nav");
  var said = page.querySelector("[role=status]");

  function element(name, text) {
    var made = page.createElement(name);
    made.textContent = text;
    return made;
  }

  function linkTo(topic, question) {
    var link = page.createElement("a"), excerpt = page.createElement("span");
    var parts = excerptOf(topic.text, question);
    excerpt.append(parts[0], element("mark", parts[1]), parts[2]);
    link.href = "#" + topic.id;
    link.append(element("b", topic.title), excerpt);
    var item = page.createElement("li");
    item.append(link);
    return item;
  }

  function nothing(question) {
    var index = element("a", "index");
    index.href = "#index";
    var message = page.createElement("p");
    message.append("No topic contains \u201c" + question + "\u201d. Try fewer or other words, or look in the ", index, ".");
    return message;
  }

  function list(topics, question) {
    var items = page.createElement("ol");
    topics.forEach(function (topic) { items.append(linkTo(topic, question)); });
    return items;
  }

  function show() {
    var question = box.value.trim();
    var results = findTopics(topics, question);
    contents.hidden = question !== "";
    found.textContent = "";
    said.textContent = "";
    if (question === "") return;
    found.append(results.length ? list(results, question) : nothing(question));
    said.textContent = results.length === 1 ? "1 topic found" : results.length + " topics found";
  }

  function links() { return Array.prototype.slice.call(found.querySelectorAll("a")); }

  // Up and Down walk from the box through what is found, and back.
  function walk(event) {
    var stops = [box].concat(links());
    var next = stops[stops.indexOf(page.activeElement) + (event.key === "ArrowDown" ? 1 : -1)];
    if (!next) return;
    event.preventDefault();
    next.focus();
  }

  function leave(event) {
    event.preventDefault();
    box.value = "";
    show();
    box.focus();
  }

  form.hidden = false;
  box.addEventListener("input", show);
  form.addEventListener("submit", function (event) {
    event.preventDefault();
    if (links().length) links()[0].click();
  });
  page.querySelector(".side").addEventListener("keydown", function (event) {
    if (event.key === "ArrowDown" || event.key === "ArrowUp") walk(event);
    if (event.key === "Escape") leave(event);
  });
  // The topic that was chosen has the keys: the next Tab or Page Down is one in it.
  found.addEventListener("click", function (event) {
    var link = event.target.closest("a");
    if (link) page.querySelector(link.hash).focus();
  });
  page.addEventListener("keydown", function (event) {
    var typing = /^(INPUT|TEXTAREA)$/.test(event.target.tagName);
    if (event.key !== "/" || typing || event.ctrlKey || event.altKey || event.metaKey) return;
    event.preventDefault();
    box.focus();
    box.select();
  });
  show();
}

SearchBox(document, readTopics(document));

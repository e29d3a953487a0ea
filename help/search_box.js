// The search box of the help: reads the topics from the page, and shows what is found as links.

// The topics as findTopics takes them, with the places where they are on the page.
function readTopics(page) {
  const words = indexWords(page);
  return [...page.querySelectorAll("main > .topic")].map((section) => ({
    id: section.id,
    title: section.querySelector("h1, h2").textContent,
    words: words[section.id] || [],
    text: textOf(section),
  }));
}

// The words under which the index lists each topic.
function indexWords(page) {
  const words = {};
  for (const entry of page.querySelectorAll("#index li")) {
    for (const link of entry.querySelectorAll("a")) {
      const id = link.hash.slice(1);
      (words[id] = words[id] || []).push(entry.querySelector("span").textContent);
    }
  }
  return words;
}

function textOf(section) {
  const body = section.cloneNode(true);
  body.querySelectorAll("h1, h2, th, .chapter, .browse, .see, .contents").forEach((part) => part.remove());
  // Without blanks between them, the words of neighboring cells would become one.
  body.querySelectorAll("td, li, p, h3, blockquote").forEach((part) => part.append(" "));
  return body.textContent.replace(/\s+/g, " ").trim();
}

class SearchBox {
  constructor(page, topics) {
    this.page = page;
    this.topics = topics;
    this.form = page.querySelector("form");
    this.box = this.form.querySelector("input");
    this.found = page.querySelector(".found");
    this.contents = page.querySelector(".side nav");
    this.said = page.querySelector("[role=status]");
    this.listen();
    this.form.hidden = false;
    this.show();
  }

  listen() {
    this.box.addEventListener("input", () => this.show());
    this.form.addEventListener("submit", (event) => {
      event.preventDefault();
      if (this.links().length) this.links()[0].click();
    });
    this.page.querySelector(".side").addEventListener("keydown", (event) => {
      if (event.key === "ArrowDown" || event.key === "ArrowUp") this.walk(event);
      if (event.key === "Escape") this.leave(event);
    });
    this.page.addEventListener("keydown", (event) => this.enter(event));
  }

  // Shows what is found for the question in the box, or the contents for none.
  show() {
    const question = this.box.value.trim();
    this.contents.hidden = question !== "";
    this.found.textContent = "";
    this.said.textContent = "";
    if (question === "") return;
    const results = findTopics(this.topics, question);
    this.found.append(results.length ? this.list(results, question) : this.nothing(question));
    this.said.textContent = results.length === 1 ? "1 topic found" : results.length + " topics found";
  }

  list(results, question) {
    const items = this.page.createElement("ol");
    for (const topic of results) {
      const item = this.page.createElement("li");
      item.append(this.linkTo(topic, question));
      items.append(item);
    }
    return items;
  }

  linkTo(topic, question) {
    const [before, word, behind] = excerptOf(topic.text, question);
    const excerpt = this.page.createElement("span");
    excerpt.append(before, this.element("mark", word), behind);
    const link = this.page.createElement("a");
    link.href = "#" + topic.id;
    link.append(this.element("b", topic.title), excerpt);
    return link;
  }

  nothing(question) {
    const index = this.element("a", "index");
    index.href = "#index";
    const message = this.page.createElement("p");
    message.append(`No topic contains \u201c${question}\u201d. Try fewer or other words, or look in the `, index, ".");
    return message;
  }

  element(name, text) {
    const made = this.page.createElement(name);
    made.textContent = text;
    return made;
  }

  links() {
    return [...this.found.querySelectorAll("a")];
  }

  // Up and Down walk from the box through what is found, and back.
  walk(event) {
    const stops = [this.box, ...this.links()];
    const next = stops[stops.indexOf(this.page.activeElement) + (event.key === "ArrowDown" ? 1 : -1)];
    if (!next) return;
    event.preventDefault();
    next.focus();
  }

  leave(event) {
    event.preventDefault();
    this.box.value = "";
    this.show();
    this.box.focus();
  }

  // A slash leads into the box, unless it is typed into one.
  enter(event) {
    const typing = /^(INPUT|TEXTAREA)$/.test(event.target.tagName);
    if (event.key !== "/" || typing || event.ctrlKey || event.altKey || event.metaKey) return;
    event.preventDefault();
    this.box.focus();
    this.box.select();
  }
}

new SearchBox(document, readTopics(document));

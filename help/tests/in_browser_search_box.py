"""The search box of the HTML help, in a browser that opens the page from a file."""

import unittest

from browser import BROWSERS, first_of, run_in_browser
from html_writer import write_html
from support import TOPICS, plain

BROWSER = first_of(BROWSERS)
# What a person does, and what is then seen.
HANDS = """
var box = document.querySelector("[type=search]"), found = document.querySelector(".found");
function type(text) { box.focus(); box.value = text; box.dispatchEvent(new Event("input")); }
function press(key) {
  var event = new KeyboardEvent("keydown", {key: key, bubbles: true, cancelable: true});
  return document.activeElement.dispatchEvent(event);
}
function texts(selector) {
  return Array.from(found.querySelectorAll(selector), function (part) { return part.textContent; });
}
function said() { return document.querySelector("[role=status]").textContent; }
function isContentsShown() { return !document.querySelector(".side nav").hidden; }
function isInBox() { return document.activeElement === box; }
"""
STEPS = {
    "find": """
        var first = [box.form.hidden, isContentsShown()];
        type("lost window");
        return [first, isContentsShown(), texts("b")[0], found.querySelector("a").getAttribute("href"),
          texts("mark")[0].toLowerCase(), said()];""",
    "read": """
        var topics = readTopics(document);
        var without = topics.filter(function (topic) { return !topic.text && topic.id !== "topic1"; });
        var percent = topics.filter(function (topic) { return topic.id === "topic9"; })[0];
        return [topics.length, without, topics[0].title, percent.words, percent.text];""",
    "nothing": 'type("xyzzy <b>"); return [found.textContent, texts("a"), said(), texts("b").length];',
    "empty": 'type("tape"); type(""); return [isContentsShown(), found.textContent, said()];',
    "walk": """
        type("tape");
        var links = Array.from(found.querySelectorAll("a"));
        return ["ArrowDown", "ArrowDown", "ArrowUp", "ArrowUp"].map(function (key) {
          press(key);
          return isInBox() ? "box" : links.indexOf(document.activeElement);
        });""",
    "enter": 'type("lost window"); box.form.requestSubmit(); return [location.hash, document.activeElement.id];',
    "escape": 'type("tape"); press("ArrowDown"); press("Escape"); return [box.value, isInBox(), isContentsShown()];',
    "slash": """
        document.getElementById("topic3").focus();
        var discarded = !press("/"), led = isInBox();
        return [discarded, led, press("/")];""",
    "loaded": """
        var names = performance.getEntriesByType("resource").map(function (entry) { return entry.name; });
        return names.filter(function (name) { return name.slice(0, 5) !== "data:"; });""",
}


@unittest.skipUnless(BROWSER, f"none of {', '.join(BROWSERS)} is here to open the page")
class SearchBoxTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.page = write_html("Tallyrex Help", TOPICS)
        each = "".join(f"{name}: (type(''), (function () {{{steps}}})()),\n" for name, steps in STEPS.items())
        cls.seen = run_in_browser(BROWSER, cls.page, f"{HANDS}\nreturn {{{each}}};")

    def test_shows_what_is_found_instead_of_the_contents(self):
        *seen, said = self.seen["find"]
        # An excerpt shows the first word that is in the text; the other one is in the index alone.
        self.assertEqual(seen, [[False, True], False, "The window has disappeared", "#topic47", "window"])
        self.assertRegex(said, r"^\d+ topics? found$")

    def test_every_topic_is_searched_with_its_index_words(self):
        percent = next(topic for topic in TOPICS if topic.number == 9)
        words = sorted(percent.keywords, key=lambda word: (word[0].isalpha(), word.lower()))
        *seen, text = self.seen["read"]
        self.assertEqual(seen, [len(TOPICS), [], "Tallyrex Help", words])
        # What it says, without its title, the heads of its tables, and what leads to other topics.
        self.assertTrue(text.startswith(plain(percent.blocks[0].spans)), text)
        for left_out in ("You want", "See also", "Contents"):
            self.assertNotIn(left_out, text)

    def test_says_that_nothing_is_found(self):
        words = "No topic contains \u201cxyzzy <b>\u201d. Try fewer or other words, or look in the index."
        self.assertEqual(self.seen["nothing"], [words, ["index"], "0 topics found", 0])

    def test_an_emptied_box_brings_the_contents_back(self):
        self.assertEqual(self.seen["empty"], [True, "", ""])

    def test_arrow_keys_walk_through_what_is_found(self):
        self.assertEqual(self.seen["walk"], [0, 1, 0, "box"])

    def test_enter_opens_the_first_topic_and_gives_it_the_keys(self):
        self.assertEqual(self.seen["enter"], ["#topic47", "topic47"])

    def test_escape_empties_the_box(self):
        self.assertEqual(self.seen["escape"], ["", True, True])

    def test_a_slash_leads_into_the_box_from_anywhere_and_is_typed_in_it(self):
        self.assertEqual(self.seen["slash"], [True, True, True])

    def test_loads_nothing(self):
        self.assertEqual(self.seen["loaded"], [])

    def test_without_the_script_there_is_no_box_but_contents_and_index(self):
        page = self.page[: self.page.rindex("<script>")] + "</body>\n</html>\n"
        seen = run_in_browser(
            BROWSER,
            page,
            "return [document.querySelector('form').offsetHeight,"
            " document.querySelectorAll('#index li').length > 100, document.querySelectorAll('nav a').length];",
        )
        self.assertEqual(seen, [0, True, len(TOPICS) - 1])


if __name__ == "__main__":
    unittest.main()

import re
import unittest
from base64 import b64decode
from html.parser import HTMLParser

from support import TOPICS, one_spaced, plain
from html_writer import write_html, write_redirect
from topic_checks import PICTURES, links_of, spans_of
from topic_source import Picture, Sample

VOID = {"meta", "br", "hr", "img", "link", "input"}


class Page(HTMLParser):
    """The anchors, links and words of a page; complains about tags that are not closed in order."""

    def __init__(self, text):
        super().__init__()
        self.anchors, self.links, self.outside, self.words, self.pictures = [], {}, [], {}, {}
        self.topics, self.entries = [], []
        self._open, self._section = [], None
        self.feed(text)
        self.close()
        if self._open:
            raise ValueError(f"not closed: {self._open}")

    def handle_starttag(self, tag, attributes):
        attributes = dict(attributes)
        if tag not in VOID:
            self._open.append(tag)
        if "id" in attributes:
            self.anchors.append(attributes["id"])
        if tag == "section":
            self._section = attributes["id"]
            self.topics += [attributes["id"]] if attributes.get("class") == "topic" else []
        if tag == "li" and self._section == "index":
            self.entries.append(["", []])
        if tag == "a":
            self.links.setdefault(self._section, []).append(attributes["href"])
            if "li" in self._open and self._section == "index":
                self.entries[-1][1].append(attributes["href"])
        for name in ("src", "srcset"):
            if attributes.get(name, "data:").startswith("data:image/png;base64,"):
                self.pictures.setdefault(self._section, []).append(attributes)
            elif name in attributes:
                self.outside.append(attributes[name])
        self.outside += [tag] if tag in ("link", "iframe") else []

    def handle_endtag(self, tag):
        if not self._open or self._open.pop() != tag:
            raise ValueError(f"</{tag}> closes nothing")
        if tag == "section":
            self._section = None

    def handle_data(self, data):
        self.words[self._section] = self.words.get(self._section, "") + data
        if self._open[-2:] == ["li", "span"] and self._section == "index":
            self.entries[-1][0] += data


class HtmlTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.text = write_html("Tallyrex Help", TOPICS)
        cls.page = Page(cls.text)

    def test_every_topic_has_one_anchor_by_its_number(self):
        self.assertEqual(self.page.topics, [f"topic{topic.number}" for topic in TOPICS])
        self.assertEqual(len(self.page.anchors), len(set(self.page.anchors)))

    def test_no_link_is_broken(self):
        for section, links in self.page.links.items():
            for link in links:
                self.assertIn(link[1:], self.page.anchors, section)
                self.assertTrue(link.startswith("#"), link)

    def test_links_lead_where_the_text_says(self):
        number_of = {topic.slug: topic.number for topic in TOPICS}
        for topic in TOPICS:
            links = self.page.links[f"topic{topic.number}"]
            for slug in links_of(topic, TOPICS):
                self.assertIn(f"#topic{number_of[slug]}", links, topic.slug)

    def test_contents_and_side_bar_list_every_topic(self):
        for section in ("topic1", None):
            for topic in TOPICS[1:]:
                self.assertIn(f"#topic{topic.number}", self.page.links[section])

    def test_the_index_leads_to_the_topics_with_each_keyword(self):
        expected = {}
        for topic in TOPICS:
            for keyword in topic.keywords:
                expected.setdefault(keyword, []).append(f"#topic{topic.number}")
        self.assertEqual(dict(map(tuple, self.page.entries)), expected)
        words = [word for word, _ in self.page.entries if word[0].isalpha()]
        self.assertEqual(words, sorted(words, key=str.lower))

    def test_contents_and_index_are_one_step_from_every_topic(self):
        for topic in TOPICS[1:]:
            self.assertLessEqual({"#topic1", "#index"}, set(self.page.links[f"topic{topic.number}"]), topic.slug)
        self.assertLessEqual({"#topic1", "#index"}, set(self.page.links[None]))

    def test_shows_every_word_of_every_topic(self):
        for topic in TOPICS:
            shown = one_spaced(self.page.words[f"topic{topic.number}"])
            texts = [topic.title, *topic.messages]
            for block in topic.blocks:
                texts += [span.text for span in spans_of(block)]
                texts += block.lines if isinstance(block, Sample) else ()
            for expected in texts:
                self.assertIn(one_spaced(expected), shown, topic.slug)

    def test_a_tape_keeps_its_blanks(self):
        self.assertIn("\n               1,231.50 * \n", self.page.words["topic14"])

    def test_contains_the_pictures_of_the_topics(self):
        for topic in TOPICS:
            wanted = [block for block in topic.blocks if isinstance(block, Picture)]
            pictures = self.page.pictures.get(f"topic{topic.number}", [])
            self.assertEqual([picture["alt"] for picture in pictures], [block.words for block in wanted])
            for picture, block in zip(pictures, wanted):
                data = b64decode(picture["src"].partition(",")[2])
                self.assertEqual(data, (PICTURES / f"{block.name}.png").read_bytes())
        self.assertLessEqual({"topic2", "topic23"}, set(self.page.pictures))

    def test_needs_no_other_file(self):
        self.assertEqual(self.page.outside, [])
        self.assertIsNone(re.search(r"@import|url\(|https?:", self.text))
        self.assertIn("default-src 'none'", self.text)

    def test_the_page_for_the_program_leads_to_topic_23(self):
        financial = next(topic for topic in TOPICS if topic.number == 23)
        text = write_redirect("Tallyrex.html", financial)
        self.assertIn('content="0; url=Tallyrex.html#topic23"', text)
        self.assertEqual(Page(text).links[None], ["Tallyrex.html#topic23"])

    def test_html_characters_are_escaped(self):
        self.assertIn("Win &gt; Pad Tape", self.text)
        self.assertNotIn("Win > Pad Tape", self.text)


if __name__ == "__main__":
    unittest.main()

"""The page for users can be built, says what it should, and loads nothing from elsewhere."""
import html.parser
import importlib.util
import re
import sys
import unittest

import tree

sys.path[:0] = [str(tree.ROOT / "help"), str(tree.ROOT / "help" / "tests")]

from browser import BROWSERS, first_of, stands_out  # noqa: E402
from topic_source import load_topics  # noqa: E402

ADDRESS = "https://forge.test/tallyrex"
LOADED = {"img": "src", "script": "src", "link": "href", "iframe": "src", "source": "src"}


def built_page():
    description = importlib.util.spec_from_file_location("build_page", tree.ROOT / "docs" / "build_page.py")
    module = importlib.util.module_from_spec(description)
    description.loader.exec_module(module)
    return module.page(ADDRESS)


def version():
    return re.search(r"project\(Tallyrex VERSION (\S+)",
                     (tree.ROOT / "CMakeLists.txt").read_text(encoding="utf-8"))[1]


class PageParser(html.parser.HTMLParser):
    """Collects what a page loads, where it leads, the places in it, and elements that are not closed."""

    def __init__(self, text):
        super().__init__()
        self.loaded, self.links, self.places, self.open, self.words = [], [], set(), [], ""
        self.feed(text)

    def handle_starttag(self, tag, attributes):
        attributes = dict(attributes)
        if tag in LOADED:
            self.loaded.append((tag, attributes.get(LOADED[tag], "inline")))
        if tag == "a":
            self.links.append(attributes["href"])
        if "id" in attributes:
            self.places.add("#" + attributes["id"])
        if tag not in ("img", "meta"):
            self.open.append(tag)

    def handle_endtag(self, tag):
        assert self.open.pop() == tag, tag

    def handle_data(self, data):
        self.words += data


class Page(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.text = built_page()
        cls.page = PageParser(cls.text)

    def test_is_complete_html(self):
        self.assertEqual(self.page.open, [])

    def test_loads_nothing_from_elsewhere(self):
        self.assertEqual({tag for tag, _ in self.page.loaded}, {"img"})
        for _, address in self.page.loaded:
            self.assertTrue(address.startswith("data:image/png;base64,"), address[:60])
        self.assertIsNone(re.search(r"@import|url\(", self.text))

    def test_links_lead_to_its_places_the_help_and_the_project(self):
        for link in self.page.links:
            if link.startswith("#"):
                self.assertIn(link, self.page.places)
            else:
                self.assertTrue(link.startswith((ADDRESS, "help/Tallyrex.html")), link)

    def test_offers_both_packages_at_the_address(self):
        for package in "setup.exe", "portable.zip":
            self.assertIn("%s/releases/download/v%s/Tallyrex-%s-%s" % (ADDRESS, version(), version(), package),
                          self.page.links)

    def test_leads_to_topics_that_are_in_the_help(self):
        topics = {"topic%d" % topic.number for topic in load_topics(tree.ROOT / "help" / "topics")}
        places = [link.partition("#")[2] for link in self.page.links if link.startswith("help/Tallyrex.html#")]
        self.assertLess({"topic2", "topic7"}, set(places))
        self.assertLessEqual(set(places), topics)

    def test_says_nothing_that_is_true_of_a_page_of_the_help_alone(self):
        self.assertNotIn("this page fits", self.page.words)

    def test_says_what_the_readme_the_help_and_the_change_log_say(self):
        words = " ".join(self.page.words.split())
        for passage in ("A desktop adding machine for Windows", "carries the total forward",
                        "Micro Window and Adding Machine"):
            self.assertIn(passage, words)
        self.assertIn("What is new in %s" % version(), words)

    def test_says_what_is_new_in_this_version_and_nothing_unreleased(self):
        log = (tree.ROOT / "CHANGELOG.md").read_text(encoding="utf-8")
        heading = "\n## %s\n" % version()
        self.assertIn(heading, log, "the change log has no section of this version")
        section = log.partition(heading)[2].partition("\n## ")[0]
        self.assertEqual(self.text.partition('id="new"')[2].count("<li>"), len(re.findall("^- ", section, re.M)))

    @unittest.skipUnless(first_of(BROWSERS), "there is no browser here")
    def test_fits_into_windows_of_all_widths(self):
        seen = stands_out(first_of(BROWSERS), self.text, (500, 1000, 1600))
        self.assertEqual(seen, {500: [], 1000: [], 1600: []})

    def test_comes_in_light_and_dark(self):
        self.assertIn("prefers-color-scheme: dark", self.text)

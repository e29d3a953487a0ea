import unittest

from support import TOPICS
from topic_checks import find_problems
from topic_source import (
    BOLD,
    CODE,
    LINK,
    ContentsList,
    Heading,
    HelpError,
    ListBlock,
    Note,
    Paragraph,
    Picture,
    Sample,
    Span,
    Table,
    parse_inline,
    parse_topic,
)


def topic(slug, number, body, header="", title="A title"):
    return parse_topic(slug, f"---\nnumber: {number}\ntitle: {title}\nchapter: A chapter\n{header}---\n{body}")


class OurTopicsTest(unittest.TestCase):
    def test_nothing_is_wrong_with_them(self):
        self.assertEqual(find_problems(TOPICS), [])

    def test_each_number_is_used_once(self):
        numbers = [topic.number for topic in TOPICS]
        self.assertEqual(len(numbers), len(set(numbers)))

    def test_23_is_the_financial_calculator(self):
        self.assertEqual([topic.title for topic in TOPICS if topic.number == 23], ["Financial calculator"])

    def test_the_contents_come_first(self):
        self.assertEqual(TOPICS[0].number, 1)
        self.assertIn(ContentsList(), TOPICS[0].blocks)

    def test_titles_are_different(self):
        titles = [topic.title for topic in TOPICS]
        self.assertEqual(len(titles), len(set(titles)))

    def test_topics_of_a_chapter_follow_each_other(self):
        chapters = [topic.chapter for topic in TOPICS]
        seen = [chapter for at, chapter in enumerate(chapters) if at == 0 or chapters[at - 1] != chapter]
        self.assertEqual(len(seen), len(set(seen)))

    def test_every_topic_can_be_found_in_the_index(self):
        self.assertEqual([topic.slug for topic in TOPICS if not topic.keywords], [])


class ProblemsTest(unittest.TestCase):
    """Each check finds what it is for."""

    def setUp(self):
        self.topics = [
            topic("contents", 1, "{contents}"),
            topic("money", 23, "Text", title="Financial calculator"),
        ]

    def test_correct_topics_have_no_problems(self):
        self.assertEqual(find_problems(self.topics), [])

    def test_a_number_twice(self):
        self.topics.append(topic("again", 23, "Text"))
        self.assertEqual(find_problems(self.topics), ["money and again have the number 23"])

    def test_another_topic_at_23(self):
        self.topics[1].title = "Something else"
        self.assertEqual(find_problems(self.topics), ["topic 23 must be 'Financial calculator'"])

    def test_no_contents(self):
        self.topics[0].blocks = []
        problems = find_problems(self.topics)
        self.assertIn("topic 1 must hold the line {contents}", problems)
        self.assertIn("money: cannot be reached from the contents", problems)

    def test_a_broken_link(self):
        self.topics.append(topic("third", 3, "See [this](nowhere)."))
        self.assertEqual(find_problems(self.topics), ["third: links to 'nowhere', which is no topic"])

    def test_a_broken_see_also(self):
        self.topics.append(topic("third", 3, "Text", "see: nowhere\n"))
        self.assertEqual(find_problems(self.topics), ["third: links to 'nowhere', which is no topic"])

    def test_a_keyword_written_in_two_ways(self):
        self.topics[0].keywords = ["Add Mode"]
        self.topics[1].keywords = ["add mode"]
        self.assertEqual(find_problems(self.topics), ["money: the keyword 'add mode' is also written 'Add Mode'"])

    def test_a_table_that_is_too_wide(self):
        wide = "| " + "x" * 57 + " | " + "y " * 20 + " |"
        self.topics.append(topic("third", 3, wide))
        self.assertEqual(find_problems(self.topics), ["third: a table leaves too little room for its last column"])
        self.topics[-1] = topic("third", 3, wide.replace("y " * 20, "y"))
        self.assertEqual(find_problems(self.topics), [])

    def test_a_character_that_the_viewer_lacks(self):
        self.topics.append(topic("third", 3, "The key \u221a"))
        self.assertEqual(find_problems(self.topics), ["third: '\u221a' cannot be shown by the help viewer"])

    def test_a_missing_picture(self):
        self.topics.append(topic("third", 3, "![The main window](main-window)\n\n![Nothing](nothing)"))
        self.assertEqual(find_problems(self.topics), ["third: shows 'nothing', which is no picture"])


class ParserTest(unittest.TestCase):
    def test_inline(self):
        self.assertEqual(
            parse_inline("Press **Enter** for `=`, see [Totals](totals)."),
            (
                Span("Press "),
                Span("Enter", BOLD),
                Span(" for "),
                Span("=", CODE),
                Span(", see "),
                Span("Totals", LINK, "totals"),
                Span("."),
            ),
        )

    def test_header(self):
        header = "keywords: one, two\nsee: a,\n  b\nmessage: First line\n  second line\nmessage: Other\n"
        read = topic("x", 7, "", header)
        self.assertEqual((read.number, read.title, read.chapter), (7, "A title", "A chapter"))
        self.assertEqual((read.keywords, read.see), (["one", "two"], ["a", "b"]))
        self.assertEqual(read.messages, ["First line second line", "Other"])

    def test_picture(self):
        self.assertEqual(topic("x", 1, "![A window](main-window)").blocks, [Picture("main-window", "A window")])
        with self.assertRaisesRegex(HelpError, "a picture is"):
            topic("x", 1, "![A window](main-window.png)")

    def test_blocks(self):
        body = (
            "Words\non two lines\n\n## Heading\n\n- one\n  goes on\n- two\n\n1. first\n2. second\n\n"
            "> A note\n> of two lines\n\n```\n 1.00 + \n\n```\n| a | b |\n|---|---|\n| 1 | 2 |\n\n{contents}\n"
        )
        self.assertEqual(
            topic("x", 1, body).blocks,
            [
                Paragraph((Span("Words on two lines"),)),
                Heading((Span("Heading"),)),
                ListBlock(((Span("one goes on"),), (Span("two"),)), False),
                ListBlock(((Span("first"),), (Span("second"),)), True),
                Note((Span("A note of two lines"),)),
                Sample((" 1.00 + ", "")),
                Table((((Span("a"),), (Span("b"),)), ((Span("1"),), (Span("2"),)))),
                ContentsList(),
            ],
        )

    def test_mistakes_are_reported(self):
        cases = {
            "no header": ("Text", "must begin with a header"),
            "no number": ("---\ntitle: x\nchapter: y\n---\n", "number, title or chapter"),
            "unknown header": ("---\nnumber: 1\nsubject: x\n---\n", "unknown header line"),
            "loose header": ("---\nnumber: 1\nwords\n---\n", "neither 'name: text' nor indented"),
            "unknown layout": ("---\nnumber: 1\ntitle: x\nchapter: y\nlayout: round\n---\n", "unknown layout 'round'"),
            "open sample": ("---\nnumber: 1\ntitle: x\nchapter: y\n---\n```\n1\n", "no closing"),
            "uneven table": ("---\nnumber: 1\ntitle: x\nchapter: y\n---\n| a | b |\n| 1 |\n", "number of cells"),
            "other heading": ("---\nnumber: 1\ntitle: x\nchapter: y\n---\n# a\n", "only '## ' headings"),
            "loose list": ("---\nnumber: 1\ntitle: x\nchapter: y\n---\n- a\nb\n", "neither an item nor indented"),
        }
        for name, (text, expected) in cases.items():
            with self.subTest(name), self.assertRaisesRegex(HelpError, f"^x: .*{expected}"):
                parse_topic("x", text)


if __name__ == "__main__":
    unittest.main()

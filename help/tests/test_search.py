"""The search of the HTML help finds topics by their titles, their index words and their text."""

import json
import unittest

from browser import ENGINES, first_of, run_script
from support import HELP, TOPICS
from topic_checks import spans_of

ENGINE = first_of(ENGINES)
SCRIPT = (HELP / "search.js").read_text(encoding="utf-8")


def call(expression):
    return json.loads(run_script(ENGINE, f"{SCRIPT}\nprint(JSON.stringify({expression}));\n"))


def read(topic):
    text = " ".join([*topic.messages, *(span.text for block in topic.blocks for span in spans_of(block))])
    return {"title": topic.title, "slug": topic.slug, "words": topic.keywords, "text": text}


@unittest.skipUnless(ENGINE, f"none of {', '.join(ENGINES)} is here to run the script")
class OurTopicsTest(unittest.TestCase):
    """What people look for, and the topic that should be among the first three."""

    WANTED = {
        "subtotal": "adding-machine",
        "percent": "percent",
        "%": "percent",
        "sales tax": "percent",
        "How do I print the tape?": "notepad",
        "APR": "finding-the-rate",
        "annuity due": "financial-calculator",
        "mortgage": "financial-questions",
        "balloon payments": "finding-the-payment",
        "Ctrl+O": "keyboard",
        "color": "colour",
        "error 13": "message-error-number",
        "divide by zero": "message-entry-error",
        "crash": "message-kept-tape",
        "lost window": "lost-window",
        "M+": "memory",
        "add mode": "modes",
        "how to save my work": "notepad",
        "delete the tape": "correcting",
        "larger letters": "accessibility",
        "screen readers": "accessibility",
        "Pasted entry is not a valid number": "message-pasted-entry",
    }

    @classmethod
    def setUpClass(cls):
        topics = json.dumps([read(topic) for topic in TOPICS])
        cls.found = call(
            f"{json.dumps(list(cls.WANTED))}.map(function (question) {{"
            f" return findTopics({topics}, question).map(function (topic) {{ return topic.slug; }}); }})"
        )

    def test_common_questions_are_answered(self):
        for (question, slug), found in zip(self.WANTED.items(), self.found):
            with self.subTest(question):
                self.assertIn(slug, found[:3])

    def test_every_topic_is_found_by_its_title_and_by_each_of_its_index_words(self):
        questions = [(topic.slug, word) for topic in TOPICS for word in (topic.title, *topic.keywords)]
        topics = json.dumps([read(topic) for topic in TOPICS])
        found = call(
            f"{json.dumps([word for _, word in questions])}.map(function (question) {{"
            f" return findTopics({topics}, question).map(function (topic) {{ return topic.slug; }}); }})"
        )
        missing = [question for question, slugs in zip(questions, found) if question[0] not in slugs]
        self.assertEqual(missing, [])


@unittest.skipUnless(ENGINE, f"none of {', '.join(ENGINES)} is here to run the script")
class SearchTest(unittest.TestCase):
    TOPICS = [
        {"title": "Questions", "words": [], "text": "The tape moves up. A tapeworm is none."},
        {"title": "The tape", "words": ["printout"], "text": "It shows every amount of 12.50 + and -."},
        {"title": "Memory", "words": ["tape", "M+"], "text": "It never prints."},
    ]

    def titles(self, question):
        found = call(f"findTopics({json.dumps(self.TOPICS)}, {json.dumps(question)})")
        return [topic["title"] for topic in found]

    def test_titles_come_before_index_words_and_those_before_text(self):
        self.assertEqual(self.titles("tape"), ["The tape", "Memory", "Questions"])

    def test_capitals_do_not_matter(self):
        self.assertEqual(self.titles("TAPE"), self.titles("tape"))

    def test_topics_with_every_word_come_first(self):
        self.assertEqual(self.titles("prints amount"), ["The tape", "Memory"])
        self.assertEqual(self.titles("amount nowhere"), ["The tape"])
        self.assertEqual(self.titles("nowhere"), [])

    def test_topics_with_some_of_the_words_are_shown_where_few_have_all(self):
        words = [{"title": f"{number}", "words": [], "text": text}
                 for number, text in enumerate(["tape"] * 6 + ["tape roll"] * 2 + ["tape roll paper"] * 3)]
        for question, expected in (("tape roll paper", "8 9 10"), ("tape roll", "6 7 8 9 10"), ("roll ink", "6 7 8 9 10")):
            found = call(f"findTopics({json.dumps(words)}, {json.dumps(question)})")
            self.assertEqual(" ".join(topic["title"] for topic in found), expected)
        found = call(f"findTopics({json.dumps(words[:8])}, 'tape roll')")
        self.assertEqual([topic["title"] for topic in found], ["6", "7", "0", "1", "2"])

    def test_the_beginning_of_a_word_is_enough_but_not_its_middle(self):
        self.assertEqual(self.titles("mem"), ["Memory"])
        self.assertEqual(self.titles("worm"), [])

    def test_a_plural_finds_its_singular(self):
        self.assertEqual(self.titles("printouts"), ["The tape"])
        self.assertEqual(self.titles("memories"), ["Memory"])

    def test_filler_words_do_not_count_unless_they_are_alone(self):
        self.assertEqual(self.titles("How is the printout?"), ["The tape"])
        self.assertEqual(self.titles("up"), ["Questions"])
        self.assertEqual(self.titles("a"), self.titles("A"))
        self.assertIn("Questions", self.titles("a"))

    def test_signs_are_found_wherever_they_stand(self):
        self.assertEqual(self.titles("+"), ["Memory", "The tape"])
        self.assertEqual(self.titles("M+"), ["Memory"])
        self.assertEqual(self.titles("12.50"), ["The tape"])
        self.assertEqual(self.titles("(.*"), [])

    def test_no_question_finds_nothing(self):
        self.assertEqual(self.titles(""), [])
        self.assertEqual(self.titles("  ?  "), [])

    def test_an_excerpt_shows_the_word_among_its_neighbors(self):
        text = "One two three four five six seven eight nine ten eleven twelve thirteen " * 3
        before, word, behind = call(f"excerptOf({json.dumps(text)}, 'THIRTEEN')")
        self.assertEqual(word, "thirteen")
        self.assertTrue(before.startswith("\u2026 ") and before.endswith(" eleven twelve "), before)
        self.assertTrue(behind.startswith(" One two") and behind.endswith(" \u2026"), behind)
        self.assertLess(len(before + behind), 140)

    def test_an_excerpt_shows_the_whole_word(self):
        self.assertEqual(call("excerptOf('All the memory.', 'mem')"), ["All the ", "memory", "."])
        self.assertEqual(call("excerptOf('5 % of it', '%')"), ["5 ", "%", " of it"])

    def test_an_excerpt_without_the_word_is_the_beginning(self):
        self.assertEqual(call("excerptOf('Short text.', 'other')"), ["Short text.", "", ""])

    def test_an_excerpt_of_a_short_text_is_all_of_it(self):
        self.assertEqual(call("excerptOf('Short text here.', 'text')"), ["Short ", "text", " here."])


if __name__ == "__main__":
    unittest.main()

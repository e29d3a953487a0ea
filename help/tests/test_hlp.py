import struct
import unittest

from support import TOPICS, plain
from hlp_reader import HlpFile
from hlp_writer import write_hlp
from html_writer import anchor
from topic_checks import links_of, spans_of
from topic_source import ContentsList, Sample


def name_hash(name):
    """The signed hash of a context name, by the rule of the format."""
    codes = "123456789"
    value = 0
    for char in name:
        code = codes.index(char) + 1 if char in codes else 10 if char == "0" else ord(char) - ord("a") + 17
        value = value * 43 + code
    return struct.unpack("<i", struct.pack("<I", value & 0xFFFFFFFF))[0]


class HlpTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.file = HlpFile(write_hlp("Tallyrex Help", TOPICS))
        cls.offsets = {topic.slug: read.offset for topic, read in zip(TOPICS, cls.file.topics)}

    def test_has_every_topic_in_order(self):
        self.assertEqual([read.title for read in self.file.topics], [topic.title for topic in TOPICS])

    def test_spans_several_packed_blocks(self):
        self.assertGreater(len(self.file.files["|TOPIC"]), 4 * 4096)
        self.assertEqual(self.file.system()[0], 4)

    def test_names_title_contents_and_browse_buttons(self):
        records = dict(self.file.system()[1])
        self.assertEqual(records[1], b"Tallyrex Help\0")
        self.assertEqual(struct.unpack("<I", records[3])[0], self.offsets["contents"])
        self.assertEqual(records[4], b"BrowseButtons()\0")
        self.assertEqual(records[6][12:16] + records[6][21:35], b"mainTallyrex Help\0")
        self.assertEqual(len(records[6]), 90)

    def test_shows_every_word_of_every_topic(self):
        for topic, read in zip(TOPICS, self.file.topics):
            shown = read.words()
            for expected in self.texts_of(topic):
                self.assertIn(expected, shown, topic.slug)

    def texts_of(self, topic):
        texts = [topic.title, *topic.messages]
        for block in topic.blocks:
            texts += [span.text for span in spans_of(block)]
            texts += block.lines if isinstance(block, Sample) else ()
        return texts

    def test_numbers_lead_to_their_topics(self):
        numbers = self.file.map_numbers()
        self.assertEqual(dict(numbers), {topic.number: self.offsets[topic.slug] for topic in TOPICS})
        self.assertEqual(len(numbers), len(TOPICS))
        by_offset = {read.offset: read.title for read in self.file.topics}
        self.assertEqual(by_offset[dict(numbers)[23]], "Financial calculator")

    def test_links_lead_where_the_text_says(self):
        contexts = self.file.contexts()
        self.assertEqual(contexts, sorted(contexts))
        by_offset = {read.offset: topic.slug for topic, read in zip(TOPICS, self.file.topics)}
        target_of = {hash_value: by_offset[offset] for hash_value, offset in contexts}
        self.assertEqual(target_of, {name_hash(anchor(topic)): topic.slug for topic in TOPICS})
        for topic, read in zip(TOPICS, self.file.topics):
            self.assertEqual(
                sorted(target_of[hash_value] for hash_value, _ in read.jumps), sorted(links_of(topic, TOPICS))
            )

    def test_links_in_the_contents_show_the_titles(self):
        listed = [words for _, words in self.file.topics[0].jumps]
        for topic in TOPICS[1:]:
            self.assertIn(topic.title, listed)
        self.assertTrue(any(isinstance(block, ContentsList) for block in TOPICS[0].blocks))

    def test_browse_buttons_walk_through_all_topics(self):
        offsets = [read.offset for read in self.file.topics]
        self.assertEqual([read.back for read in self.file.topics], [-1] + offsets[:-1])
        self.assertEqual([read.forward for read in self.file.topics], offsets[1:] + [-1])
        self.assertEqual(len(set(offsets)), len(offsets))

    def test_titles_are_found_by_offset(self):
        self.assertEqual(self.file.titles(), {read.offset: read.title for read in self.file.topics})

    def test_index_leads_to_the_topics_with_a_keyword(self):
        expected = {}
        for topic in TOPICS:
            for keyword in topic.keywords:
                expected.setdefault(keyword, []).append(self.offsets[topic.slug])
        found = self.file.keywords()
        self.assertEqual({word: list(offsets) for word, offsets in found.items()}, expected)
        self.assertEqual(list(found), sorted(found, key=lambda word: (word.lower(), word)))

    def test_fonts_used_are_described(self):
        faces, descriptors = struct.unpack_from("<HH", self.file.files["|FONT"], 0)
        self.assertEqual(len(self.file.files["|FONT"]), 8 + 20 * faces + 11 * descriptors)
        used = set().union(*(read.fonts for read in self.file.topics))
        self.assertEqual(used, set(range(descriptors)))

    def test_a_tape_keeps_its_blanks(self):
        pad_tape = next(read for topic, read in zip(TOPICS, self.file.topics) if topic.slug == "pad-tape")
        self.assertIn("               1,231.50 * ", pad_tape.lines)

    def test_a_tape_stands_at_the_right(self):
        tape = next(read for topic, read in zip(TOPICS, self.file.topics) if topic.slug == "adding-machine")
        first = tape.lines.index("     Top")
        self.assertEqual(tape.lines[first + 1 : first + 5], ["12.00 + ", " 3.00 + ", " 5.00 - ", "10.00 * "])

    def test_a_table_is_aligned_with_tabs(self):
        table = next(read for topic, read in zip(TOPICS, self.file.topics) if topic.slug == "finding-the-payment")
        self.assertIn("Monthly Payment equals:\t$ 430.20", table.lines)

    def test_a_damaged_file_is_noticed(self):
        data = bytearray(write_hlp("Tallyrex Help", TOPICS))
        with self.assertRaises(ValueError):
            HlpFile(bytes(data[:-1]))
        # The head of a tree: its mark, then its flags.
        at = data.index(b"\x3b\x29\x02\x00")
        data[at + 2] ^= 0xFF
        data[at + 34] ^= 0xFF
        with self.assertRaises(ValueError):
            HlpFile(bytes(data)).contexts()


if __name__ == "__main__":
    unittest.main()

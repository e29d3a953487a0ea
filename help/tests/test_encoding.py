import random
import struct
import unittest

import support  # noqa: F401
from hlp_encoding import btree, btree_leaf_starts, context_hash, lz77, packed_long, text, u32
from hlp_reader import _string_key, read_btree, read_btree_by_key, unpack_lz77


class Lz77Test(unittest.TestCase):
    def test_unpacks_to_what_was_packed(self):
        dice = random.Random(1)
        words = [b"total ", b"tape ", b"entry ", b"payment, ", b"x" * 40]
        samples = [b"", b"a", b"aaaaaaaaaaaaaaaaaaaaaaaaaaaa", bytes(dice.randrange(256) for _ in range(3000))]
        samples += [b"".join(dice.choice(words) for _ in range(count)) for count in (10, 300, 1500)]
        for sample in samples:
            packed = lz77(sample)
            self.assertEqual(unpack_lz77(packed)[: len(sample)], sample)
            self.assertEqual(len(unpack_lz77(packed)), len(sample))

    def test_text_is_compressed(self):
        sample = b"The total is printed on the tape. " * 100
        self.assertLess(len(lz77(sample)), len(sample) / 4)

    def test_a_copy_reaches_no_further_back_than_4096_bytes(self):
        filler = bytes(random.Random(2).randrange(256) for _ in range(4096))
        self.assertEqual(unpack_lz77(lz77(b"needle" + filler + b"needle")), b"needle" + filler + b"needle")


class PackedNumberTest(unittest.TestCase):
    def test_a_number_that_needs_more_than_two_bytes_is_refused(self):
        self.assertEqual(packed_long(0), struct.pack("<H", 0x8000))
        with self.assertRaises(ValueError):
            packed_long(16384)


class ContextHashTest(unittest.TestCase):
    def test_ignores_case(self):
        self.assertEqual(context_hash("Topic23"), context_hash("topic23"))
        self.assertNotEqual(context_hash("topic23"), context_hash("topic32"))

    def test_known_values(self):
        self.assertEqual(context_hash("a"), 17)
        self.assertEqual(context_hash("a1"), 17 * 43 + 1)
        self.assertEqual(context_hash("10"), 1 * 43 + 10)

    def test_other_characters_are_refused(self):
        with self.assertRaises(ValueError):
            context_hash("pad-tape")


class TreeTest(unittest.TestCase):
    def setUp(self):
        self.entries = [(text(f"word{number:04}"), u32(number)) for number in range(400)]
        self.tree = btree("Fz4", 0x400, self.entries)

    def test_every_entry_of_a_tree_of_two_levels_is_read_back(self):
        found = read_btree(self.tree, _string_key, lambda _, at: at + 4)
        self.assertEqual(found, [(key[:-1], rest) for key, rest in self.entries])

    def test_the_index_page_finds_the_leaf_of_a_word(self):
        starts = btree_leaf_starts(0x400, self.entries)
        self.assertGreater(len(starts), 3)
        for number, (key, _) in enumerate(self.entries):
            expected = max(leaf for leaf, start in enumerate(starts) if start <= number)
            self.assertEqual(read_btree_by_key(self.tree, key[:-1]), expected)


if __name__ == "__main__":
    unittest.main()

import unittest

import support  # noqa: F401
from tape_sample import AMOUNT, NEGATIVE_TOTAL, NOTE, TAKEN_OFF, TOTAL, tape_lines


class TapeSampleTest(unittest.TestCase):
    def looks(self, *lines):
        return [line.look for line in tape_lines(lines)]

    def texts(self, *lines):
        return [line.text() for line in tape_lines(lines)]

    def test_amounts_stand_under_one_another(self):
        self.assertEqual(
            self.texts("Top", "1,250.00 +", "47.50 -", "1,202.50 *"),
            ["        Top", "1,250.00 + ", "   47.50 - ", "1,202.50 * "],
        )

    def test_the_first_number_of_a_calculation_has_room_for_the_symbol_that_it_lacks(self):
        self.assertEqual(self.texts("250.00", "0.08 X"), ["250.00   ", "  0.08 X "])

    def test_padded_lines_stay_as_they_are(self):
        lines = ["Top                    Top", "               1,234.50 +"]
        self.assertEqual(self.texts(*lines), ["Top                    Top", "               1,234.50 + "])

    def test_the_rule_of_a_total_stands_above_its_amount_alone(self):
        total = tape_lines(["               1,231.50 *"])[0]
        self.assertEqual((total.blanks, total.amount, total.mark), (" " * 15, "1,231.50", " * "))

    def test_what_takes_off_is_told_from_what_adds(self):
        self.assertEqual(self.looks("5.00 +", "5.00 -", "-5.00 +", "-5.00 -"), [AMOUNT, TAKEN_OFF, TAKEN_OFF, AMOUNT])

    def test_factors_and_roots_are_amounts(self):
        self.assertEqual(self.looks("12.00", "3.00 X", "2.00 /", "9.00 S"), [AMOUNT] * 4)

    def test_totals_are_told_by_their_sign(self):
        self.assertEqual(self.looks("10.00 *", "-10.00 *"), [TOTAL, NEGATIVE_TOTAL])

    def test_the_first_line_errors_and_records_are_notes(self):
        self.assertEqual(
            self.looks("Top", "Error: divide by zero.", "48 Months", "% 690.00", "$ 430.20", "  Loan Amount:"),
            [NOTE] * 6,
        )


if __name__ == "__main__":
    unittest.main()

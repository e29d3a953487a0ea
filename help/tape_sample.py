"""How the lines of a sample are set: as the tape of the program sets them."""

import re
from dataclasses import dataclass

AMOUNT, TAKEN_OFF, TOTAL, NEGATIVE_TOTAL, NOTE = "amount", "taken-off", "total", "negative-total", "note"

_POSTING = re.compile(r"( *)(-?[\d,]+(?:\.\d+)?)(?: ([-+X/S*]))?")


@dataclass(frozen=True)
class TapeLine:
    """A line in three parts, of which a rule stands above the amount of a total; a note is all `amount`."""

    blanks: str
    amount: str
    mark: str
    look: str

    def text(self):
        return self.blanks + self.amount + self.mark


def tape_lines(lines):
    """The lines of a sample, filled up in front to the same length: amounts stand under one another."""
    parts = [_parts(line) for line in lines]
    width = max(len(line.text()) for line in parts)
    return [
        TapeLine(" " * (width - len(line.text())) + line.blanks, line.amount, line.mark, line.look) for line in parts
    ]


def _parts(line):
    posting = _POSTING.fullmatch(line)
    if not posting:
        amount = line.lstrip(" ")
        return TapeLine(line[: len(line) - len(amount)], amount, "", NOTE)
    blanks, amount, symbol = posting.groups()
    # The program puts a blank behind the symbol, and one in its place where there is none.
    return TapeLine(blanks, amount, f" {symbol or ' '} ", _look(amount, symbol))


def _look(amount, symbol):
    negative = amount.startswith("-")
    if symbol == "*":
        return NEGATIVE_TOTAL if negative else TOTAL
    # A negative amount that is subtracted adds.
    return TAKEN_OFF if negative != (symbol == "-") else AMOUNT
